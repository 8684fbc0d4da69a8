#!/bin/sh
# Checks the interface of the shared libraries against their public headers:
#   interfaz.sh SONAME_VERSION HEADER_DIRS LIBRARY...
# HEADER_DIRS: the folders of the public headers, separated by ":" (their *.h but *_p.h).
# - every public header that opens `namespace nod` exports it (NOD_CORE_EXPORT or NOD_WIDGETS_EXPORT) and
#   includes the export header of that macro: otherwise what it declares is hidden from programs;
# - each library's SONAME is lib<name>.so.SONAME_VERSION (readelf -d);
# - every symbol a library defines for others (nm -D --defined-only) is part of the interface: a name of
#   namespace nod that the public headers declare, or a template instantiated from them (weak). An internal
#   helper (a name no public header knows, or any strong symbol outside nod but the linker's section marks
#   and AddressSanitizer's indicators of exported variables) fails the check.
# Prints the number of symbols each library exports.
set -eu
# Lists below are one path a line: paths may hold blanks.
IFS='
'
version=$1
directorios=$2
shift 2
fallo=0
cabeceras=$(echo "$directorios" | tr ':' '\n' | while read -r d; do
    find "$d" -maxdepth 1 -name '*.h' ! -name '*_p.h'
done)
[ -n "$cabeceras" ] || { echo "no public headers under $directorios" >&2; exit 1; }

for h in $cabeceras; do
    # Openings of namespace nod without the export macro (not nod::x, not closing comments).
    if grep -n '^ *namespace nod\( *{\|$\)' "$h" >/dev/null; then
        echo "$h: opens \"namespace nod {\" without NOD_CORE_EXPORT or NOD_WIDGETS_EXPORT (/usr/bin/python3 tools/exporta-cabeceras.py adds it)" >&2
        fallo=1
    fi
    if grep -n '^ *namespace nod::' "$h" >/dev/null; then
        echo "$h: opens \"namespace nod::...\", which cannot carry the export macro: nest it in namespace nod" >&2
        fallo=1
    fi
    for macro in core widgets; do
        MACRO=$(echo "$macro" | tr a-z A-Z)
        if grep -q "namespace nod NOD_${MACRO}_EXPORT" "$h" && ! grep -q "#include [<\"]nod_${macro}_export.h[>\"]" "$h"; then
            echo "$h: uses NOD_${MACRO}_EXPORT without including nod_${macro}_export.h" >&2
            fallo=1
        fi
    done
done

# The identifiers the public headers declare.
nombres=$(mktemp)
trap 'rm -f "$nombres"' EXIT
cat $cabeceras | grep -o '[A-Za-z_][A-Za-z0-9_]*' | sort -u >"$nombres"

for lib in "$@"; do
    base=$(basename "$lib")
    soname=$(readelf -d "$lib" | sed -n 's/.*(SONAME).*\[\(.*\)\]/\1/p')
    esperado="${base%%.so*}.so.$version"
    if [ "$soname" != "$esperado" ]; then
        echo "$base: SONAME is \"$soname\", not \"$esperado\"" >&2
        fallo=1
    fi
    # Each symbol as "TYPE NAME"; the name of namespace nod is the first word after the last "nod::"
    # that starts the symbol (or follows "typeinfo for ", "vtable for " ...).
    nm -D --defined-only -C "$lib" | cut -c18- >"$nombres.sim"
    total=$(wc -l <"$nombres.sim")
    malos=$(awk -v nombres="$nombres" '
        BEGIN { while ((getline n < nombres) > 0) conocido[n] = 1 }
        {
            tipo = $1; s = substr($0, 3)
            sub(/^(typeinfo name for|typeinfo for|vtable for|VTT for|guard variable for|non-virtual thunk to|virtual thunk to) /, "", s)
            if (s ~ /^nod::/) {
                id = substr(s, 6); sub(/[^A-Za-z0-9_].*/, "", id)
                if (!(id in conocido)) print "internal helper " $0
            } else if (tipo !~ /^[WVu]$/ && s !~ /^(__bss_start|_edata|_end|_init|_fini)$/ && s !~ /^__odr_asan[._]/) {
                print "strong symbol outside namespace nod " $0
            }
        }' "$nombres.sim")
    rm -f "$nombres.sim"
    if [ -n "$malos" ]; then
        echo "$base exports what no public header declares:" >&2
        echo "$malos" | head -n 20 >&2
        fallo=1
    fi
    echo "$base: SONAME $soname, $total exported symbols"
done
exit $fallo
