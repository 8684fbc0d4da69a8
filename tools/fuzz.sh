#!/bin/sh
# Builds every fuzz target of fuzz/ with clang (libFuzzer, AddressSanitizer, UBSan) in its own build
# folder and runs each in turn for a bounded time on its own corpus (build/fuzz/corpus/TARGET, which the
# target may seed itself, plus the seeds of fuzz/semillas/NAME when there are some), with the dictionary
# fuzz/TARGET.dict when there is one. Exits non-zero when a target finds a crash, a sanitizer report,
# an input slower than 10 s or one that needs more than 2 GB; the failing input is left as build/fuzz/TARGET-crash-...
#   tools/fuzz.sh [seconds per target]      (default 60)
set -eu
cd "$(dirname "$0")/.."
SEGUNDOS=${1:-60}
CARPETA=$(pwd)/build/fuzz
LANZADOR=
if command -v ccache >/dev/null; then LANZADOR=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
cmake -S fuzz -B "$CARPETA" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ $LANZADOR >/dev/null
cmake --build "$CARPETA" -j "$(nproc)"

estado=0
for objetivo in "$CARPETA"/fuzz_*; do
    [ -f "$objetivo" ] && [ -x "$objetivo" ] || continue
    nombre=$(basename "$objetivo")
    mkdir -p "$CARPETA/corpus/$nombre" "$CARPETA/trabajo"
    diccionario=
    if [ -f "fuzz/$nombre.dict" ]; then diccionario=-dict=$(pwd)/fuzz/$nombre.dict; fi
    semillas=
    if [ -d "fuzz/semillas/${nombre#fuzz_}" ]; then semillas=$(pwd)/fuzz/semillas/${nombre#fuzz_}; fi
    echo "== $nombre for $SEGUNDOS s"
    # In a scratch folder: a routine given a relative file name finds nothing of the tree there.
    if ! (cd "$CARPETA/trabajo" && ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
        "$objetivo" -max_total_time="$SEGUNDOS" -timeout=10 -max_len=4096 $diccionario \
        -artifact_prefix="$CARPETA/$nombre-" "$CARPETA/corpus/$nombre" $semillas); then
        echo "$nombre found a failing input (see $CARPETA/$nombre-*)" >&2
        estado=1
    fi
done
exit $estado
