#!/usr/bin/env bash
# Builds tamrel in Release with profile-guided optimization: an instrumented
# build (in BUILD_DIR-training) runs a training workload, then BUILD_DIR is
# built with the profile it left. Both folders are kept, so that a second
# run builds only what changed.
#
#   scripts/profiled-build.sh BUILD_DIR [CMAKE_ARGS...]
#
# The training: the micro-benchmarks (every procedure's GenData, the
# encoders, the report readers, the calls) for a moment each, and generated
# DEUEV reports through `tamrel generate`, `tamrel check`, `tamrel read` and
# `tamrel call`.
# Few processes, each doing much: the compiler takes code that ran in fewer
# than one in twenty of the training's processes for cold, and optimizes it
# for size.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:?usage: scripts/profiled-build.sh BUILD_DIR [CMAKE_ARGS...]}
shift
jobs=$(nproc)
n=${TAMREL_TRAINING_REPORTS:-40000}

training="$build-training"
mkdir -p "$build"
profile="$(cd "$build" && pwd)/profile"
cmake -S . -B "$training" -DCMAKE_BUILD_TYPE=Release -DTAMREL_BENCH=ON -DTAMREL_TESTS=OFF "$@" \
    -DTAMREL_PROFILE=generate -DTAMREL_PROFILE_DIR="$profile" >/dev/null
cmake --build "$training" -j"$jobs" --target tamrel tamrel_bench make_reports
rm -rf "$profile"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$training/bench/tamrel_bench" --benchmark_min_time=0.05 >/dev/null
"$training/tamrel" call examples/requests.ndjson >/dev/null
"$training/bench/make_reports" "$n" "$work"
"$training/tamrel" generate "$work/job.json" -o "$work/out.txt" 2>/dev/null
"$training/tamrel" check "$work/out.txt" >/dev/null
"$training/tamrel" read "$work/out.txt" --reports-out "$work/read.ndjson" -o "$work/read.json" 2>/dev/null
# The same reports as GenData calls, as a payroll program sends them.
sed -e 's/^/{"class":"clsGenMeldung","method":"GenData","now":"2024-03-01T10:11:12","args":{"objMeldung":/' \
    -e 's/$/,"udtDatensatzData":{"strBNRAb":"98765432","strVersion":"BENCH","strMicroseconds":"1","strProdID":"TAMREL1","strModID":"BENCH01"},"enmVerfahren":"vmNormal","datDate":"2024-03-01T10:11:12"}}/' \
    "$work/reports.ndjson" >"$work/calls.ndjson"
"$training/tamrel" call "$work/calls.ndjson" >/dev/null

cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DTAMREL_BENCH=ON "$@" \
    -DTAMREL_PROFILE=use -DTAMREL_PROFILE_DIR="$profile" >/dev/null
cmake --build "$build" -j"$jobs"
