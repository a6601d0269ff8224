#!/usr/bin/env bash
# Installs, builds and generates a real DEUEV transfer file from the example
# job; prints where it went and its first lines.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build build -j"$(nproc)" --target tamrel
mkdir -p out
build/tamrel generate examples/deuev-registration.json -o out/deuev-registration.txt --protocol out/deuev-registration.prot
echo "Transfer file: out/deuev-registration.txt ($(wc -l < out/deuev-registration.txt) records, ISO-8859-1)"
cut -c1-120 out/deuev-registration.txt
