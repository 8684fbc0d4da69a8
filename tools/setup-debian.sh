#!/bin/sh
# Installs, on Debian 12, what building and testing NodRutinas needs, when it is missing.
# Run as root (or with sudo available). Does nothing when everything is already there.
set -eu

PAQUETES="cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libgtest-dev libgmock-dev libbenchmark-dev
nlohmann-json3-dev libshp-dev libcurl4-openssl-dev libicu-dev clang libclang-rt-14-dev xvfb xauth
locales python3 python3-dbfread python3-stdnum python3-aiosmtpd iso-codes fontconfig fonts-liberation poppler-utils
dpkg-dev file"

# The dialogs are designed in "Arial": fonts-liberation serves it with the metric-compatible Liberation Sans,
# so that texts fit the designed geometry (fontconfig's fc-match checks it).
# The Debian packages: dpkg-shlibdeps (dpkg-dev) computes their dependencies on the ELF files `file` finds.
# Tests also run under a Spanish locale, whose decimal comma must never leak into machine formats.
generar_locale() {
    locale -a 2>/dev/null | grep -qi '^es_ES.utf8$' && return 0
    echo "Generating the es_ES.UTF-8 locale"
    $SUDO localedef -i es_ES -f UTF-8 es_ES.UTF-8 || echo "warning: could not generate es_ES.UTF-8" >&2
}

SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"

faltan=""
for p in $PAQUETES; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || faltan="$faltan $p"
done
if [ -z "$faltan" ]; then
    generar_locale
    exit 0
fi

echo "Installing:$faltan"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
# shellcheck disable=SC2086
$SUDO apt-get install -y -qq --no-install-recommends $faltan
generar_locale
