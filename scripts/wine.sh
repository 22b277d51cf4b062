#!/usr/bin/env bash
# Runs a program for Windows, without a screen and with a Windows folder of its own in build/.
#   wine.sh program.exe [words]
#   wine.sh --ende    ends what wine left running there
set -euo pipefail
export WINEPREFIX WINEDEBUG=-all
export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='  # nothing is offered, nothing put into menus
WINEPREFIX=$(realpath -m "$0/../../build/wine")
ort=/usr/lib/wine
unset DISPLAY
if [ "$1" = --ende ]; then
  "$ort/wineserver64" -k || true
  exit 0
fi
# Programs that are started at the same time wait for the one that makes the folder.
if [ ! -f "$WINEPREFIX/fertig" ]; then
  mkdir -p "$WINEPREFIX"
  exec 9>"$WINEPREFIX/sperre"
  flock 9
  [ -f "$WINEPREFIX/fertig" ] || { "$ort/wine64" wineboot --init 9>&- >/dev/null 2>&1 && touch "$WINEPREFIX/fertig"; }
  exec 9>&-
fi
exec "$ort/wine64" "$@"
