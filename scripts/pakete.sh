# Installs what a build needs from Debian's packages; does nothing where all is there. To be sourced.
#
#   pakete_sicherstellen werkzeug ...      groups of packages by name

paketgruppe() {
  case $1 in
    bauen) echo "cmake ninja-build g++ libcli11-dev nlohmann-json3-dev" ;;
    fenster) echo "qt6-base-dev qt6-svg-dev qt6-translations-l10n qt6-qpa-plugins qt6-wayland fonts-dejavu-core" ;;
    pruefen) echo "libgtest-dev libbenchmark-dev ser2net pandoc" ;;
    packen) echo "dpkg-dev file gzip pandoc" ;;
    paketpruefung) echo "lintian desktop-file-utils appstream shared-mime-info libglib2.0-bin bash-completion groff-base" ;;
    fuzzen) echo "clang libclang-rt-dev" ;;
    statisch) echo "clang-tidy cppcheck gcovr valgrind" ;;
    *) echo "pakete.sh: unbekannte Gruppe $1" >&2; return 1 ;;
  esac
}

pakete_sicherstellen() {
  local gruppe paket fehlende=() als_root=()
  for gruppe in "$@"; do
    for paket in $(paketgruppe "$gruppe"); do
      [ "$(dpkg-query -W -f '${db:Status-Status}' "$paket" 2>/dev/null)" = installed ] || fehlende+=("$paket")
    done
  done
  [ ${#fehlende[@]} -gt 0 ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Bitte installieren: ${fehlende[*]}" >&2; return 1; }
    als_root=(sudo)
  fi
  echo "Installiere ${fehlende[*]} ..." >&2
  # The package lists may be missing or too old: fetch them only then.
  pakete_holen "${als_root[@]}" || { "${als_root[@]}" apt-get update -qq >/dev/null && pakete_holen "${als_root[@]}"; } ||
    { echo "Diese Pakete liessen sich nicht installieren: ${fehlende[*]}" >&2; return 1; }
}

# Installs $fehlende of the caller, through the given command.
pakete_holen() {
  "$@" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${fehlende[@]}" >/dev/null 2>&1
}
