#!/usr/bin/env bash
# Everything that has to hold: formatting, g++ with sanitizers and all tests, clang with clang-tidy, and
# the build without Qt with the Python module and the reference; warnings are errors. Safe to repeat; only
# what changed is built again.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh

pakete_sichern bauen desktop test pruefpaket python beschreibung

schritt() { printf '\n== %s\n' "$1"; }

schritt "Formatierung"
git ls-files -z -- '*.h' '*.cpp' | xargs -0 clang-format-14 --dry-run -Werror

schritt "g++, Sanitizer, Tests"
cmake --preset debug >/dev/null
cmake --build build/debug
ctest --test-dir build/debug --output-on-failure -j "$(nproc)"

schritt "clang, clang-tidy"
cmake --preset clang >/dev/null
cmake --build build/clang

schritt "ohne Qt"
# The packages of Debian belong to its own Python, whichever comes first in PATH.
cmake --preset headless -DTAVORENA_TESTS=OFF -DTAVORENA_WERROR=ON -DTAVORENA_PYTHON=ON \
  -DPython3_EXECUTABLE=/usr/bin/python3 >/dev/null
cmake --build build/headless

schritt "aus einem fremden Programm"
tests/paket/pruefen.sh build/headless

schritt "aus Python"
export PYTHONPATH=build/headless/python MPLBACKEND=Agg
/usr/bin/python3 -m unittest discover -s python/tests
/usr/bin/python3 examples/python/umformen.py --bild build/headless/umformen.png \
  examples/musterdorf.kor examples/python/passpunkte.kor build/headless/umgeformt.kor

schritt "Beschreibung"
cmake --build build/headless --target doc

echo
echo "Alles in Ordnung."
