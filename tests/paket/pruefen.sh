#!/usr/bin/env bash
# pruefen.sh FOLDER [PROGRAM ...]: installs the library of a build directory into a folder of its own and builds a
# program of somebody else against it. Looks whether the built files and those programs are hardened and all tell the one
# version, and at the data for the desktop.
set -euo pipefail
Bau=$(realpath "$1")
shift
Hier=$(dirname "$(realpath "$0")")
Probe=$(mktemp -d)
trap 'rm -rf "$Probe"' EXIT

cmake --install "$Bau" --component dev --prefix "$Probe/paket" >/dev/null
Pc=$(find "$Probe/paket" -name pkgconfig)
CMAKE_PREFIX_PATH=$Probe/paket PKG_CONFIG_PATH=$Pc LD_LIBRARY_PATH=$(dirname "$Pc") "$Hier/fremd.sh"

# No folder of the build inside, position independent, all relocations read-only, stack protector. Checked calls of the C
# library leave no trace where the compiler proves that none is needed: the commands of the build tell them.
for Datei in "$(dirname "$Pc")/libtavorena.so" "$Bau"/python/tavorena*.so "$@"; do
  readelf -hldW --dyn-syms "$Datei" >"$Probe/elf"
  if grep -qaF "$(realpath "$Hier/../..")" "$Datei"; then
    echo "$Datei: der Ordner steht darin" >&2
    exit 1
  fi
  for Zeichen in 'Type: *DYN' GNU_RELRO BIND_NOW __stack_chk_fail; do
    grep -q "$Zeichen" "$Probe/elf" || { echo "$Datei: $Zeichen fehlt" >&2; exit 1; }
  done
done
if grep '"command": .*/tavorena/.*\.cpp' "$Bau/compile_commands.json" | grep -v -e '-D_FORTIFY_SOURCE=2' >&2; then
  exit 1
fi

# One version: whatever tells it has it from the project, debian/changelog repeats it, and nothing else names it.
Wurzel=$Hier/../..
Fassung=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$Bau/CMakeCache.txt")
Datum=$(sed -n 's/^set(TAVORENA_DATUM \([-0-9]*\)).*/\1/p' "$Wurzel/CMakeLists.txt")
gleich() { [ "$2" = "$3" ] || { echo "$1: \"$2\" statt \"$3\"" >&2; exit 1; }; }
gleich "debian/changelog" "$(sed -n '1s/.*(\(.*\)).*/\1/p' "$Wurzel/debian/changelog")" "$Fassung"
gleich "debian/changelog" "$(date -ud "$(sed -n '0,/^ -- /s/^ -- .*>  //p' "$Wurzel/debian/changelog")" +%F)" "$Datum"
for Programm in "$@"; do
  gleich "--version" "$("$Programm" --version)" "${Programm##*/} $Fassung"
done
gleich "__version__" "$(PYTHONPATH=$Bau/python /usr/bin/python3 -c 'import tavorena; print(tavorena.__version__)')" "$Fassung"
gleich "pkg-config" "$(PKG_CONFIG_PATH=$Pc pkg-config --modversion tavorena)" "$Fassung"
for Datei in "$Bau"/packaging/tavorena{.1,-stapel.1,.3,.metainfo.xml}; do
  grep -q "Tavorena $Fassung\|version=\"$Fassung\"" "$Datei" && grep -q "\"$Datum\"" "$Datei" ||
    { echo "$Datei: nicht $Fassung vom $Datum" >&2; exit 1; }
done
if git -C "$Wurzel" grep -nwF "$Fassung" -- :/ ':!/CMakeLists.txt' ':!/CHANGELOG.md' ':!/debian/changelog' \
  ':!/debian/*.symbols' >&2; then
  echo "Die Fassung steht in CMakeLists.txt." >&2
  exit 1
fi

Daten=$Wurzel/packaging
appstreamcli validate --no-net "$Bau/packaging/tavorena.metainfo.xml" >/dev/null
Haupt=$(grep '^Categories=' "$Daten/tavorena.desktop" | tr '=;' '\n\n' | grep -cxE \
  'AudioVideo|Development|Education|Game|Graphics|Network|Office|Science|Settings|System|Utility')
[ "$Haupt" -eq 1 ] || { echo "tavorena.desktop: $Haupt Hauptkategorien" >&2; exit 1; }
