# shellcheck shell=sh
# Sourced by the other scripts.

# usage MESSAGE: ends the script with its usage, which stands in the comment at its top.
usage() {
  echo "$0: $1" >&2
  sed -n 's/^#   //p' "scripts/${0##*/}" >&2
  exit 2
}
