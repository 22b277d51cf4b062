#!/usr/bin/env bash
# Installs the library of a build directory into a folder of its own and builds a small program against it
# three ways: CMake with the shared and the static library, and pkg-config. Looks whether the built files are
# hardened, and at the data for the desktop.
set -euo pipefail
Bau=$(realpath "$1")
Hier=$(dirname "$(realpath "$0")")
Probe=$(mktemp -d)
trap 'rm -rf "$Probe"' EXIT

cmake --install "$Bau" --component dev --prefix "$Probe/paket" >/dev/null
cp "$Hier/CMakeLists.txt" "$Hier/fremd.cpp" "$Probe"
cmake -S "$Probe" -B "$Probe/bau" -G Ninja -DCMAKE_PREFIX_PATH="$Probe/paket" >/dev/null
cmake --build "$Probe/bau" >/dev/null
Pc=$(find "$Probe/paket" -name pkgconfig)
# shellcheck disable=SC2046  # the flags are words of their own
g++ -std=c++20 "$Probe/fremd.cpp" -o "$Probe/pkg" $(PKG_CONFIG_PATH="$Pc" pkg-config --cflags --libs tavorena)

"$Probe/bau/gemeinsam"
"$Probe/bau/statisch"
LD_LIBRARY_PATH=$(dirname "$Pc") "$Probe/pkg"

# Position independent, all relocations read-only, stack protector. Checked calls of the C library leave no trace
# where the compiler proves that none is needed: the commands of the build tell them.
for Datei in "$(dirname "$Pc")/libtavorena.so" "$Bau"/python/tavorena*.so "$Bau/tavorena/console/tavorena-stapel" \
  "$Bau/tavorena/desktop/tavorena"; do
  [ -e "$Datei" ] || continue
  readelf -hldW --dyn-syms "$Datei" >"$Probe/elf"
  for Zeichen in 'Type: *DYN' GNU_RELRO BIND_NOW __stack_chk_fail; do
    grep -q "$Zeichen" "$Probe/elf" || { echo "$Datei: $Zeichen fehlt" >&2; exit 1; }
  done
done
if grep '"command": .*/tavorena/.*\.cpp' "$Bau/compile_commands.json" | grep -v -e '-D_FORTIFY_SOURCE=2' >&2; then
  exit 1
fi

Daten=$Hier/../../packaging
appstreamcli validate --no-net "$Daten/tavorena.metainfo.xml" >/dev/null
Haupt=$(grep '^Categories=' "$Daten/tavorena.desktop" | tr '=;' '\n\n' | grep -cxE \
  'AudioVideo|Development|Education|Game|Graphics|Network|Office|Science|Settings|System|Utility')
[ "$Haupt" -eq 1 ] || { echo "tavorena.desktop: $Haupt Hauptkategorien" >&2; exit 1; }
