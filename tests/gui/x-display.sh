#!/usr/bin/env bash
# The gui tests' X display: one Xvfb for the whole run, started and stopped by CTest fixtures.
#   x-display.sh start DIR        Xvfb on a free display; its number in DIR/display, its pid in
#                                 DIR/pid. Without Xvfb it says so and the tests run offscreen.
#   x-display.sh stop DIR         stops the Xvfb that start began (by its pid, nothing else)
#   x-display.sh run DIR PROG...  runs PROG on that display, or on Qt's offscreen platform when
#                                 no Xvfb of this run is alive (also at test discovery)
set -euo pipefail
# Stops the Xvfb named in DIR/pid: only when that process is still an Xvfb.
stop_server() {
  local pid
  pid="$(cat "$1/pid" 2>/dev/null || true)"
  if [ -n "$pid" ] && [ "$(cat "/proc/$pid/comm" 2>/dev/null || true)" = Xvfb ]; then
    kill "$pid"
  fi
  rm -f "$1/display" "$1/pid" "$1/display.new"
}
command="$1"
dir="$2"
shift 2
case "$command" in
  start)
    mkdir -p "$dir"
    stop_server "$dir"  # one left over from a run that was cut short
    if ! command -v Xvfb >/dev/null; then
      echo "Xvfb not found: the gui tests fall back to Qt's offscreen platform"
      exit 0
    fi
    # -displayfd picks a free display and writes its number once the server accepts clients.
    setsid Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp -noreset \
      3>"$dir/display.new" >"$dir/xvfb.log" 2>&1 </dev/null &
    echo $! >"$dir/pid"
    for _ in $(seq 100); do
      if [ -s "$dir/display.new" ]; then
        mv "$dir/display.new" "$dir/display"
        echo "Xvfb on :$(cat "$dir/display")"
        exit 0
      fi
      sleep 0.1
    done
    echo "Xvfb did not start:"
    cat "$dir/xvfb.log"
    exit 1
    ;;
  stop)
    stop_server "$dir"
    ;;
  run)
    # A run cut short leaves its files behind: the server must still be alive and listening.
    if [ -s "$dir/display" ] && [ -s "$dir/pid" ] && kill -0 "$(cat "$dir/pid")" 2>/dev/null &&
      [ -S "/tmp/.X11-unix/X$(cat "$dir/display")" ]; then
      export DISPLAY=":$(cat "$dir/display")" QT_QPA_PLATFORM=xcb
      # The leak checker of a sanitizer build: the X platform's system libraries hold on to
      # memory until the process ends.
      export LSAN_OPTIONS="suppressions=$(dirname "$(readlink -f "$0")")/x-display.supp${LSAN_OPTIONS:+:$LSAN_OPTIONS}"
    else
      export QT_QPA_PLATFORM=offscreen
    fi
    exec "$@"
    ;;
  *)
    echo "usage: x-display.sh start|stop|run DIR [PROGRAM ARGS...]" >&2
    exit 2
    ;;
esac
