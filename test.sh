#!/usr/bin/env bash
# ./test.sh           g++ with sanitizers, all tests, the library from a foreign program and from Python
# ./test.sh --streng  the formatting before, clang with clang-tidy, the pictures, the build without Qt and the reference after
# ./test.sh --windows the layers below the window for Windows, cross-built, with their tests under wine64
# Warnings are errors. Safe to repeat; only what changed is built again.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh

case "$#:${1-}" in
  0:) streng= ;;
  1:--streng) streng=ja ;;
  1:--windows) windows=ja ;;
  *) echo "Aufruf: ./test.sh [--streng | --windows]" >&2; exit 2 ;;
esac

schritt() { printf '\n== %s\n' "$1"; }

if [ "${windows-}" ]; then
  pakete_sichern bauen windows
  schritt "Bibliotheken für Windows"
  scripts/windows-bibliotheken.sh
  schritt "g++ für Windows"
  cmake --preset mingw >/dev/null
  cmake --build build/mingw
  schritt "Tests unter wine64"
  trap 'scripts/wine.sh --ende' EXIT
  ctest --test-dir build/mingw --output-on-failure --verbose -j "$(nproc)" >build/mingw/tests.log ||
    { grep -E 'FAILED|Failure|rror|Timeout|Stacktrace' build/mingw/tests.log; exit 1; }
  awk '/\[  PASSED  \].* tests\.$/ { n += $(NF - 1) } /Passed/ { p++ } END { print n " Tests in " p " Programmen" }' build/mingw/tests.log
  schritt "wie auf diesem System"
  cmake --preset headless -DTAVORENA_TESTS=OFF -DTAVORENA_WERROR=ON >/dev/null
  cmake --build build/headless --target tavorena-stapel
  tests/paket/windows.sh build/mingw build/headless/tavorena/console/tavorena-stapel
  printf '\nAlles in Ordnung.\n'
  exit
fi

pakete_sichern bauen desktop test python ${streng:+streng}

if [ "$streng" ]; then
  schritt "Formatierung"
  git ls-files -z -- '*.h' '*.cpp' | xargs -0 clang-format-14 --dry-run -Werror

  schritt "Lizenzen"
  reuse lint
fi

schritt "g++, Sanitizer, Tests"
cmake --preset debug >/dev/null
cmake --build build/debug
ctest --test-dir build/debug --output-on-failure -j "$(($(nproc) + 1))"  # the tests of the window mostly wait

schritt "aus einem fremden Programm"
# The packages of Debian belong to its own Python, whichever comes first in PATH.
cmake --preset headless -DTAVORENA_TESTS=OFF -DTAVORENA_WERROR=ON -DTAVORENA_PYTHON=ON \
  -DPython3_EXECUTABLE=/usr/bin/python3 >/dev/null
cmake --build build/headless --target tavorena_gemeinsam tavorena_statisch tavorena_python
tests/paket/pruefen.sh build/headless
tests/paket/schnittstelle.sh build/headless

schritt "aus Python"
export PYTHONPATH=build/headless/python MPLBACKEND=Agg
/usr/bin/python3 -m unittest discover -s python/tests
/usr/bin/python3 examples/python/umformen.py --bild build/headless/umformen.png \
  examples/musterdorf.kor examples/passpunkte.kor build/headless/umgeformt.kor

if [ "$streng" ]; then
  schritt "clang, clang-tidy"
  cmake --preset clang >/dev/null
  cmake --build build/clang

  schritt "Bilder des Handbuchs"
  BAU=build/clang docs/bilder/bilder.sh

  schritt "noch einmal gebaut, dieselben Bytes"
  tests/paket/gleich.sh clang

  schritt "ohne Qt"
  cmake --build build/headless
  tests/paket/pruefen.sh build/headless build/headless/tavorena/console/tavorena-stapel

  schritt "Beschreibung"
  cmake --build build/headless --target doc

  schritt "Handbuch"
  cmake --build build/headless --target handbuch
  /usr/bin/python3 tests/handbuch/pruefen.py . build/headless/docs/handbuch
fi

echo
echo "Alles in Ordnung."
