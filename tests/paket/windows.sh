#!/usr/bin/env bash
# The programs for Windows as they are handed over: that they start without any further DLL, that the library
# offers the class TA and nothing else, that a program of somebody else works with it, and that jobs come out
# with the same bytes as on this system.
#   windows.sh [cross-build] [tavorena-stapel of this system]
set -euo pipefail
hier=$(dirname "$(realpath "$0")")
bau=$(realpath "$1")
linux=$(realpath "$2")
exe=$bau/tavorena/console/tavorena-stapel.exe
dll=$(find "$bau/packaging" -name '*tavorena*.dll')
wine=$hier/../../scripts/wine.sh
probe=$(mktemp -d)
trap 'rm -rf "$probe"' EXIT

for datei in "$exe" "$dll"; do
  x86_64-w64-mingw32-objdump -p "$datei" >"$probe/pe"
  fremd=$(sed -n 's/.*DLL Name: //p' "$probe/pe" | grep -viE '^(kernel32|user32|gdi32|msimg32|advapi32|shell32|ole32|msvcrt)\.dll$' || true)
  [ -z "$fremd" ] || { echo "$datei braucht $fremd" >&2; exit 1; }
done
sed -n '/\[Ordinal\/Name Pointer\]/,/^$/s/^[\t ]*\[[ 0-9]*\] *//p' "$probe/pe" >"$probe/namen"
grep -q '^_ZN8tavorena2TA10PolarpunktE' "$probe/namen"
if grep -vE '^_ZZ?NK?8tavorena2TA' "$probe/namen" >&2; then exit 1; fi

cmake --install "$bau" --component dev --prefix "$probe/paket" >/dev/null
cp "$hier/CMakeLists.txt" "$hier/fremd.cpp" "$probe"
cmake -S "$probe" -B "$probe/bau" -G Ninja --toolchain "$hier/../../cmake/mingw.cmake" \
  -DTavorena_DIR="$(dirname "$(find "$probe/paket" -name TavorenaConfig.cmake)")" >/dev/null
cmake --build "$probe/bau" >/dev/null
cp "$(find "$probe/paket" -name '*tavorena*.dll')" "$probe/bau"
for fremdes in gemeinsam statisch; do
  "$wine" "$probe/bau/$fremdes.exe" >/dev/null || { echo "$fremdes.exe: Status $?" >&2; exit 1; }
done

# The jobs, in a folder each; what the clock tells is taken out.
auftrag() {
  mkdir "$probe/$1"
  cp "$hier"/../../examples/*.{kor,sta,gsi} "$probe/$1"
  cd "$probe/$1"
  shift
  "$@" --koordinaten musterdorf.kor --protokoll m.dru --pdf m.pdf --speichern m.kor musterdorf.sta >aus
  "$@" stationieren tag.gsi --koordinaten musterdorf.kor --art helmert --standpunkt orientierung \
    --protokoll t.dru --stapel-ausgabe t.sta >>aus
  "$@" pdf t.dru t.pdf >>aus
  "$@" dxf --koordinaten musterdorf.kor --punkte 'Straße 😀.dxf' >>aus
  "$@" umrechnen --von gk --nach geo musterdorf.kor m.geo >>aus
  "$@" umrechnen --von geo --nach utm32 --trotzdem m.geo u.kor >>aus
  "$@" rohdaten tag.gsi --satzliste saetze.txt --punkte p.kor >>aus
  "$@" --help >>aus
  for pdf in *.pdf; do
    pdffonts "$pdf" | grep -q 'DejaVuSansMono.* yes yes' || { echo "$pdf: Schrift" >&2; exit 1; }
    pdftotext -layout "$pdf" "$pdf.txt"
    rm "$pdf"
  done
  sed -i -E 's/[0-9]{2}\.[0-9]{2}\.20[0-9]{2} +[0-9]{2}:[0-9]{2}/Zeit/' *.dru *.sta *.txt
}
(export TAVORENA_ORDNER=$probe/ini && auftrag linux "$linux")
(export TAVORENA_ORDNER=$probe/ini && auftrag windows "$wine" "$exe")
diff -r "$probe/linux" "$probe/windows"
