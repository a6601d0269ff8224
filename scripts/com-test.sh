#!/usr/bin/env bash
# Builds TamrelFile26.dll and the vtable test client for x86_64 and i686 with
# Debian's mingw-w64 (-posix) compilers and tests each under wine of its own
# width: registration; the scripting host's view of every class and of
# TamrelObj26's data objects (tests/com/generators.vbs, and
# examples/com/deuev-registration.vbs, a whole DEUEV file); every example's
# whole file and protocol through the client, compared byte for byte with
# `tamrel generate` (with the client's own data objects, and with
# TamrelObj26's); every example's file from a VBScript with TamrelObj26's
# objects (tests/com/job_to_vbs.py); error and test-answer replays against
# `tamrel call` (tests/com/replay.py); the log file; and unregistration.
# Each run uses its own WINEPREFIX under build-com/ and ends only its own
# wineserver. 32-bit wine is unpacked privately (never by enabling the i386
# architecture). Needs the Release build's tamrel.
# COM_BENCH=N also times N DEUEV registrations through the client, with its
# own data object (of no class, and of a class with type information) and
# with a TamrelObj26 one, and the cost of creating and
# filling a TamrelObj26 object from VBScript (tests/com/fill_cost.vbs).
set -euo pipefail
cd "$(dirname "$0")/.."
missing=()
for p in g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools libwine-dev wine wine64 libc6-i386 \
  nlohmann-json3-dev python3; do
  dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done
