#!/bin/sh
# Builds and runs the whole test suite: a normal build, then the same tests under AddressSanitizer
# and UndefinedBehaviorSanitizer. CTest's summary line ends the output.
set -eu
cd "$(dirname "$0")/.."
tools/setup-debian.sh
JOBS=$(nproc)

cmake -S . -B build/asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DNOD_SANITIZE=ON -DNOD_BUILD_BENCH=OFF >/dev/null
cmake --build build/asan -j "$JOBS"
ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
    ctest --test-dir build/asan -j "$JOBS" --output-on-failure --timeout 600 -E '^bench_'

cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build/release -j "$JOBS"
ctest --test-dir build/release -j "$JOBS" --output-on-failure --timeout 600
