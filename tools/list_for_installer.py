#!/usr/bin/env python3
"""list_for_installer.py FOLDER LIST FILE.nsh: three macros for the installer: the files of the program, the
sample notes, and the removal of the program's files. It removes what was installed, file by file:
skins, icons and sounds that the user added stay.

LIST is written too: the program's files, a line each. It is installed beside them, and tells the installer of
a later version what this one brought. Sample notes are not in it: they are the user's from then on."""

import os
import sys
from pathlib import Path

LIST_NAME = "shipped-files.txt"


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


def copying_list(path):
    yield 'SetOutPath "$INSTDIR"'
    yield f'File "/oname={LIST_NAME}" "{path}"'


def removing(folder, files):
    for path in files:
        yield f'Delete "$INSTDIR\\{windows(path.relative_to(folder))}"'
    yield f'Delete "$INSTDIR\\{LIST_NAME}"'
    parents = {parent for path in files for parent in path.relative_to(folder).parents if parent.parts}
    # The innermost folder first. One that is not empty stays.
    for parent in sorted(parents, key=lambda one: (-len(one.parts), one)):
        yield f'RMDir "$INSTDIR\\{windows(parent)}"'


def macro(name, lines):
    return "".join([f"!macro {name}\n", *(f"  {line}\n" for line in lines), "!macroend\n"])


def write_list(path, folder, files):
    """UTF-16, as the installer reads it; of the same moment as the files, which tells it the changed ones."""
    lines = "".join(f"{windows(file.relative_to(folder))}\r\n" for file in files)
    path.write_bytes(lines.encode("utf-16-le"))
    moment = files[0].stat().st_mtime
    os.utime(path, (moment, moment))


def main():
    folder, list_file, macros = map(Path, sys.argv[1:])
    files = sorted(path for path in folder.rglob("*") if path.is_file())
    notes = [path for path in files if path.parent.name == "notes"]
    program = [path for path in files if path not in notes]
    write_list(list_file, folder, program)
    macros.write_text(
        macro("CopyProgram", [*copying(folder, program), *copying_list(list_file)])
        + macro("CopySampleNotes", copying(folder, notes)) + macro("RemoveProgram", removing(folder, program))
        + f'!define SHIPPED_FILES "{LIST_NAME}"\n', encoding="utf-8")


if __name__ == "__main__":
    main()
