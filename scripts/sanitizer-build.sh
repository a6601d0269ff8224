#!/usr/bin/env bash
# Builds build-san: everything (library, command line, tests, fuzzers) with
# clang under AddressSanitizer and UndefinedBehaviorSanitizer, with
# libFuzzer's coverage instrumentation. One build serves the sanitizer test
# run and the fuzzers (scripts/fuzz.sh); line tables only, since full debug
# information would cost a third of the build's time and stack traces need
# no more.
set -euo pipefail
cd "$(dirname "$0")/.."
missing=()
for p in clang libclang-rt-14-dev; do dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p"); done
if ((${#missing[@]})); then
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq "${missing[@]}"
fi
CXX=clang++ cmake -S . -B build-san -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-gline-tables-only \
  -DTAMREL_FUZZ=ON >/dev/null
cmake --build build-san -j"$(nproc)"
