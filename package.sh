#!/usr/bin/env bash
# ./package.sh            source and binary packages into build/paket, lintian, and a trial in a root of their own: they are
#                         installed, debian/tests run with what was installed, they are removed, nothing is left
# ./package.sh --zweimal  besides builds them again, in another folder at another time: the same bytes
# The tree stays as it is. The trial is a Debian of its own with chroot for root, else dpkg --root on this system.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh

case "$#:${1-}" in
  0:) zweimal= ;;
  1:--zweimal) zweimal=ja ;;
  *) echo "Aufruf: ./package.sh [--zweimal]" >&2; exit 2 ;;
esac
pakete_sichern bauen desktop test python paket

fassung=$(sed -n '1s/.*(\(.*\)).*/\1/p' debian/changelog)
ziel=$PWD/build/paket
probe=$(mktemp -d)
chmod 755 "$probe"
trap 'rm -rf "$probe"' EXIT
rm -rf "$ziel"
mkdir -p "$ziel"

schritt() { printf '\n== %s\n' "$1"; }

# bauen FOLDER [CALL ...]: the packages of what git knows, as it lies here, into that folder. The source package
# takes the modes of its folders from here, whatever umask builds.
bauen() {
  local baum=$1/tavorena-$fassung ordner=$1
  shift
  (umask 022 && mkdir -p "$baum" && git ls-files -z | tar --null --files-from=- -c | tar -x -C "$baum")
  (cd "$baum" && "$@" dpkg-buildpackage --no-sign) >"$ordner/bau.log" 2>&1 ||
    { tail -n 60 "$ordner/bau.log" >&2; exit 1; }
  rm -rf "$baum"
}

# The compiler cache of the user serves both folders; debhelper gives the build a home of its own.
CCACHE_DIR=$(ccache --get-config cache_dir)
CCACHE_MAXSIZE=$(ccache --get-config max_size)
export CCACHE_DIR CCACHE_MAXSIZE CCACHE_BASEDIR= CCACHE_NOHASHDIR=1

schritt "Pakete"
bauen "$ziel"
(cd "$ziel" && ls -- *.deb *.dsc *.tar.*)

schritt "lintian"
lintian --allow-root --fail-on error,warning --show-overrides "$ziel"/*.changes

if [ "$zweimal" ]; then
  schritt "noch einmal"
  (umask 002 && TZ=Pacific/Auckland CCACHE_DISABLE=1 DEB_BUILD_OPTIONS=nocheck \
    bauen "$probe/anderswo" faketime -f +400d)
  for datei in "$ziel"/*.deb "$ziel"/*.dsc "$ziel"/*.tar.*; do
    cmp "$datei" "$probe/anderswo/${datei##*/}"
  done
  echo "Byte für Byte gleich."
fi

pakete=()
for datei in "$ziel"/*.deb; do
  case $datei in *-dbgsym_*) ;; *) pakete+=("$datei") ;; esac
done
# tests TRIAL ...: the tests of debian/tests; TRIAL runs one where the packages were installed.
tests() {
  local name
  for name in $(sed -n 's/^Tests: //p' debian/tests/control); do
    echo "-- $name"
    "$@" "debian/tests/$name"
  done
}
wurzel=$probe/wurzel
inhalt() { (cd "$wurzel" && find . -xdev \( -path ./proc -o -path ./dev -o -path ./tmp -o -path ./var/log -o -path ./quelle \
  -o -path './var/lib/dpkg/*' -o -path ./var/cache/ldconfig/aux-cache -o -path ./root \) -prune -o -print | LC_ALL=C sort); }

# A Debian of its own with what the packages and their tests need, in a mount namespace.
im_chroot() {
  unshare --mount sh -euc 'mount -t proc proc "$0/proc"; mount --rbind /dev "$0/dev"
    exec chroot "$0" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 sh -euc '\''cd /quelle; exec "$@"'\'' sh "$@"' \
    "$wurzel" "$@"
}
chroot_anlegen() {
  local datei bedarf quellen=/etc/apt/sources.list
  [ -e /etc/apt/sources.list.d/debian.sources ] && quellen=/etc/apt/sources.list.d/debian.sources
  bedarf=$({
    for datei in "${pakete[@]}"; do dpkg-deb -f "$datei" Depends; done
    sed -n 's/^Depends: //p' debian/tests/control
  } | tr ',' '\n' | sed 's/[(|].*//; s/ //g' | grep -v -e tavorena -e '^$' | sort -u | paste -sd,)
  mmdebstrap --quiet --variant=essential --include="$bedarf" "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$wurzel" "$quellen" >"$probe/mmdebstrap.log" 2>&1 ||
    return 1
  mkdir "$wurzel/quelle" "$wurzel/pakete"
  cp "${pakete[@]}" "$wurzel/pakete"
  tar -c debian/tests tests/paket examples/musterdorf.dru | tar -x -C "$wurzel/quelle"
}

# The same without a root of its own: unpacked beside this system, whose libraries and tools serve.
daneben() {
  local lib
  lib=$wurzel/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
  PATH=$wurzel/usr/bin:$PATH LD_LIBRARY_PATH=$lib PKG_CONFIG_PATH=$lib/pkgconfig CMAKE_PREFIX_PATH=$wurzel/usr \
    PYTHONPATH=$wurzel/usr/lib/python3/dist-packages "$@"
}

namen=()
for datei in "${pakete[@]}"; do namen+=("$(dpkg-deb -f "$datei" Package)"); done
if [ "$(id -u)" -eq 0 ] && unshare --mount true 2>/dev/null && chroot_anlegen; then
  schritt "in einem eigenen Debian (mmdebstrap, chroot)"
  inhalt >"$probe/vorher"
  anfang=$(date +%s)
  im_chroot sh -c 'dpkg -i /pakete/*.deb' >/dev/null
  echo "installiert in $(($(date +%s) - anfang)) s"
  im_chroot dpkg-query -W -f='${Package}\t${Installed-Size} kB\n' "${namen[@]}"
  tests im_chroot
  im_chroot dpkg --purge "${namen[@]}" >/dev/null
else
  [ ! -e "$probe/mmdebstrap.log" ] || tail -n 5 "$probe/mmdebstrap.log" >&2
  schritt "neben diesem System (dpkg --root)"
  rm -rf "$wurzel"
  mkdir -p "$wurzel/var/lib/dpkg/"{info,updates}
  touch "$wurzel/var/lib/dpkg/status"
  dpkg_daneben=(dpkg --root="$wurzel" --force-not-root --force-script-chrootless --force-depends --log=/dev/null)
  inhalt >"$probe/vorher"
  "${dpkg_daneben[@]}" -i "${pakete[@]}" >"$probe/dpkg.log" 2>&1 || { cat "$probe/dpkg.log" >&2; exit 1; }
  dpkg-query --admindir="$wurzel/var/lib/dpkg" -W -f='${Package}\t${Installed-Size} kB\n' "${namen[@]}"
  tests daneben
  "${dpkg_daneben[@]}" --purge "${namen[@]}" >"$probe/dpkg.log" 2>&1 || { cat "$probe/dpkg.log" >&2; exit 1; }
fi
inhalt >"$probe/nachher"
diff "$probe/vorher" "$probe/nachher" || { echo "Das blieb oder fehlt nach dem Entfernen." >&2; exit 1; }
echo
echo "Alles in Ordnung: $ziel"
