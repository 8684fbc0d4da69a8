#!/bin/sh
# Builds the text routines' fuzz target with clang (libFuzzer, AddressSanitizer, UBSan) in its own build
# folder and runs it for a bounded time. Exits non-zero when the fuzzer finds a crash, a leak-free
# sanitizer report or a hang (any input slower than 10 s).
#   tools/fuzz-text.sh [seconds]      (default 60)
set -eu
cd "$(dirname "$0")/.."
SEGUNDOS=${1:-60}
CARPETA=build/fuzz-text
cmake -S fuzz -B "$CARPETA" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ >/dev/null
cmake --build "$CARPETA" -j 2
mkdir -p "$CARPETA/corpus"
# A few seeds: dates and numbers in words, letter-spaced text, grouped digits.
printf '\001quince de marzo del a\303\261o dos mil diez.' >"$CARPETA/corpus/fecha_es"
printf "\002quinze d'abril de l'any  dos mil deu" >"$CARPETA/corpus/fecha_ca"
printf '\000mil novecientos noventa y nueve' >"$CARPETA/corpus/numero_es"
printf '\200nou cents noranta i nou' >"$CARPETA/corpus/numero_ca"
printf '\003-1234567.89' >"$CARPETA/corpus/puntos"
printf '\004E S C R I T U R A' >"$CARPETA/corpus/espaciado"
printf '\005MARIA-JOSE DE LA FUENTE' >"$CARPETA/corpus/capital"
ASAN_OPTIONS=detect_leaks=0 QT_QPA_PLATFORM=offscreen \
    "$CARPETA/fuzz_texto" -max_total_time="$SEGUNDOS" -timeout=10 -max_len=512 \
    -artifact_prefix="$CARPETA/" "$CARPETA/corpus"
