#!/usr/bin/env bash
# Builds a small program of somebody else against the library, where CMake, pkg-config and the loader find it, three
# ways: CMake with the shared and the static library, and pkg-config.
set -euo pipefail
Hier=$(dirname "$(realpath "$0")")
Probe=$(mktemp -d)
trap 'rm -rf "$Probe"' EXIT

cmake -S "$Hier" -B "$Probe" -G Ninja >/dev/null
cmake --build "$Probe" >/dev/null
# shellcheck disable=SC2046  # the flags are words of their own
g++ -std=c++20 "$Hier/fremd.cpp" -o "$Probe/pkg" $(pkg-config --cflags --libs tavorena)
for Programm in gemeinsam statisch pkg; do
  "$Probe/$Programm"
done
