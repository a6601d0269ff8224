#!/usr/bin/env bash
# Installs the built library into a fresh prefix and builds the consumers of
# examples/library against it: the C program through pkg-config (shared and
# static), the C++ program through find_package; each must run and write
# the records it should, and Python imports the installed module. Then the
# Debian packages are made and listed.
# Usage: scripts/install-test.sh BUILD_DIR
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
work=$(mktemp -d "$PWD/$build/install-test.XXXXXX")
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" >/dev/null
libdir=$(dirname "$(find "$prefix" -name tamrel.pc)")/..
export PKG_CONFIG_PATH=$libdir/pkgconfig

# C, through pkg-config: the shared library, then the static one.
cc -Wall -Werror examples/library/c/generate.c $(pkg-config --cflags --libs tamrel) -o "$work/generate"
LD_LIBRARY_PATH=$libdir "$work/generate" examples/deuev-registration.json >"$work/c.txt" 2>/dev/null
cc -Wall -Werror examples/library/c/generate.c $(pkg-config --cflags tamrel) -o "$work/generate-static" \
  "$libdir/libtamrel.a" $(pkg-config --static --libs-only-l tamrel | sed 's/-ltamrel//')
"$work/generate-static" examples/deuev-registration.json >"$work/c-static.txt" 2>/dev/null
build/tamrel generate examples/deuev-registration.json -o "$work/cli.txt" --encoding UTF-8 2>/dev/null
tail -n +3 "$work/c.txt" | cmp - "$work/cli.txt"
cmp "$work/c.txt" "$work/c-static.txt"
grep -q '^{"result":"NCSZ' "$work/c.txt"

# C++, through find_package(tamrel).
cmake -S examples/library/cpp -B "$work/cpp" -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cpp" >/dev/null
LD_LIBRARY_PATH=$libdir "$work/cpp/registration" >"$work/cpp.txt"
[ "$(wc -l <"$work/cpp.txt")" -eq 4 ] && grep -q '^DSMEDEUEV98765432' "$work/cpp.txt"

# Python, from the installed module.
PYTHONPATH=$(dirname "$(find "$prefix" -path '*/tamrel/_library.py')")/.. python3 -c \
  'import tamrel, sys; sys.exit(tamrel.version() != "1.0.0")'

# Only the C interface and the C++ API leave the shared library.
extra=$(nm -D --defined-only "$libdir"/libtamrel.so | c++filt | grep -vE ' (tamrel_|tamrel::|typeinfo|vtable|TAMREL_1)' || true)
if [ -n "$extra" ]; then
  echo "install-test: libtamrel.so exports more than its interface:" >&2
  echo "$extra" | head >&2
  exit 1
fi
objdump -p "$libdir"/libtamrel.so | grep -q 'SONAME *libtamrel.so.1$'

# The Debian packages.
(cd "$build" && cpack -G DEB -B "$work/deb" >/dev/null)
dpkg-deb -c "$work"/deb/tamrel_*.deb | grep 'usr/bin/tamrel$' >/dev/null
dpkg-deb -c "$work"/deb/libtamrel-dev_*.deb | grep 'usr/include/tamrel/c_api.h$' >/dev/null
echo "install-test: C (shared, static), C++ and Python consumers built and run; packages tamrel and libtamrel-dev made"
