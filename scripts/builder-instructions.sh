#!/usr/bin/env bash
# Instructions per GenData call of every procedure's micro-benchmark, counted
# by callgrind (deterministic, unlike the timings on a shared machine), for
# one or two builds of tamrel_bench side by side:
#
#   scripts/builder-instructions.sh build-bench/bench/tamrel_bench [OTHER/tamrel_bench]
set -euo pipefail
benches=("$@")
count() {  # bench, benchmark name, generator class
    local out
    out=$(mktemp)
    valgrind --tool=callgrind --callgrind-out-file="$out" "$1" --benchmark_filter="BM_$2\$" \
        --benchmark_min_time=0.1 >/dev/null 2>&1
    python3 - "$out" "$3::GenData" <<'PY'
import re, sys
names, callee, calls, cost = {}, None, 0, 0
lines = open(sys.argv[1]).read().split("\n")
for i, l in enumerate(lines):
    m = re.match(r"c?fn=\((\d+)\)(?: (.*))?", l)
    if m:
        if m.group(2): names[m.group(1)] = m.group(2)
        if l.startswith("cfn="): callee = names.get(m.group(1), "")
    if l.startswith("calls=") and callee and sys.argv[2] in callee:
        calls += int(l.split("=")[1].split()[0])
        cost += int(lines[i + 1].split()[1])
print(cost // calls if calls else "-")
PY
    rm -f "$out"
}
printf '%-24s' procedure; for b in "${benches[@]}"; do printf '%14s' "$(basename "$(dirname "$(dirname "$b")")")"; done; echo
for pair in Meldung_Registration:clsGenMeldung BeitrNachw:clsGenBeitrNachw BeitrErh:clsGenBeitrErh Erst:clsGenErst \
    Zahl:clsGenZahl ArbeitsBesch:clsGenArbeitsBesch Entgelt:clsGenEntgelt Betrieb:clsGenBetrieb \
    AbfrVers:clsGenAbfrVers AbfrStammdatenUV:clsGenAbfrStammdatenUV Lohnnachweis:clsGenLohnnachweis; do
    printf '%-24s' "${pair%%:*}"
    for b in "${benches[@]}"; do printf '%14s' "$(count "$b" "${pair%%:*}" "${pair##*:}")"; done
    echo
done
