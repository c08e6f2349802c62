# For sourcing: puts the program's folder together as a user has it. Needs tools/setup.sh before it.

# stageProgram EXE FOLDER: the program and all that is shipped beside it. What the user added or
# wrote there stays; sample notes are only for a folder that has no notes yet.
stageProgram() {
  local exe=$1 folder=$2 part
  mkdir -p "$folder"
  # A running copy keeps its own file.
  cp --remove-destination "$exe" "$folder/kalvora.exe"
  for part in skins icons sounds; do
    mkdir -p "$folder/$part"
    cp -r "$kalvoraRoot/assets/$part/." "$folder/$part/"
  done
  if [ ! -d "$folder/notes" ]; then
    mkdir "$folder/notes"
    cp -r "$kalvoraRoot/assets/notes/." "$folder/notes/"
  fi
}
