#!/usr/bin/env bash
# Installs the library of a build directory into a folder of its own and builds a small program against it
# three ways: CMake with the shared and the static library, and pkg-config.
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
