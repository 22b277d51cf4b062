#!/usr/bin/env bash
# docs/bilder/bilder.sh [NAME ...]        makes the pictures of the handbook anew and compares them with those it shows
# docs/bilder/bilder.sh --neu [NAME ...]  takes over those that differ, to be looked at in the diff
# The program comes from the build folder BAU, which has to be set up; new pictures lie in BAU/bilder.
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/pakete.sh
pakete_sichern desktop streng

neu=
if [ "${1-}" = --neu ]; then neu=ja; shift; fi
bau=${BAU:-build/debug}
handbuch=docs/handbuch/bilder
cmake --build "$bau" --target handbuchbilder
programm=$bau/docs/bilder/handbuchbilder
mapfile -t alle < <("$programm" --namen && echo umformen)
[ $# -gt 0 ] || set -- "${alle[@]}"
mkdir -p "$bau/bilder"

machen() {
  if [ "$1" = umformen ]; then
    PYTHONPATH=${PYTHONPATH:-build/headless/python} MPLBACKEND=Agg /usr/bin/python3 examples/python/umformen.py \
      --bild "$2" examples/musterdorf.kor examples/passpunkte.kor "$bau/bilder/umgeformt.kor" >/dev/null
  else
    timeout 120 "$programm" "$1" "$2" 2>"$2.txt" || { grep "^$1:" "$2.txt" || tail -3 "$2.txt"; return 1; }
    rm -f "$2.txt"
  fi
  mogrify +dither -colors 200 -strip -define png:compression-level=9 -define png:format=png8 "$2"
}

# Nothing but the shade of a few edges may differ: a digit has more pixels than that.
gleich() {
  [ -f "$1" ] && [ "$(identify -format %wx%h "$1")" = "$(identify -format %wx%h "$2")" ] || return 1
  anders=$(compare -metric AE -fuzz 10% "$1" "$2" null: 2>&1) || true
  [ "$anders" -le 12 ]
}

fehler=0
melden() { echo "$1"; fehler=1; }
for name; do
  soll=$handbuch/$name.png ist=$bau/bilder/$name.png anders=Größe
  rm -f "$ist"
  machen "$name" "$ist" || { melden "$name: nicht gemacht"; continue; }
  gleich "$soll" "$ist" && continue
  if [ "$neu" ]; then
    cp "$ist" "$soll"
    echo "$name: neu"
  elif [ -f "$soll" ]; then
    melden "$name: anders ($anders), siehe $ist"
  else
    melden "$name: fehlt in $handbuch"
  fi
done
for datei in "$handbuch"/*.png; do
  name=$(basename "$datei" .png)
  [[ " ${alle[*]} " = *" $name "* ]] || melden "$name: keiner macht es"
  grep -q "(bilder/$name.png)" docs/handbuch/*.md || melden "$name: keine Seite zeigt es"
done
[ $fehler = 0 ] && echo "Bilder in Ordnung."
exit $fehler
