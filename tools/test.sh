#!/bin/sh
# Builds and runs the whole test suite: the tests under AddressSanitizer and UndefinedBehaviorSanitizer,
# a bounded fuzzing run of every fuzz target (text parsers, the batch request handler ...), then a
# release build (benchmarks included), installed, consumed by a project of its own and packaged, and its
# tests. CTest's summary line ends the output.
set -eu
cd "$(dirname "$0")/.."
tools/setup-debian.sh
JOBS=$(nproc)

# The dialogs' geometry is designed for Arial: it must be served by an Arial-metric font.
case "$(fc-match Arial)" in
*"Liberation Sans"*) ;;
*)
    echo "fc-match Arial gives \"$(fc-match Arial)\", not Liberation Sans: install fonts-liberation" >&2
    exit 1
    ;;
esac

cmake -S . -B build/asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DNOD_SANITIZE=ON -DNOD_BUILD_BENCH=OFF >/dev/null
cmake --build build/asan -j "$JOBS"
ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
    ctest --test-dir build/asan -j "$JOBS" --output-on-failure --timeout 600

echo "Fuzzing every target for ${NOD_FUZZ_SECONDS:-60} s each (log: build/fuzz.log)"
if ! tools/fuzz.sh "${NOD_FUZZ_SECONDS:-60}" >build/fuzz.log 2>&1; then
    tail -n 40 build/fuzz.log
    echo "A fuzzer found a failing input (see build/fuzz/)" >&2
    exit 1
fi
grep '^fuzz_lote: .* routine forms called' build/fuzz.log || true

cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_INSTALL_PREFIX=/usr >/dev/null
cmake --build build/release -j "$JOBS"

# The release build as programs of the suite get it: installed into a staged prefix and used by a project
# of its own through find_package, then packaged (.deb) and run from the unpacked packages.
echo "Installing and packaging the release build (logs: build/release/consumidor.log, cpack.log)"
sh tests/paquete/comprueba-paquetes.sh build/release

ctest --test-dir build/release -j "$JOBS" --output-on-failure --timeout 600
