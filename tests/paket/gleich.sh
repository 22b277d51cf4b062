#!/usr/bin/env bash
# Library and programs of build/PRESET, built again in another folder, at another time and without the compiler cache: the
# same bytes. The packages are compared as a whole by ./package.sh --zweimal.
set -euo pipefail
cd "$(dirname "$0")/../.."
Probe=$(mktemp -d)
trap 'rm -rf "$Probe"' EXIT

git ls-files -z | tar --null --files-from=- -c | tar -x -C "$Probe"
(
  export CCACHE_DISABLE=1
  cd "$Probe"
  faketime -f +400d cmake --preset "$1" -DTAVORENA_TESTS=OFF -DTAVORENA_TIDY=OFF >/dev/null
  faketime -f +400d cmake --build "build/$1" --target tavorena_gemeinsam tavorena_statisch tavorena-stapel tavorena
) >"$Probe/bau.log" || { tail -n 40 "$Probe/bau.log" >&2; exit 1; }
for Datei in packaging/libtavorena.so packaging/libtavorena.a tavorena/console/tavorena-stapel tavorena/desktop/tavorena; do
  cmp "build/$1/$Datei" "$Probe/build/$1/$Datei"
done
