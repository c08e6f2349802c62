# For sourcing: puts the program's folder together as a user has it. Needs tools/setup.sh before it.

# putFile SOURCE TARGET: whoever has the target open or opens it meanwhile, as a running copy of the program,
# finds a whole file.
putFile() {
  cmp -s "$1" "$2" || { cp "$1" "$2.new" && mv -f "$2.new" "$2"; }
}

# putFolder SOURCE TARGET: all files below it; what else the target holds stays.
putFolder() {
  local file
  while IFS= read -r file; do
    mkdir -p "$(dirname "$2/$file")"
    putFile "$1/$file" "$2/$file"
  done < <(cd "$1" && find . -type f)
}

# stageProgram EXE FOLDER: the program and all that is shipped beside it. What the user added or
# wrote there stays; sample notes are only for a folder that has no notes yet.
stageProgram() {
  local exe=$1 folder=$2 part
  mkdir -p "$folder"
  putFile "$exe" "$folder/kalvora.exe"
  for part in skins icons sounds; do
    putFolder "$kalvoraRoot/assets/$part" "$folder/$part"
  done
  if [ ! -d "$folder/notes" ]; then putFolder "$kalvoraRoot/assets/notes" "$folder/notes"; fi
}
