# shellcheck shell=sh
# Sourced by the other scripts: long commands write to a log, and show that they are alive.

# The last line of a log, short enough for a line of the terminal.
last_line() { tail -n 1 "$1" 2>/dev/null | sed 's/ *\.\.\.*/ ../' | cut -c 1-100; }

# with_progress LOG COMMAND...: runs the command with its output in the log, and shows the log's last line every ten
# seconds. Returns what the command returned.
with_progress() {
  log=$1
  shift
  : >"$log"
  (
    seconds=0
    # The script that waits for the output must not wait for this sleep.
    while sleep 10 >/dev/null 2>&1 && kill -0 $$ 2>/dev/null; do
      seconds=$((seconds + 10))
      printf '   %4d s  %s\n' $seconds "$(last_line "$log")"
    done
  ) &
  follower=$!
  code=0
  "$@" >"$log" 2>&1 </dev/null || code=$?
  kill "$follower" 2>/dev/null || :
  wait "$follower" 2>/dev/null || :
  return $code
}
