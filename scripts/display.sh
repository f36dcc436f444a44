# shellcheck shell=sh disable=SC2034
# Sourced by the other scripts: programs with windows, on a display that nobody sees.

xvfb_packages="xvfb xauth"

# on_display COMMAND...: runs the command on a display of its own. Returns what the command returned.
on_display() {
  QT_QPA_PLATFORM=xcb xvfb-run --auto-servernum --server-args '-screen 0 1600x1200x24' "$@"
}
