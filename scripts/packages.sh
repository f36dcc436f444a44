# shellcheck shell=sh disable=SC2034
# Sourced by the other scripts: installs Debian packages that are missing.
. scripts/progress.sh

# What every build needs; the scripts add what else they use.
build_packages="g++ cmake ninja-build libboost-dev libboost-filesystem-dev libcli11-dev nlohmann-json3-dev \
  rapidjson-dev"

# What the dialog needs: Qt with its compiler of translations, what shows its icon, and Qt's own texts in German.
dialog_packages="qt6-base-dev qt6-tools-dev libqt6svg6 qt6-translations-l10n"

missing_packages() {
  for package in "$@"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) || status=
    [ "$status" = installed ] || echo "$package"
  done
}

# need PACKAGE...: afterwards the packages are installed, or we cannot tell and go on, or the script has ended.
need() {
  if ! command -v dpkg-query >/dev/null 2>&1 || ! command -v apt-get >/dev/null 2>&1; then
    echo "$0: this is not a Debian system; going on in the hope that these packages' contents are there: $*" >&2
    return
  fi
  missing=$(missing_packages "$@" | tr '\n' ' ')
  [ -n "$missing" ] || return 0
  if [ "$(id -u)" != 0 ]; then
    echo "$0: these packages are wanted: $missing" >&2
    echo "$0: install them as root (apt-get install $missing), or run this script as root" >&2
    exit 1
  fi
  echo "Installing $missing"
  log=$(mktemp)
  # shellcheck disable=SC2086 # a list of words
  if ! with_progress "$log" install_packages $missing; then
    tail -n 20 "$log" >&2
    echo "$0: could not install $missing(the lines above are apt-get's)" >&2
    rm -f "$log"
    exit 1
  fi
  rm -f "$log"
}

install_packages() {
  apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
}

# unpack ARCHITECTURE FOLDER PACKAGE...: afterwards the folder holds the contents of these packages of another
# architecture, without what they depend on, or the script has ended. The system itself does not learn of them.
unpack() {
  [ "$(cat "$2/unpacked" 2>/dev/null)" != "$*" ] || return 0
  echo "Unpacking packages of $1 into $2"
  rm -rf "$2"
  mkdir -p "$2/apt/lists/partial" "$2/apt/cache/archives/partial"
  if ! (
    wanted=$* architecture=$1
    cd "$2" || exit
    shift 2
    : >apt/status
    apt() {
      apt-get -o APT::Architecture="$architecture" -o APT::Architectures="$architecture" -o APT::Sandbox::User= \
        -o Dir::State="$PWD/apt" -o Dir::State::status="$PWD/apt/status" -o Dir::Cache="$PWD/apt/cache" "$@"
    }
    # An index that cannot be had does no harm unless a package is in that one.
    apt update || true
    apt download "$@" || exit
    for file in ./*.deb; do dpkg-deb -x "$file" . || exit; done
    rm -r apt ./*.deb
    echo "$wanted" >unpacked
  ) >"$2.log" 2>&1 </dev/null; then
    tail -n 20 "$2.log" >&2
    echo "$0: could not get packages of $1 (the lines above are apt-get's)" >&2
    exit 1
  fi
}
