#!/usr/bin/env bash
# What the build's layers cannot say: the procedures share one layer
# (reports, certificates, queries, xml), yet each generator class's folder
# includes only core and itself, never another class's folder. Every other
# include rule is the targets' own (cmake/layers.cmake).
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"
status=0
while IFS= read -r file; do
  folder=$(dirname "$file")
  while IFS= read -r target; do
    case ${target%%/*} in
      reports | certificates | queries | xml)
        if [[ $(dirname "$target") != "$folder" ]]; then
          echo "$file: includes $target, another procedure's folder" >&2
          status=1
        fi
        ;;
    esac
  done < <(sed -n 's/^#include "\([^"]*\)".*/\1/p' "$file")
done < <(find reports certificates queries xml -name '*.h' -o -name '*.cpp' | sort)
exit $status
