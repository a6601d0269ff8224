#!/usr/bin/env bash
# Installs, builds and runs the whole test suite: once in a Release build,
# once under AddressSanitizer and UndefinedBehaviorSanitizer, then the COM
# server under wine (scripts/com-test.sh) and the fuzzers for half a minute
# each (scripts/fuzz.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
jobs=$(nproc)
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DTAMREL_BENCH=ON >/dev/null
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs"
cmake -S . -B build-san -DCMAKE_BUILD_TYPE=Debug -DTAMREL_SANITIZE=ON >/dev/null
cmake --build build-san -j"$jobs"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --test-dir build-san --output-on-failure -j"$jobs"
# The COM server, built for Windows and tested under wine.
scripts/com-test.sh
# The fuzzers, each for a bounded time under the same sanitizers.
FUZZ_SECONDS=${FUZZ_SECONDS:-30} scripts/fuzz.sh
