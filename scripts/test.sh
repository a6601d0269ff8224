#!/usr/bin/env bash
# Installs, builds and runs the whole test suite: once in the Release build
# (with the benchmarks, so that they keep building), once under
# AddressSanitizer and UndefinedBehaviorSanitizer (built with clang, the
# fuzzers' build: scripts/sanitizer-build.sh), the thread tests under
# ThreadSanitizer, the installed library's consumers,
# then the COM server under wine (scripts/com-test.sh), the generate/check
# agreement over many more hostile variants, and the fuzzers for 24
# seconds each (scripts/fuzz.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
jobs=$(nproc)
# Release, as scripts/run-example.sh builds it. The profile-guided build
# (scripts/profiled-build.sh) gives the same bytes faster; its instrumented
# build and training would cost this run about ten minutes.
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release -DTAMREL_BENCH=ON -DTAMREL_PROFILE= >/dev/null
cmake --build build -j"$jobs"
ctest --test-dir build --output-on-failure -j"$jobs"
scripts/sanitizer-build.sh
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --test-dir build-san --output-on-failure -j"$jobs"
# Many threads at once through the C interface and the generator classes.
cmake -S . -B build-tsan -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=-O1 -DCMAKE_CXX_FLAGS_DEBUG=-g1 -DTAMREL_TSAN=ON >/dev/null
cmake --build build-tsan -j"$jobs" --target tamrel_thread_tests tamrel
TSAN_OPTIONS=halt_on_error=1 build-tsan/tests/tamrel_thread_tests --gtest_filter='Threads.*'
# The installed library, its consumers and its Debian packages.
scripts/install-test.sh build
# The COM server, built for Windows and tested under wine.
scripts/com-test.sh
# Generate and check held to each other over many more hostile variants.
TAMREL_AGREE_COUNT=${AGREE_COUNT:-3000} build/tests/tamrel_tests --gtest_filter='GenerateAndCheck.*'
# The fuzzers, each for a bounded time under the same sanitizers.
FUZZ_SECONDS=${FUZZ_SECONDS:-24} scripts/fuzz.sh
