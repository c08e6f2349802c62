# For sourcing: Wine prefixes and virtual screens. Needs tools/setup.sh before it.

# What every Windows program here is started with: no chatter, no offers to download components, no
# entries in the user's menus, and file names in UTF-8 whatever the caller's locale.
export WINEDEBUG=-all WINEDLLOVERRIDES='winemenubuilder.exe,mscoree,mshtml=' LC_ALL=C.UTF-8
wineTemplate="$kalvoraRoot/build/wine-template"

# Makes the template that all prefixes are copied from, once: about ten seconds.
makeWineTemplate() {
  local lock="$wineTemplate.lock"
  mkdir -p "$kalvoraRoot/build"
  exec {lockDescriptor}>"$lock"
  flock "$lockDescriptor"
  if [ ! -d "$wineTemplate" ]; then
    say "Preparing Wine"
    buildWineTemplate "$wineTemplate.new" {lockDescriptor}>&-
    mv "$wineTemplate.new" "$wineTemplate"
  fi
  showDotFiles "$wineTemplate" {lockDescriptor}>&-
  WINEPREFIX="$wineTemplate" wineserver -w
  exec {lockDescriptor}>&-
}

# showDotFiles PREFIX: a note without a name is the file ".txt", which Wine would otherwise hide, and
# Windows does not.
showDotFiles() {
  ! grep -q '^"ShowDotFiles"="Y"' "$1/user.reg" || return 0
  env -u DISPLAY WINEPREFIX="$1" wine reg add 'HKCU\Software\Wine' /v ShowDotFiles /d Y /f \
    >"$kalvoraRoot/build/wine-dot-files.log" 2>&1 </dev/null ||
    fail "Wine could not be told to show all files; see build/wine-dot-files.log"
}

buildWineTemplate() {
  local folder=$1 link
  rm -rf "$folder"
  mkdir -p "$folder"
  env -u DISPLAY WINEPREFIX="$folder" wine wineboot -i >"$folder.log" 2>&1 </dev/null ||
    fail "Wine could not make its folder; see $folder.log"
  WINEPREFIX="$folder" wineserver -w
  [ -f "$folder/user.reg" ] || fail "Wine made no registry; see $folder.log"
  # Wine links the user's documents into the real home folder, where no program of ours has business.
  for link in "$folder"/drive_c/users/*/*; do
    if [ -L "$link" ]; then
      rm "$link"
      mkdir "$link"
    fi
  done
}

# copyWineTemplate FOLDER: a fresh prefix. The system files are hard links: Wine never writes them.
copyWineTemplate() {
  makeWineTemplate
  rm -rf "$1"
  mkdir -p "$1"
  cp -al "$wineTemplate/drive_c" "$1/drive_c"
  cp -a "$wineTemplate/dosdevices" "$wineTemplate"/*.reg "$wineTemplate/.update-timestamp" "$1/"
}

# startScreen WIDTHxHEIGHT FOLDER: a virtual screen with a plain desktop. Sets DISPLAY and screenPids, and
# writes the processes to FOLDER/pids; the display number is one that nobody uses.
startScreen() {
  local size=$1 folder=$2
  mkdir -p "$folder"
  : >"$folder/display"
  setsid Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset \
    3>"$folder/display" >"$folder/xvfb.log" 2>&1 </dev/null &
  screenPids=("$!")
  printf '%s Xvfb\n' "$!" >"$folder/pids"
  local deadline=$((SECONDS + 20))
  until [ -s "$folder/display" ]; do
    kill -0 "${screenPids[0]}" 2>/dev/null || fail "The virtual screen did not start: $(cat "$folder/xvfb.log")"
    [ "$SECONDS" -lt "$deadline" ] || fail "The virtual screen did not start within 20 seconds."
    sleep 0.05
  done
  DISPLAY=":$(cat "$folder/display")"
  export DISPLAY
  xsetroot -solid '#3a6ea5'
  setsid openbox --sm-disable --config-file "$kalvoraRoot/tools/openbox.xml" >"$folder/openbox.log" 2>&1 </dev/null &
  screenPids+=("$!")
  printf '%s openbox\n' "$!" >>"$folder/pids"
}

stopScreen() {
  local pid
  for pid in "${screenPids[@]:-}"; do
    [ -z "$pid" ] || kill "$pid" 2>/dev/null || :
  done
  screenPids=()
}
