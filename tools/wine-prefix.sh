#!/usr/bin/env bash
# The Wine that the Windows test programs share: one prefix, one server, one virtual screen.
#   wine-prefix.sh template                  the template that every prefix is copied from
#   wine-prefix.sh start FOLDER              a fresh prefix in FOLDER/prefix, with its server and screen
#   wine-prefix.sh run FOLDER PROGRAM [...]  a program in it; its exit code is passed on
#   wine-prefix.sh stop FOLDER               ends what start began
set -euo pipefail
# shellcheck source=setup.sh
source "$(dirname "$0")/setup.sh"
# shellcheck source=wine.sh
source "$(dirname "$0")/wine.sh"

verb=${1:?what to do}
folder=${2-}
export WINEPREFIX="$folder/prefix"

stopAll() {
  local pid name
  [ ! -d "$WINEPREFIX" ] || wineserver -k 2>/dev/null || :
  [ -f "$folder/pids" ] || return 0
  while read -r pid name; do
    # The number may belong to another process by now.
    if [ "$(cat "/proc/$pid/comm" 2>/dev/null)" = "$name" ]; then kill "$pid"; fi
  done <"$folder/pids"
  rm -f "$folder/pids"
}

case $verb in
  template)
    makeWineTemplate
    ;;
  start)
    stopAll
    copyWineTemplate "$WINEPREFIX"
    startScreen 1024x768 "$folder"
    wineserver -p >/dev/null 2>&1 </dev/null
    ;;
  run)
    DISPLAY=":$(cat "$folder/display")"
    export DISPLAY
    shift 2
    # Wine's own processes outlive the program and keep its output open, so it goes into a file: a
    # reader of a pipe would wait for them too.
    log="$folder/$(basename "$1").log"
    result=0
    wine "$@" >"$log" 2>&1 </dev/null || result=$?
    cat "$log"
    exit "$result"
    ;;
  stop)
    stopAll
    ;;
  *)
    fail "wine-prefix.sh: template, start, run or stop"
    ;;
esac
