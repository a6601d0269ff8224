#!/usr/bin/env bash
# Runs every benchmark in the profile-guided Release build: the
# micro-benchmarks (encoders, frames, GenData of every procedure, protocol
# lines, calls), then the end-to-end run: N DEUEV reports (default 1,000,000)
# as NDJSON through `tamrel generate` into an ISO-8859-1 file, with
# reports/s, output MB/s and peak resident memory from the operating
# system's accounting; then the file read back by `tamrel read`.
set -euo pipefail
cd "$(dirname "$0")/.."
n=${1:-1000000}
scripts/install-deps.sh
dpkg -s time >/dev/null 2>&1 || { apt-get update -qq && apt-get install -y -qq time; }
scripts/profiled-build.sh build-bench -DTAMREL_TESTS=OFF
build-bench/bench/tamrel_bench --benchmark_min_time=0.5
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
build-bench/bench/make_reports "$n" "$work"
/usr/bin/time -v -o "$work/time.txt" build-bench/tamrel generate "$work/job.json" -o "$work/out.txt"
secs=$(grep 'Elapsed (wall clock)' "$work/time.txt" | awk '{print $NF}' | awk -F: '{ if (NF==3) print $1*3600+$2*60+$3; else print $1*60+$2 }')
rss=$(grep 'Maximum resident set size' "$work/time.txt" | awk '{print $NF}')
bytes=$(stat -c %s "$work/out.txt")
awk -v n="$n" -v s="$secs" -v b="$bytes" -v r="$rss" 'BEGIN {
  printf "end to end: %d reports in %.2f s: %.0f reports/s, %.1f MB/s output, peak RSS %.1f MiB\n", n, s, n / s, b / s / 1e6, r / 1024 }'
# The file read back: tamrel read proves each report by building it again.
/usr/bin/time -v -o "$work/read.txt" build-bench/tamrel read "$work/out.txt" --reports-out "$work/read.ndjson" -o "$work/read.json"
secs=$(grep 'Elapsed (wall clock)' "$work/read.txt" | awk '{print $NF}' | awk -F: '{ if (NF==3) print $1*3600+$2*60+$3; else print $1*60+$2 }')
rss=$(grep 'Maximum resident set size' "$work/read.txt" | awk '{print $NF}')
awk -v n="$n" -v s="$secs" -v b="$bytes" -v r="$rss" 'BEGIN {
  printf "read back: %d reports in %.2f s: %.1f MB/s input, peak RSS %.1f MiB\n", n, s, b / s / 1e6, r / 1024 }'
