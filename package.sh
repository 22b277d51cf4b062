#!/usr/bin/env bash
# Builds the Debian packages libtavorena-dev, tavorena and python3-tavorena into build/paket.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh

pakete_sichern bauen desktop paket python
cmake --preset release -DTAVORENA_PYTHON=ON -DPython3_EXECUTABLE=/usr/bin/python3 >/dev/null
cmake --build build/release
rm -rf build/paket
(cd build/release && cpack -B ../paket >/dev/null)
ls build/paket/*.deb
