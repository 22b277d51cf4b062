#!/usr/bin/env bash
# Runs every libFuzzer target for that many seconds: ./fuzz.sh [seconds]. Stops at the first finding.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh
SEKUNDEN=${1:-60}

pakete_sichern bauen fuzz
cmake --preset fuzz >/dev/null
cmake --build build/fuzz --target tavorena_fuzz
# The readers work on files: in memory, so that the disk does not set the pace.
if [ -d /dev/shm ] && [ -w /dev/shm ]; then TMPDIR=/dev/shm; fi
TMPDIR=$(mktemp -d "${TMPDIR:-/tmp}/tavorena-fuzz-XXXXXX")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
mkdir -p build/fuzz/befunde
for EINTRAG in antwort:2048 blatt:2048 codeblock:512 csv:2048 dat:2048 dxf:4096 edbs:2048 flg:2048 \
  frei:2048 geo:1024 ges:4096 gre:2048 gsi:4096 hli:4096 ini:4096 konsole:8192 kor:4096 liste:4096 \
  lt4:4096 m5:4096 nas:4096 niv:2048 passpunkte:2048 pol:4096 seiten:4096 sel:2048 sortierung:4096 \
  sta:4096 text:512 theo:1024 ta_linien:512 ta_messlinie:512 ta_schnitte:512 ta_einschnitte:512 \
  ta_flaeche:2048 ta_transformation:2048 ta_stationierung:2048 ta_geo:512; do
  ZIEL=${EINTRAG%:*}
  SAAT=fuzz/saat/$ZIEL
  [ -d "$SAAT" ] || SAAT=
  PROTOKOLL=build/fuzz/befunde/$ZIEL.log
  mkdir -p "build/fuzz/korpus/$ZIEL"
  if ! "build/fuzz/fuzz/fuzz_$ZIEL" "build/fuzz/korpus/$ZIEL" ${SAAT:+"$SAAT"} \
    -max_total_time="$SEKUNDEN" -max_len="${EINTRAG#*:}" -timeout=10 -rss_limit_mb=2048 \
    -print_final_stats=1 -artifact_prefix="build/fuzz/befunde/$ZIEL-" >"$PROTOKOLL" 2>&1; then
    BEFUND=$(sed -n 's/.*Test unit written to //p' "$PROTOKOLL" | tail -n 1)
    echo "$ZIEL: BEFUND ${BEFUND:-keine Eingabe geschrieben}, Protokoll $PROTOKOLL"
    exit 1
  fi
  LAEUFE=$(sed -n 's/^stat::number_of_executed_units: *//p' "$PROTOKOLL")
  echo "$ZIEL: $SEKUNDEN s, $LAEUFE Läufe, ohne Befund"
done
