#!/usr/bin/env python3
"""list_for_installer.py FOLDER FILE.nsh: three macros for the installer: the files of the program, the
sample notes, and the removal of the program's files. It removes what was installed, file by file:
skins, icons and sounds that the user added stay."""

import sys
from pathlib import Path


def windows(path):
    return str(path).replace("/", "\\")


def copying(folder, files):
    place = None
    for path in files:
        parent = path.parent.relative_to(folder)
        if parent != place:
            place = parent
            yield f'SetOutPath "$INSTDIR\\{windows(parent)}"' if parent.parts else 'SetOutPath "$INSTDIR"'
        yield f'File "{path}"'


def removing(folder, files):
    for path in files:
        yield f'Delete "$INSTDIR\\{windows(path.relative_to(folder))}"'
    parents = {parent for path in files for parent in path.relative_to(folder).parents if parent.parts}
    # The innermost folder first. One that is not empty stays.
    for parent in sorted(parents, key=lambda one: (-len(one.parts), one)):
        yield f'RMDir "$INSTDIR\\{windows(parent)}"'


def macro(name, lines):
    return "".join([f"!macro {name}\n", *(f"  {line}\n" for line in lines), "!macroend\n"])


def main():
    folder = Path(sys.argv[1])
    files = sorted(path for path in folder.rglob("*") if path.is_file())
    notes = [path for path in files if path.parent.name == "notes"]
    program = [path for path in files if path not in notes]
    Path(sys.argv[2]).write_text(
        macro("CopyProgram", copying(folder, program)) + macro("CopySampleNotes", copying(folder, notes))
        + macro("RemoveProgram", removing(folder, program)), encoding="utf-8")


if __name__ == "__main__":
    main()
