#!/usr/bin/env bash
# Fails when an include runs back up the layers. From the bottom:
#   core                                   the field encoders, the generator base, the frame records
#   reports certificates queries xml       the procedures, side by side: each class folder
#                                          includes core and itself
#   protocol checks                        the protocol lines and the checks, over the procedures' data objects
#   component                              the JSON layer: descriptors, call protocol, report runner
#   cli                                    the command line
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"

rank() {
  case "$1" in
    core) echo 0 ;;
    reports | certificates | queries | xml) echo 1 ;;
    protocol | checks) echo 2 ;;
    component) echo 3 ;;
    cli) echo 4 ;;
    *) echo 9 ;;
  esac
}

status=0
while IFS= read -r file; do
  layer=${file%%/*}
  own=$(rank "$layer")
  folder=$(dirname "$file")
  while IFS= read -r target; do
    top=${target%%/*}
    r=$(rank "$top")
    ((r == 9)) && continue # the build's generated headers and the like
    if ((r > own)); then
      echo "$file: includes $target, a layer above it" >&2
      status=1
    elif ((own == 1 && r == 1)) && [[ $(dirname "$target") != "$folder" ]]; then
      echo "$file: includes $target, another procedure's folder" >&2
      status=1
    fi
  done < <(sed -n 's/^#include "\([^"]*\)".*/\1/p' "$file")
done < <(find core reports certificates queries xml protocol checks component cli -name '*.h' -o -name '*.cpp' | sort)
exit $status
