#!/usr/bin/env bash
# Builds TamrelFile26.dll for x86_64 and i686 with Debian's mingw-w64 (-posix)
# compilers and tests the x86_64 server under wine: registration, the
# scripting host's view of every class (tests/com/*.vbs, against the
# command line's results), the log file, and unregistration. Each run uses
# its own WINEPREFIX under build-com/ and ends only its own wineserver.
# Needs the Release build's tamrel (build/tamrel) for the expected records.
set -euo pipefail
cd "$(dirname "$0")/.."
missing=()
for p in g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools libwine-dev wine wine64 python3; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if ((${#missing[@]})); then
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
jobs=$(nproc)
for arch in x86_64 i686; do
  cmake -S . -B build-com/$arch -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=cmake/mingw.cmake -DTAMREL_WIN_ARCH=$arch >/dev/null
  cmake --build build-com/$arch -j"$jobs"
done

work=$(realpath build-com/run64)
rm -rf "$work"
mkdir -p "$work"
export WINEPREFIX=$work/prefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" DISPLAY=
wine=/usr/lib/wine/wine64
trap 'WINEPREFIX=$WINEPREFIX /usr/lib/wine/wineserver -k 2>/dev/null || true' EXIT
$wine wineboot -i >/dev/null 2>&1
cp build-com/x86_64/component/com/TamrelFile26.dll "$work/"
win() { echo "Z:${1//\//\\}"; }

# The expected values, from the command line's call protocol.
build/tamrel call tests/com/frames.ndjson | python3 -c '
import json, sys
lines = ["%d\t%s" % (i + 1, json.loads(l)["result"]) for i, l in enumerate(sys.stdin)]
lines += ["firma1\tFirma M\u00fcller", "firma3\tLohnb\u00fcro S\u00fcd",
          "lacks\tObjekt unterst\u00fctzt diese Eigenschaft oder Methode nicht: Laufnummer"]
sys.stdout.buffer.write(("\ufeff" + "\r\n".join(lines) + "\r\n").encode("utf-16-le"))
' >"$work/expected.txt"

fail() { echo "com-test: $*" >&2; exit 1; }
$wine regsvr32 /s "$(win "$work/TamrelFile26.dll")" || fail "regsvr32 failed"
export TAMREL_LOG
TAMREL_LOG=$(win "$work/tamrel.log")
WINEDLLOVERRIDES="mscoree,mshtml=" $wine cscript //nologo "$(win "$PWD/tests/com/generators.vbs")" \
  "$(win "$work/expected.txt")" | tr -d '\r' | tee "$work/generators.out"
grep -q "^END OF GENERATOR TESTS$" "$work/generators.out" || fail "the script did not run to its end"
grep -q "^[0-9]* passed, 0 failed$" "$work/generators.out" || fail "checks failed"
# The failing read logged one line naming the object.
grep -q "^Fehler -2146827850 in TamrelFile26 [0-9.]* (Zeile 0): objMeldung -> Objekt unterst" "$work/tamrel.log" ||
  fail "no log line for the failing read"

$wine regsvr32 /s /u "$(win "$work/TamrelFile26.dll")" || fail "regsvr32 /u failed"
cat >"$work/gone.vbs" <<'VBS'
On Error Resume Next
Set g = CreateObject("TamrelFile26.clsGenMeldung")
WScript.Echo "after unregistering: " & Err.Number
VBS
$wine cscript //nologo "$(win "$work/gone.vbs")" | tr -d '\r' | grep -q "^after unregistering: 429$" ||
  fail "a class can still be created after unregistering"
echo "com-test: x86_64 server passed"
