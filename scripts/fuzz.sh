#!/usr/bin/env bash
# Builds the fuzzers with clang under AddressSanitizer and
# UndefinedBehaviorSanitizer, replays the saved regression inputs, then runs
# each fuzzer from its seed corpus for FUZZ_SECONDS (default 60). A crash,
# sanitizer report or broken invariant fails the run; libFuzzer leaves the
# input in build-fuzz/findings/.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${FUZZ_SECONDS:-60}
missing=()
for p in clang libclang-rt-14-dev; do dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p"); done
if ((${#missing[@]})); then
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq "${missing[@]}"
fi
CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTAMREL_TESTS=OFF -DTAMREL_FUZZ=ON >/dev/null
cmake --build build-fuzz -j"$(nproc)" --target fuzz_call_line fuzz_generate_job fuzz_encoders fuzz_report_line fuzz_read_file
rm -rf build-fuzz/findings  # what an earlier run found is not this run's finding
mkdir -p build-fuzz/findings
for harness in call_line generate_job encoders report_line read_file; do
  exe=build-fuzz/tests/fuzz/fuzz_$harness
  regressions=(tests/fuzz/regressions/$harness/*)
  if [[ -e ${regressions[0]} ]]; then
    echo "== $harness: ${#regressions[@]} regression inputs"
    "$exe" -rss_limit_mb=2048 "${regressions[@]}" 2>&1 | grep -c "^Executed"
  fi
  corpus=build-fuzz/corpus/$harness
  mkdir -p "$corpus"
  seeds=()
  [[ -d tests/fuzz/corpus/$harness ]] && seeds=(tests/fuzz/corpus/$harness)
  echo "== $harness: fuzzing for $seconds s"
  "$exe" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=8192 -print_final_stats=1 \
    -artifact_prefix=build-fuzz/findings/$harness- "$corpus" "${seeds[@]}" 2>&1 | grep -E "^(stat::number_of_executed_units|stat::new_units_added|==|SUMMARY|invariant)" || true
  # libFuzzer's exit status is lost in the pipe: a finding leaves an artifact.
  if compgen -G "build-fuzz/findings/$harness-*" >/dev/null; then
    echo "fuzz_$harness found a failing input:" build-fuzz/findings/$harness-*
    exit 1
  fi
done
