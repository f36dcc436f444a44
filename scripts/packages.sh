# shellcheck shell=sh disable=SC2034
# Sourced by the other scripts: installs Debian packages that are missing.

# What every build needs; the scripts add what else they use.
build_packages="g++ cmake ninja-build libboost-dev libboost-filesystem-dev libcli11-dev nlohmann-json3-dev"

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
  if ! { apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $missing; } \
    >"$log" 2>&1 </dev/null; then
    tail -n 20 "$log" >&2
    echo "$0: could not install $missing(the lines above are apt-get's)" >&2
    rm -f "$log"
    exit 1
  fi
  rm -f "$log"
}
