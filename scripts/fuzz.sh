#!/usr/bin/env bash
# Builds the fuzzers with clang under AddressSanitizer and
# UndefinedBehaviorSanitizer (scripts/sanitizer-build.sh), replays the saved
# regression inputs, then runs each fuzzer from its seed corpus for
# FUZZ_SECONDS (default 60). A crash, sanitizer report or broken invariant
# fails the run; libFuzzer leaves the input in build-san/findings/.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${FUZZ_SECONDS:-60}
scripts/sanitizer-build.sh
rm -rf build-san/findings  # what an earlier run found is not this run's finding
mkdir -p build-san/findings
for harness in call_line generate_job encoders report_line read_file; do
  exe=build-san/tests/fuzz/fuzz_$harness
  regressions=(tests/fuzz/regressions/$harness/*)
  if [[ -e ${regressions[0]} ]]; then
    echo "== $harness: ${#regressions[@]} regression inputs"
    "$exe" -rss_limit_mb=2048 "${regressions[@]}" 2>&1 | grep -c "^Executed"
  fi
  corpus=build-san/corpus/$harness
  mkdir -p "$corpus"
  seeds=()
  [[ -d tests/fuzz/corpus/$harness ]] && seeds=(tests/fuzz/corpus/$harness)
  echo "== $harness: fuzzing for $seconds s"
  "$exe" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=8192 -print_final_stats=1 \
    -artifact_prefix=build-san/findings/$harness- "$corpus" "${seeds[@]}" 2>&1 | grep -E "^(stat::number_of_executed_units|stat::new_units_added|==|SUMMARY|invariant)" || true
  # libFuzzer's exit status is lost in the pipe: a finding leaves an artifact.
  if compgen -G "build-san/findings/$harness-*" >/dev/null; then
    echo "fuzz_$harness found a failing input:" build-san/findings/$harness-*
    exit 1
  fi
done
