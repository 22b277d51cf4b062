#!/usr/bin/env bash
# Builds Tavorena and starts it on the example job, or on the file that is given. Where there is no
# display the example job is replayed without a screen and its protocol printed.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh

pakete_sichern bauen desktop
[ -f build/release/build.ninja ] || cmake --preset release >/dev/null
cmake --build build/release

# A copy: the example itself stays as it is.
beispiel=build/beispiel
if [ ! -f "$beispiel/musterdorf.kor" ]; then
  mkdir -p "$beispiel"
  cp examples/musterdorf.kor "$beispiel/musterdorf.kor"
  cp examples/musterdorf.sta "$beispiel/beispiel.sta"
  cp examples/passpunkte.kor "$beispiel/passpunkte.kor"
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/release/tavorena/desktop/tavorena "${@:-$beispiel/musterdorf.kor}"
fi
echo "Kein Bildschirm: das Beispiel wird ohne Fenster gerechnet."
protokoll=$(mktemp -d)/musterdorf.dru
build/release/tavorena/console/tavorena-stapel --koordinaten "$beispiel/musterdorf.kor" --protokoll "$protokoll" "$beispiel/beispiel.sta"
cat "$protokoll"
rm -r "$(dirname "$protokoll")"
