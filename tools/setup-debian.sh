#!/bin/sh
# Installs, on Debian 12, what building and testing NodRutinas needs, when it is missing.
# Run as root (or with sudo available). Does nothing when everything is already there.
set -eu

PAQUETES="cmake ninja-build g++ pkg-config qt6-base-dev libgl-dev libgtest-dev libgmock-dev libbenchmark-dev
nlohmann-json3-dev libshp-dev libcurl4-openssl-dev libicu-dev clang libclang-rt-14-dev xvfb xauth
python3 python3-dbfread python3-stdnum python3-aiosmtpd iso-codes nodejs npm imagemagick"

faltan=""
for p in $PAQUETES; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || faltan="$faltan $p"
done
[ -z "$faltan" ] && exit 0

echo "Installing:$faltan"
SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
# shellcheck disable=SC2086
$SUDO apt-get install -y -qq --no-install-recommends $faltan
