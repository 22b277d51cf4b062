#!/usr/bin/env bash
# Cross-builds into build/mingw-bibliotheken what the programs need on Windows: Expat, pixman and Cairo from
# Debian's source packages, GoogleTest and CLI11 from those that are installed. Static, and done once: a stamp
# tells whether anything is left to do; a removed folder is made anew, with the sources of that day.
#
# apt fetches the sources and checks their signatures, with lists of its own in the build folder: nothing of
# the machine's apt is changed, and root is not needed.
set -euo pipefail
cd "$(dirname "$0")/.."
mkdir -p build
bau=$PWD/build/mingw-quellen
ziel=$PWD/build/mingw-bibliotheken
wirt=x86_64-w64-mingw32
toolchain=$PWD/cmake/mingw.cmake

# The machine's own Debian mirror, asked for sources.
quellenliste() {
  mkdir -p "$bau/apt/quellen" "$bau/apt/listen/partial" "$bau/apt/archiv/partial"
  local deb822=/etc/apt/sources.list.d/debian.sources zeilen=/etc/apt/sources.list
  if [ -f "$deb822" ]; then
    sed 's/^Types:.*/Types: deb-src/' "$deb822" >"$bau/apt/quellen/debian.sources"
  fi
  if [ -s "$zeilen" ]; then
    sed -n 's/^deb \(.*debian.*\)/deb-src \1/p' "$zeilen" >"$bau/apt/quellen/debian.list"
  fi
  apt_eigen update
}

apt_eigen() {
  apt-get -q -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$bau/apt/quellen" \
    -o Dir::State::lists="$bau/apt/listen" -o Dir::Cache="$bau/apt/archiv" -o APT::Sandbox::User="$(id -un)" "$@"
}

# Fetches a source package and unpacks it into the folder of its name. Mirrors have gaps: the newest version,
# else that of the release, else the library as its makers released it, without Debian's patches.
quelle() {
  local name=$1 stand
  . /etc/os-release
  cd "$bau"
  for stand in "$name" "$name/$VERSION_CODENAME"; do
    rm -f "$name"_*
    if apt_eigen source --download-only "$stand"; then
      dpkg-source -x "$name"_*.dsc "$name"
      return
    fi
  done
  echo "$name: ohne die Änderungen von Debian" | tee -a "$bau/hinweise"
  rm -f "$name"_*
  apt_eigen source --tar-only "$name"
  mkdir "$name"
  tar -xf "$name"_*.orig.tar.* --strip-components=1 -C "$name"
}

# Configures, makes and installs a library with its own script.
# $1 library, $2 its folder with the sources, then what its configure takes
mit_configure() {
  local name=$1 teil=$2
  shift 2
  cd "$bau/$name"
  # The scripts are those of the release, whatever date a patch gave their sources.
  local fest=(ACLOCAL=: AUTOCONF=: AUTOHEADER=: AUTOMAKE=:)
  CFLAGS="-O2 -DCAIRO_WIN32_STATIC_BUILD" CC=$wirt-gcc-posix \
    PKG_CONFIG_PATH='' PKG_CONFIG_LIBDIR="$ziel/lib/pkgconfig:/usr/$wirt/lib/pkgconfig" \
    ./configure --host="$wirt" --prefix="$ziel" --disable-shared --enable-static --disable-dependency-tracking "$@"
  make -s -j "$(nproc)" -C "$teil" "${fest[@]}"
  make -s -C "$teil" "${fest[@]}" install
}

# $1 folder of the sources, then definitions
mit_cmake() {
  local ort=$1
  shift
  cmake -S "$ort" -B "$ort/bau" -G Ninja --toolchain "$toolchain" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$ziel" -DBUILD_SHARED_LIBS=OFF "$@"
  cmake --build "$ort/bau"
  cmake --install "$ort/bau"
}

bibliotheken() {
  quellenliste
  for name in expat pixman cairo; do
    (quelle "$name")
  done
  # Debian's patches ask for the value that the other way to build it gives.
  sed -i 's/^#cmakedefine XML_DTD$/#define XML_DTD 1/' "$bau/expat/expat/expat_config.h.cmake"
  mit_cmake "$bau/expat/expat" -DEXPAT_BUILD_{TOOLS,EXAMPLES,TESTS,DOCS}=OFF
  (mit_configure pixman pixman --disable-gtk --disable-libpng --disable-openmp)
  make -s -C "$bau/pixman" install-pkgconfigDATA
  (mit_configure cairo src --enable-pdf --enable-win32 --enable-win32-font \
    --disable-{png,ps,svg,script,interpreter,trace,gobject,ft,fc,xlib,xcb,pthread,gtk-doc})
  sed -i 's/^Libs.private:/& -lssp/' "$ziel/lib/pkgconfig/cairo.pc"  # it was built with checked calls
  # Where both lie side by side, the DLL would be taken.
  cp "/usr/$wirt/lib/libz.a" "$ziel/lib"
  sed "s|^libdir=.*|libdir=$ziel/lib|" "/usr/$wirt/lib/pkgconfig/zlib.pc" >"$ziel/lib/pkgconfig/zlib.pc"
  cp -r /usr/src/googletest "$bau"
  mit_cmake "$bau/googletest" -DBUILD_GMOCK=OFF
  mkdir -p "$ziel/share/cmake"
  cp -r /usr/include/CLI "$ziel/include"
  cp -r /usr/share/cmake/CLI11 "$ziel/share/cmake"
}

stempel=$(sha256sum <"scripts/$(basename "$0")")
[ "$(cat "$ziel/stempel" 2>/dev/null)" = "$stempel" ] && exit 0
rm -rf "$bau" "$ziel"
mkdir -p "$bau" "$ziel"
echo "Bibliotheken für Windows: einmal, einige Minuten"
trap 'status=$?; [ $status -eq 0 ] || { tail -40 "$bau/bau.log"; echo "Alles: $bau/bau.log"; } >&2; exit $status' EXIT
bibliotheken >"$bau/bau.log" 2>&1
cat "$bau/hinweise" 2>/dev/null || true
echo "$stempel" >"$ziel/stempel"
