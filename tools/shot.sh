# For sourcing by ./run: a picture of the program's window, opened as a user opens it.

# waitFor SECONDS COMMAND...: polls until the command succeeds; fails when the time is up or the
# program has ended.
waitFor() {
  local deadline=$((SECONDS + $1))
  shift
  until "$@"; do
    [ "$SECONDS" -lt "$deadline" ] && kill -0 "$programPid" 2>/dev/null || return 1
    sleep 0.1
  done
}

# The place of a window that is on the screen, as "x y width height"; fails when there is none.
placeOf() {
  local window
  window=$(xdotool search --onlyvisible "$@" 2>/dev/null | head -n 1) || return 1
  [ -n "$window" ] || return 1
  xwininfo -id "$window" 2>/dev/null | awk '
    /Absolute upper-left X/ {x = $NF} /Absolute upper-left Y/ {y = $NF}
    /^ *Width:/ {w = $NF} /^ *Height:/ {h = $NF; found = 1}
    END {if (!found) exit 1; print x, y, w, h}'
}

trayPlace() { placeOf --name '^Wine System Tray$'; }
mainPlace() { placeOf --classname '^kalvora.exe$'; }
trayIsThere() { trayPlace >/dev/null; }
mainIsThere() { mainPlace >/dev/null; }

# clickTrayIcon BUTTON TIMES: the program's icon is the first of Wine's strip.
clickTrayIcon() {
  local x y rest
  read -r x y rest < <(trayPlace) || return 1
  xdotool mousemove "$((x + 10))" "$((y + 10))" click --repeat "$2" --delay 60 "$1"
}

# The window slides in: it stands still when its place has not changed for a second.
mainStandsStill() {
  local before after
  before=$(mainPlace) || return 1
  sleep 1
  after=$(mainPlace) || return 1
  [ "$before" = "$after" ]
}

# Two pictures in a row that are alike: nothing was half painted. The title may be scrolling.
grabStillPicture() {
  import -window root "$1.before.png" && import -window root "$1" &&
    [ "$(compare -metric AE "$1.before.png" "$1" null: 2>&1)" = 0 ]
}

# showsTheWindow PICTURE X Y WIDTH HEIGHT: whether there is more at that place than a desktop of one colour.
showsTheWindow() {
  local colours
  colours=$(convert "$1" -crop "$4x$5+$2+$3" +repage -format '%k' info: 2>/dev/null) && [ "$colours" -gt 16 ]
}

grabWindow() {
  local place
  grabStillPicture "$1" && read -ra place < <(mainPlace) && showsTheWindow "$1" "${place[@]}"
}

giveUp() {
  import -window root "$kalvoraRoot/build/shot-failed.png" 2>/dev/null || :
  cp "$runFolder/kalvora.log" "$kalvoraRoot/build/shot-failed.log"
  rm -rf "$runFolder/kalvora.log"
  fail "$1 (the screen as it was then: build/shot-failed.png, the program's output: build/shot-failed.log)"
}

programHasEnded() { ! kill -0 "$programPid" 2>/dev/null; }

menuPlace() { placeOf --name '^Kalvora menu$'; }
menuIsThere() { menuPlace >/dev/null; }

# Leaves the program through its menu: "Exit" is the lowest of its items. Where it does not end, Wine
# ends it.
leaveProgram() {
  local deadline=$((SECONDS + 8)) x y width height
  if clickTrayIcon 3 1 && waitFor 5 menuIsThere && read -r x y width height < <(menuPlace); then
    xdotool mousemove "$((x + width / 2))" "$((y + height - 23))" click 1
  fi
  until programHasEnded || [ "$SECONDS" -ge "$deadline" ]; do sleep 0.1; done
  if programHasEnded; then
    wait "$programPid" || fail "Kalvora ended with code $?."
  else
    say "Kalvora did not leave by its menu; ending it." >&2
  fi
}

takeShot() {
  local picture=$1
  shift
  export WINEPREFIX="$runFolder/prefix"
  copyWineTemplate "$WINEPREFIX"
  startScreen 1024x768 "$runFolder/screen"
  startProgram "$@"
  waitFor 60 trayIsThere || giveUp "Kalvora put no icon into the tray."
  # It may come out by itself; if it does not, the tray icon brings it.
  if ! waitFor 3 mainIsThere; then
    clickTrayIcon 1 2 || giveUp "The tray icon went away."
    waitFor 20 mainIsThere || giveUp "Kalvora's window did not come."
  fi
  # The pointer is out of the way of what is to be seen.
  xdotool mousemove 5 5
  waitFor 30 mainStandsStill || giveUp "Kalvora's window did not come to rest."
  mkdir -p "$(dirname "$picture")"
  waitFor 20 grabWindow "$runFolder/shot.png" || giveUp "Kalvora's window did not come to rest on the screen."
  cp "$runFolder/shot.png" "$picture"
  leaveProgram
  programPid=
  say "Saved $picture"
}
