#!/usr/bin/env bash
# Everything that has to hold: formatting, g++ with sanitizers and all tests, clang with clang-tidy, and
# the build without Qt with the reference; warnings are errors. Safe to repeat; only
# what changed is built again.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh

pakete_sichern bauen desktop test pruefpaket beschreibung

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
cmake --preset headless -DTAVORENA_TESTS=OFF -DTAVORENA_WERROR=ON >/dev/null
cmake --build build/headless

schritt "aus einem fremden Programm"
tests/paket/pruefen.sh build/headless

schritt "Beschreibung"
cmake --build build/headless --target doc

echo
echo "Alles in Ordnung."
