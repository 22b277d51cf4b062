#!/usr/bin/env bash
# Builds the Debian packages libtavorena-dev and tavorena into build/paket.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh

pakete_sichern bauen desktop paket
cmake --preset release >/dev/null
cmake --build build/release
rm -rf build/paket
(cd build/release && cpack -B ../paket >/dev/null)
ls build/paket/*.deb
