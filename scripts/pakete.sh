# Sourced by the commands of the root: makes sure that the Debian packages of a task are there.
#
#   pakete_sichern bauen desktop
#
# Installs what is missing as root or with sudo; elsewhere it prints the list and ends with status 1.

pakete_von() {
  case "$1" in
    bauen) echo g++ cmake ninja-build pkg-config libcli11-dev libcairo2-dev libexpat1-dev fonts-dejavu-core ;;
    desktop) echo qt6-base-dev qt6-serialport-dev qt6-svg-dev libqt6svg6 qt6-qpa-plugins qt6-wayland qt6-translations-l10n libgl-dev fonts-dejavu-core ;;
    test) echo libgtest-dev libproj-dev proj-bin poppler-utils ccache appstream binutils abigail-tools python3-ezdxf hunspell hunspell-de-de ;;
    streng) echo clang-14 clang-tidy-14 clang-format-14 doxygen git reuse faketime imagemagick "$(pakete_von handbuch)" ;;
    bench) echo libbenchmark-dev libfmt-dev libfast-float-dev libproj-dev python3 ;;
    python) echo pybind11-dev python3-dev python3-numpy python3-matplotlib ;;
    paket) echo dpkg-dev debhelper dh-python lintian mmdebstrap doxygen git faketime xvfb xauth xdotool ;;
    windows) echo g++-mingw-w64-x86-64-posix libz-mingw-w64-dev googletest wine64 dpkg-dev poppler-utils ccache ;;
    handbuch) echo pandoc weasyprint fonts-dejavu-core fonts-dejavu-extra ;;
    fuzz) echo clang-14 libclang-rt-14-dev ;;
    *) echo "pakete.sh: unknown task $1" >&2; return 1 ;;
  esac
}

pakete_sichern() {
  local aufgabe paket fehlt=() als=()
  for aufgabe in "$@"; do
    for paket in $(pakete_von "$aufgabe"); do
      if ! command -v dpkg-query >/dev/null ||
         [ "$(dpkg-query -W -f='${db:Status-Status}' "$paket" 2>/dev/null)" != installed ]; then
        fehlt+=("$paket")
      fi
    done
  done
  [ ${#fehlt[@]} -eq 0 ] && return 0
  if ! command -v apt-get >/dev/null; then
    printf 'Es fehlen (Namen der Debian-Pakete): %s\n' "${fehlt[*]}" >&2
    echo "Dieses System hat kein apt-get: bitte die entsprechenden Pakete von Hand installieren." >&2
    exit 1
  fi
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      printf 'Es fehlen: %s\n' "${fehlt[*]}" >&2
      echo "Ohne root und sudo können sie nicht installiert werden." >&2
      exit 1
    fi
    als=(sudo)
  fi
  echo "Installiere: ${fehlt[*]}"
  "${als[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q &&
    "${als[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${fehlt[@]}" ||
    { printf 'Nicht installiert: %s\n' "${fehlt[*]}" >&2; exit 1; }
}
