"""If this fails, a note that is saved untouched comes back with other line ends, or a name that is only spelled in other
letters stays as it was."""

from editor import CONTENT, NAME, Editor, files_in, wait_for_files
from kalvora import TEXT, TITLE, Kalvora
from trouble import QUIET

LINES = b"one\ntwo\rthree\r\nfour\r\r\n\nfi\0ve"
NOTES = {"gym.txt": b"7|30|" + LINES, "swim.tx1": b"8|15|" + LINES}


def names(program):
    return sorted(file.name for file in (program.folder / "notes").iterdir())


def main_window_keeps_what_is_untouched(program):
    program.shows("gym")
    written = (program.folder / "notes/gym.txt").stat().st_mtime_ns
    program.press("Save")
    program.wait_until(lambda: (program.folder / "notes/gym.txt").stat().st_mtime_ns != written, "the save")
    assert files_in(program.folder / "notes") == NOTES
    text = program.main.control(TEXT)
    text.set_text(text.text + "\r\nsix")
    program.press("Save")
    # The last line was changed; no box can show what stood in it.
    changed = b"7|30|" + LINES.replace(b"\0", b"") + b"\r\nsix"
    wait_for_files(program, {**NOTES, "gym.txt": changed})


def main_window_spells_anew(program):
    program.main.control(TITLE).set_text("GYM")
    program.press("Save")
    program.wait_until(lambda: names(program) == ["GYM.txt", "swim.tx1"], "the new spelling")
    program.shows("GYM")


def editor_does_so_too(program):
    editor = Editor(program)
    editor.pick("swim")
    editor.save()
    assert program.read("notes/swim.tx1") == NOTES["swim.tx1"]
    editor.fill(NAME, "Swim")
    editor.save()
    program.wait_until(lambda: names(program) == ["GYM.txt", "Swim.tx1"], "the new spelling")
    program.wait_until(lambda: editor.names == ["Swim"], "the new spelling in the list")
    assert program.read("notes/Swim.tx1") == NOTES["swim.tx1"]
    editor.fill(CONTENT, "new")
    editor.save()
    wait_for_files(program, {"GYM.txt": program.read("notes/GYM.txt"), "Swim.tx1": b"8|15|new"})
    editor.close()


with Kalvora("spelling", notes=NOTES, settings=QUIET) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    main_window_keeps_what_is_untouched(program)
    main_window_spells_anew(program)
    editor_does_so_too(program)
    assert program.message_boxes() == []
    assert program.end() == 0
