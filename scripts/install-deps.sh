#!/usr/bin/env bash
# Installs what building and testing tamrel needs (Debian 12, as root).
set -euo pipefail

missing=()
for p in g++ cmake make pkg-config dpkg-dev binutils python3 nlohmann-json3-dev libsimdjson-dev libutf8proc-dev libcli11-dev libgtest-dev libgmock-dev libbenchmark-dev libxml2-dev libxml2-utils; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if ((${#missing[@]})); then
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq "${missing[@]}"
fi

