#!/usr/bin/env bash
# ./test.sh           g++ with sanitizers, all tests, the library from a foreign program and from Python
# ./test.sh --streng  the formatting before, clang with clang-tidy, the build without Qt and the reference after
# Warnings are errors. Safe to repeat; only what changed is built again.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh

case "$#:${1-}" in
  0:) streng= ;;
  1:--streng) streng=ja ;;
  *) echo "Aufruf: ./test.sh [--streng]" >&2; exit 2 ;;
esac

schritt() { printf '\n== %s\n' "$1"; }

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
ctest --test-dir build/debug --output-on-failure -j "$(nproc)"

schritt "aus einem fremden Programm"
# The packages of Debian belong to its own Python, whichever comes first in PATH.
cmake --preset headless -DTAVORENA_TESTS=OFF -DTAVORENA_WERROR=ON -DTAVORENA_PYTHON=ON \
  -DPython3_EXECUTABLE=/usr/bin/python3 >/dev/null
cmake --build build/headless --target tavorena_gemeinsam tavorena_statisch tavorena_python tavorena-stapel
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

  schritt "noch einmal gebaut, dieselben Bytes"
  tests/paket/gleich.sh clang

  schritt "ohne Qt"
  cmake --build build/headless

  schritt "Beschreibung"
  cmake --build build/headless --target doc
fi

echo
echo "Alles in Ordnung."