if ((${#missing[@]})); then
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq
  apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
jobs=$(nproc)
for arch in x86_64 i686; do
  cmake -S . -B build-com/$arch -DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE=cmake/mingw.cmake \
    -DTAMREL_WIN_ARCH=$arch >/dev/null
  # The server and the client only: the checks and the reader are not in the DLL.
  cmake --build build-com/$arch -j"$jobs" --target TamrelFile26 com_client
done

# What each DLL needs and offers: system DLLs only, the four server functions.
for arch in x86_64 i686; do
  dll=build-com/$arch/com/TamrelFile26.dll
  imports=$(${arch}-w64-mingw32-objdump -p "$dll" | sed -n 's/^\s*DLL Name: //p' | tr 'A-Z' 'a-z' | sort -u | tr '\n' ' ')
  [[ $imports == "advapi32.dll kernel32.dll msvcrt.dll ole32.dll oleaut32.dll " ]] ||
    { echo "com-test: $arch: unexpected imports: $imports" >&2; exit 1; }
  exports=$(${arch}-w64-mingw32-objdump -p "$dll" | sed -n '/\[Ordinal\/Name Pointer\] Table/,/^$/p' |
    sed -n 's/^\s*\[ *[0-9]*\] //p' | tr '\n' ' ')
  [[ $exports == "DllCanUnloadNow DllGetClassObject DllRegisterServer DllUnregisterServer " ]] ||
    { echo "com-test: $arch: unexpected exports: $exports" >&2; exit 1; }
done

# 32-bit wine, the same version as the installed 64-bit one, unpacked under
# build-com/wine32 with apt state of its own.
wine32_root() {
  local dir root version
  dir=$(realpath build-com)/wine32
  root=$dir/root
  if [[ ! -x $root/usr/lib/wine/wine ]]; then
    version=$(dpkg-query -W -f='${Version}' libwine)
    mkdir -p "$dir/lists/partial" "$dir/cache/archives/partial" "$dir/debs"
    local apt=(-o APT::Architectures::=i386 -o "Dir::State::Lists=$dir/lists" -o "Dir::Cache=$dir/cache"
      -o Debug::NoLocking=1)
    # One index (security's) may fail to load; the packages come from the main archive.
    apt-get "${apt[@]}" update -qq >/dev/null 2>&1 || true
    (cd "$dir/debs" && apt-get "${apt[@]}" download -qq "wine32:i386=$version" "libwine:i386=$version") >&2
    rm -rf "$root"
    for deb in "$dir"/debs/*.deb; do dpkg -x "$deb" "$root"; done
    # As libwine's install script does: zlib1.dll from libz-mingw-w64, marked as a wine builtin.
    local in=/usr/i686-w64-mingw32/lib/zlib1.dll
    {
      head -c 64 "$in"
      printf 'Wine builtin DLL'
      printf '\0%.0s' {1..16}
      tail -c +97 "$in"
    } >"$root/usr/lib/i386-linux-gnu/wine/i386-windows/zlib1.dll"
  fi
  echo "$root"
}

fail() { echo "com-test: $*" >&2; exit 1; }
win() { echo "Z:${1//\//\\}"; }

# Runs every test for one architecture: $1 the build folder's arch, $2 the
# wine loader, $3 WINEARCH.
test_arch() {
  local arch=$1 wine=$2 work
  work=$(realpath -m build-com/run-$arch)
  rm -rf "$work"
  mkdir -p "$work"
  (
    export WINEPREFIX=$work/prefix WINEARCH=$3 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" DISPLAY=
    export WINESERVER=/usr/lib/wine/wineserver
    trap '/usr/lib/wine/wineserver -k 2>/dev/null || true' EXIT
    "$wine" wineboot -i >/dev/null 2>&1
    cp build-com/$arch/com/TamrelFile26.dll build-com/$arch/tests/com/client/com_client.exe "$work/"

    # The expected values, from the command line's call protocol.
    build/tamrel call tests/com/frames.ndjson | python3 -c '
import json, sys
lines = ["%d\t%s" % (i + 1, json.loads(l)["result"]) for i, l in enumerate(sys.stdin)]
lines += ["firma1\tFirma M\u00fcller", "firma3\tLohnb\u00fcro S\u00fcd",
          "lacks\tObjekt unterst\u00fctzt diese Eigenschaft oder Methode nicht: Laufnummer"]
sys.stdout.buffer.write(("\ufeff" + "\r\n".join(lines) + "\r\n").encode("utf-16-le"))
' >"$work/expected.txt"

    "$wine" regsvr32 /s "$(win "$work/TamrelFile26.dll")" 2>/dev/null || fail "$arch: regsvr32 failed"
    # Every key the server owns: its ProgIDs and the identifiers of its type library.
    ours() {
      "$wine" regedit /E "$(win "$work/classes.reg")" HKEY_CLASSES_ROOT 2>/dev/null
      iconv -f UTF-16 -t UTF-8 "$work/classes.reg" | grep '^\[' |
        grep -i -F -e TamrelFile26 -e TamrelObj26 $(grep -o -i -E '[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}' \
          com/TamrelFile26.idl com/TamrelObj26.idl | sed 's/^[^:]*://; s/^/-e /') || true
    }
    registered=$(ours | wc -l)
    # The generator classes (14) and the data objects (49), with their ProgIDs.
    ((registered >= 14 * 3 + 3 + 49 * 6)) || fail "$arch: only $registered keys registered"
    # Every member of every data object's dual interface against late binding.
    # Typed calls as a compiled host makes them.
    "$wine" "$work/com_client.exe" interfaces 2>&1 | tr -d '\r' >"$work/interfaces.out" || true
    grep -q "^[0-9]* properties of 49 classes set through their interfaces and read back by name$" \
      "$work/interfaces.out" || fail "$arch: the data objects' interfaces: $(cat "$work/interfaces.out")"
    grep -q "^typed calls through .*, as a compiled host sees them$" "$work/interfaces.out" ||
      fail "$arch: typed calls through the data objects' interfaces: $(cat "$work/interfaces.out")"
    # A host's objects of a class with type information: each name asked once.
    "$wine" "$work/com_client.exe" lookups "$(win "$PWD/examples/deuev-registration.json")" 2>&1 | tr -d '\r' \
      >"$work/lookups.out" || true
    local once="[1-9][0-9]* for the first of a class, 0 for 10 more"
    grep -q "^name lookups: [1-9][0-9]* for 10 reports of objects of no class, $once$" "$work/lookups.out" ||
      fail "$arch: dispatch ids are not kept by class: $(cat "$work/lookups.out")"
    grep -q "^records that differ from the first: 0 of 21$" "$work/lookups.out" ||
      fail "$arch: objects of a class give other records: $(cat "$work/lookups.out")"
    export TAMREL_LOG
    TAMREL_LOG=$(win "$work/tamrel.log")
    "$wine" cscript //nologo "$(win "$PWD/tests/com/generators.vbs")" "$(win "$work/expected.txt")" 2>/dev/null |
      tr -d '\r' | tee "$work/generators.out"
    grep -q "^END OF GENERATOR TESTS$" "$work/generators.out" || fail "$arch: the script did not run to its end"
    grep -q "^[0-9]* passed, 0 failed$" "$work/generators.out" || fail "$arch: script checks failed"
    # The failing read logged one line naming the object.
    grep -q "^Fehler -2146827850 in TamrelFile26 [0-9.]* (Zeile 0): objMeldung -> Objekt unterst" "$work/tamrel.log" ||
      fail "$arch: no log line for the failing read"

    # The scripting example runs to its error line.
    "$wine" cscript //nologo "$(win "$PWD/examples/com/deuev-registration.vbs")" 2>/dev/null | tr -d '\r' \
      >"$work/example.out"
    grep -q '^error 91 (objMeldung): Objektvariable nicht festgelegt$' "$work/example.out" ||
      fail "$arch: examples/com/deuev-registration.vbs did not run to its end"
    grep -q '^DSMEDEUEV98765432' "$work/example.out" ||
      fail "$arch: examples/com/deuev-registration.vbs wrote no DSME record"

    # Every example's whole file and protocol, through the vtable.
    local n ex
    for ex in examples/*.json; do
      n=$(basename "$ex" .json)
      "$wine" "$work/com_client.exe" generate "$(win "$PWD/$ex")" "$(win "$work/$n.txt")" "$(win "$work/$n.proto")" \
        2>/dev/null || fail "$arch: $n: the client failed"
      if [[ $n == xml-* ]]; then
        build/tamrel generate "$ex" -o "$work/$n.want" 2>/dev/null
        : >"$work/$n.want-proto"
      else
        build/tamrel generate "$ex" -o "$work/$n.want" --protocol "$work/$n.want-proto" 2>/dev/null
      fi
      cmp -s "$work/$n.txt" "$work/$n.want" || fail "$arch: $n: the file differs from tamrel generate's"
      cmp -s "$work/$n.proto" "$work/$n.want-proto" || fail "$arch: $n: the protocol differs from tamrel generate's"
      # The same reports in TamrelObj26's data objects, filled through IDispatch.
      "$wine" "$work/com_client.exe" objects "$(win "$PWD/$ex")" "$(win "$work/$n.obj.txt")" \
        "$(win "$work/$n.obj.proto")" || fail "$arch: $n: the client failed with data objects"
      cmp -s "$work/$n.obj.txt" "$work/$n.want" || fail "$arch: $n: with data objects, the file differs"
      cmp -s "$work/$n.obj.proto" "$work/$n.want-proto" || fail "$arch: $n: with data objects, the protocol differs"
      # The same, the data objects filled through their dual interfaces.
      "$wine" "$work/com_client.exe" objects-early "$(win "$PWD/$ex")" "$(win "$work/$n.early.txt")" \
        "$(win "$work/$n.early.proto")" || fail "$arch: $n: the client failed filling data objects early bound"
      cmp -s "$work/$n.early.txt" "$work/$n.want" || fail "$arch: $n: with early-bound data objects, the file differs"
      # The whole file again from a script with no class of its own, every call
      # late bound: the objects filled property by property, and by LoadJson
      # of the report with a round trip through ToJson. Each object's ToJson()
      # is its report.
      local how
      for how in "" --json; do
        python3 tests/com/job_to_vbs.py "$ex" $how >"$work/$n.vbs"
        TAMREL_NOW=$(python3 -c 'import json, sys; print(json.load(open(sys.argv[1])).get("now", ""))' "$ex") \
          "$wine" cscript //nologo "$(win "$work/$n.vbs")" "$(win "$work/$n.vbs.out")" "$(win "$work/$n.vbs.json")" \
          2>/dev/null | tr -d '\r' |
          grep -q "^END OF FILE$" || fail "$arch: $n: the script (${how:-properties}) did not run to its end"
        iconv -f UTF-16 -t ISO-8859-1 "$work/$n.vbs.out" | tr -d '\r' | cmp -s - "$work/$n.want" ||
          fail "$arch: $n: from a script (${how:-properties}), the file differs"
        python3 tests/com/same_reports.py "$ex" "$work/$n.vbs.json" ||
          fail "$arch: $n: from a script (${how:-properties}), ToJson() is not the report"
      done
    done
    echo "com-test: $arch: $(ls examples/*.json | wc -l) example files and protocols identical to tamrel generate's," \
      "from the client's objects and from TamrelObj26's (late and early bound), and the files from VBScript with each" \
      "ToJson() its report"
    python3 tests/com/replay.py build/tamrel "$work" "$wine" "$work/com_client.exe" || fail "$arch: replay failed"
    if [[ -n ${COM_BENCH:-} ]]; then
      for mode in bench bench-typed bench-objects; do
        "$wine" "$work/com_client.exe" $mode "$(win "$PWD/examples/deuev-registration.json")" "$COM_BENCH" 2>/dev/null
      done
      "$wine" cscript //nologo "$(win "$PWD/tests/com/fill_cost.vbs")" 3000 2>/dev/null | tr -d '\r'
    fi

    "$wine" regsvr32 /s /u "$(win "$work/TamrelFile26.dll")" 2>/dev/null || fail "$arch: regsvr32 /u failed"
    left=$(ours)
    [[ -z $left ]] || fail "$arch: regsvr32 /u left keys behind: $left"
    cat >"$work/gone.vbs" <<'VBS'
On Error Resume Next
Set g = CreateObject("TamrelFile26.clsGenMeldung")
WScript.Echo "after unregistering: " & Err.Number
VBS
    "$wine" cscript //nologo "$(win "$work/gone.vbs")" 2>/dev/null | tr -d '\r' |
      grep -q "^after unregistering: 429$" || fail "$arch: a class can still be created after unregistering"
    echo "com-test: $arch server passed"
  )
}

test_arch x86_64 /usr/lib/wine/wine64 win64
test_arch i686 "$(wine32_root)/usr/lib/wine/wine" win32
