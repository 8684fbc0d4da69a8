#!/bin/sh
# The library as a program of the suite gets it, from a release build folder (tools/test.sh runs this):
#   comprueba-paquetes.sh BUILD_DIR
# 1. `cmake --install` into a prefix with a space inside the build folder; the installed libraries' SONAME
#    and exported symbols (interfaz.sh); the consumer project (consumidor/) configured with find_package
#    against it, built and run offscreen; a component that does not exist must stop its configuration
#    with a clear message; the pkg-config files answer.
# 2. `cpack -G DEB`; the packages unpacked with `dpkg-deb -x` into a temporary root, where the installed
#    nodrim must find the installed sample office and its helpers (a form, a PDF), and without an office
#    say where it looked.
set -eu
B=$(cd "$1" && pwd)
fuentes=$(cd "$(dirname "$0")" && pwd)
falla() {
    echo "comprueba-paquetes: $*" >&2
    exit 1
}
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=\([0-9]*\)\.\([0-9]*\).*/\1.\2/p' "$B/CMakeCache.txt")
case "$version" in 0.*) soversion=$version ;; *) soversion=${version%%.*} ;; esac

# 1. Staged install.
P="$B/instalación de prueba"
rm -rf "$P"
cmake --install "$B" --prefix "$P" >/dev/null
core=$(find "$P" -name "libnodrutinas-core.so.*.*.*")
widgets=$(find "$P" -name "libnodrutinas-widgets.so.*.*.*")
[ -f "$core" ] && [ -f "$widgets" ] || falla "the shared libraries are not installed under $P"
libdir=$(dirname "$core")
cabeceras=$(find "$P/include/nodrutinas" -mindepth 1 -maxdepth 1 -type d | tr '\n' ':')
sh "$fuentes/interfaz.sh" "$soversion" "${cabeceras%:}" "$core" "$widgets"

C="$B/consumidor"
rm -rf "$C"
cmake -S "$fuentes/consumidor" -B "$C" -G Ninja -DCMAKE_PREFIX_PATH="$P" >"$B/consumidor.log" 2>&1 ||
    { cat "$B/consumidor.log"; falla "the consumer could not be configured against $P"; }
cmake --build "$C" >>"$B/consumidor.log" 2>&1 || { cat "$B/consumidor.log"; falla "the consumer did not build"; }
QT_QPA_PLATFORM=offscreen NODRIM_DIR= "$C/consumidor" "$P/share/nodrutinas/sample-office" 2>"$C/salida.log" ||
    { cat "$C/salida.log"; falla "the consumer did not run as expected"; }

if cmake -S "$fuentes/consumidor" -B "$C-falta" -G Ninja -DCMAKE_PREFIX_PATH="$P" -DNOD_COMPONENTES="Core;Informes" \
    >"$B/consumidor-falta.log" 2>&1; then
    falla "a consumer asking for the component Informes was configured"
fi
grep -q 'NodRutinas has no component "Informes"' "$B/consumidor-falta.log" ||
    { cat "$B/consumidor-falta.log"; falla "no clear message for an unknown component"; }
rm -rf "$C-falta"
echo "consumer: built with find_package against \"$P\", ran; an unknown component is refused"

export PKG_CONFIG_PATH="$libdir/pkgconfig"
libs=$(pkg-config --libs nodrutinas-widgets) || falla "pkg-config does not know nodrutinas-widgets"
for palabra in -lnodrutinas-widgets -lnodrutinas-core -lQt6Widgets -lQt6Core; do
    case " $libs " in *" $palabra "*) ;; *) falla "pkg-config --libs nodrutinas-widgets lacks $palabra: $libs" ;; esac
done
# pkg-config writes a blank of the prefix as "\ ".
carpeta() { pkg-config --variable="$1" nodrutinas-core | sed 's/\\ / /g'; }
[ -f "$(carpeta includedir)/nodrutinas/text/letras.h" ] && [ -f "$(carpeta libdir)/libnodrutinas-core.so" ] ||
    falla "the folders of nodrutinas-core.pc do not hold the headers and the library"
echo "pkg-config: nodrutinas-widgets links: $(echo " $libs" | tr ' ' '\n' | grep '^-l' | tr '\n' ' ')"

# 2. Debian packages.
rm -f "$B"/*.deb
(cd "$B" && cpack -G DEB >"$B/cpack.log" 2>&1) || { tail -n 30 "$B/cpack.log"; falla "cpack -G DEB failed"; }
raiz=$(mktemp -d)
trap 'rm -rf "$raiz"' EXIT
for deb in "$B"/*.deb; do
    dpkg-deb -x "$deb" "$raiz"
    echo "$(basename "$deb"): $(du -k "$deb" | cut -f1) KiB; Depends: $(dpkg-deb -f "$deb" Depends)"
done
nodrim="$raiz/usr/bin/nodrim"
[ -x "$nodrim" ] || falla "no usr/bin/nodrim in the packages"
dpkg-deb -f "$B"/nodrutinas-tools_*.deb Depends | grep -q "libnodrutinas$soversion (= " ||
    falla "the tools package does not depend on the runtime package"
dpkg-deb -f "$B"/libnodrutinas"$soversion"_*.deb Depends | grep -q "libqt6core6" ||
    falla "the runtime package's dependencies were not computed (dpkg-shlibdeps)"

salida=$(env -u NODRIM_DIR "$nodrim" BusquedaMunicipio 28 079) || falla "the unpacked nodrim failed"
[ "$salida" = "MADRID" ] || falla "the unpacked nodrim answered \"$salida\""
env -u NODRIM_DIR "$nodrim" --help | grep -qF "($raiz/usr/share/nodrutinas/sample-office)" ||
    falla "the unpacked nodrim does not use the unpacked sample office"
# Its helpers, installed apart: a form answered by the form layer, the revision's list written as PDF.
peticion='{"fn":"PreguntaMesAno","args":[0,0,"Listado",0,0],"today":"2024-03-10","answers":[{"set":{"cbMes":"DICIEMBRE","seAno4":"05"}}]}'
# (Qt's notice about XDG_RUNTIME_DIR is not wanted in the output: the response says what went wrong.)
respuesta=$(echo "$peticion" | env -u NODRIM_DIR QT_QPA_PLATFORM=offscreen "$nodrim" batch 2>/dev/null) ||
    falla "the unpacked nodrim batch failed on a form"
case "$respuesta" in *'"out":[12,2005],"result":true'*) ;; *) falla "the unpacked form layer answered $respuesta" ;; esac
aviso=$(env -u NODRIM_DIR "$nodrim" revision --pdf "$raiz/revision.pdf" 2>&1 >/dev/null) ||
    falla "the unpacked nodrim revision --pdf failed: $aviso"
[ "$(head -c 5 "$raiz/revision.pdf")" = "%PDF-" ] || falla "the unpacked nodrim revision --pdf wrote no PDF"
rm -rf "$raiz/usr/share/nodrutinas/sample-office"
if error=$(env -u NODRIM_DIR "$nodrim" AliasNotario 0 2>&1); then
    falla "nodrim ran without an office"
fi
case "$error" in
*"$raiz/usr/share/nodrutinas/sample-office"*) ;;
*) falla "nodrim without an office does not say where it looked: $error" ;;
esac
echo "packages: unpacked nodrim found its sample office, form layer and PDF module; without an office: $error"
