#!/usr/bin/env bash
# What the shared library of a build directory promises: it offers the class TA and nothing else, and nothing of
# that is gone or changed since the description that is kept for its number. New methods are no break.
#
#   schnittstelle.sh build/headless          looks
#   schnittstelle.sh build/headless --neu    keeps a new description: with a release, or under a new number
set -euo pipefail
Bau=$(realpath "$1")
Bibliothek=$Bau/packaging/libtavorena.so
Nummer=$(readelf -dW "$Bibliothek" | sed -n 's/.*SONAME.*\[\(.*\)\]/\1/p')
Behalten=$(dirname "$(realpath "$0")")/../../packaging/$Nummer.abi
Probe=$(mktemp -d)
trap 'rm -rf "$Probe"' EXIT

Fremd=$(nm -DC --defined-only "$Bibliothek" | cut -d' ' -f3- | grep -v '^tavorena::TA::' || true)
if [ -n "$Fremd" ]; then
  printf 'Nicht von der Klasse TA:\n%s\n' "$Fremd" >&2
  exit 1
fi

if [ "${2-}" = --neu ]; then
  cmake --install "$Bau" --component dev --prefix "$Probe" >/dev/null
  abidw --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed --no-write-default-sizes \
    --no-parameter-names --exported-interfaces-only --drop-undefined-syms --drop-private-types \
    --headers-dir "$Probe/include" "$Bibliothek" | sed "s# path='[^']*/# path='#" >"$Behalten"
  exit
fi
[ -e "$Behalten" ] || { echo "$Nummer: keine Beschreibung, siehe schnittstelle.sh" >&2; exit 1; }
abidiff --no-added-syms "$Behalten" "$Bibliothek" || {
  echo "$Nummer ist nicht mehr, was andere Programme kennen: ein Bruch verlangt eine neue Nummer." >&2
  exit 1
}
