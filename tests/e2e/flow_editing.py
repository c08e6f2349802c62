"""If this fails, the user's notes are not what was typed: lost, in the wrong file, or not deleted."""

from kalvora import TEXT, TIME, TITLE, Kalvora

SETTINGS = {"Graph": {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "100"}}


def notes(program):
    return sorted(file.name for file in (program.folder / "notes").iterdir())


def wait_for_notes(program, *names):
    program.wait_until(lambda: notes(program) == sorted(names), f"the notes to be {names}")


def write_over(program, field, text):
    """Selects all that is in a field and types over it."""
    program.main.control(field).click()
    program.screen.key("ctrl+Home", "ctrl+shift+End")
    program.screen.type(text)


def a_new_note_is_typed_and_saved(program):
    program.press("New")
    program.shows("Untiled")
    assert notes(program) == ["m.txt"], "nothing is written before it is saved"
    write_over(program, TITLE, "Shop|ping: list?")
    program.shows("Shopping list")  # what no file can be called is left out
    write_over(program, TEXT, "Milk\nBread | butter")
    write_over(program, TIME, "7:3x0")
    program.wait_until(lambda: program.main.control(TIME).text == "7:30", "the typed time")
    program.press("Save")
    wait_for_notes(program, "m.txt", "Shopping list.txt")
    assert program.read("notes/Shopping list.txt") == b"7|30|Milk\r\nBread | butter"
    assert program.read("notes/m.txt") == b"||Mike"


def a_note_saved_under_another_title_is_renamed(program):
    program.press("Right")
    program.shows("Shopping list")
    write_over(program, TITLE, "Groceries")
    write_over(program, TEXT, "Tea")
    program.press("Save")
    wait_for_notes(program, "m.txt", "Groceries.txt")
    assert program.read("notes/Groceries.txt") == b"7|30|Tea"


def a_title_in_other_letters_is_the_same_note(program):
    program.press("Left")
    program.shows("Groceries")
    write_over(program, TITLE, "GROCERIES")
    write_over(program, TEXT, "T")
    program.press("Save")
    program.wait_until(lambda: b"7|30|T" in [program.read(f"notes/{name}") for name in notes(program)],
                       "the note to be saved")
    assert len(notes(program)) == 2, notes(program)
    # From here on it bears one name whichever letters the system kept.


def delete_asks_nothing(program):
    program.press("Right")
    program.shows("m")
    program.press("Delete")
    program.wait_until(lambda: "m.txt" not in notes(program), "the note to go")
    assert not program.message_boxes()
    program.wait_until(lambda: program.main.control(TEXT).text == "T", "the note before it")
    assert program.main.visible


def fast_delete_asks(program):
    program.press("Fast Delete")
    box = program.message_box("Delete")
    assert box.message == "Are you sure you want delete this note ?", box.message
    assert box.buttons == ["OK", "Cancel"], box.buttons
    box.answer("Cancel")
    assert len(notes(program)) == 1
    assert program.main.visible
    program.press("Fast Delete")
    program.message_box("Delete").answer("OK")
    wait_for_notes(program)
    program.wait_until(lambda: not program.main.visible, "the window to slide away")


def without_notes_nothing_is_deleted(program):
    program.open_window()
    program.shows("Untiled")
    program.press("Delete")
    program.press("Fast Delete")
    program.press("New")  # Were a question open, this would not come through.
    write_over(program, TEXT, "still alive")
    program.wait_until(lambda: program.main.control(TEXT).text == "still alive", "the typed text")
    assert not program.message_boxes()
    assert program.main.visible


# Keep_typing asks about the "|", behind which nobody would read the text.
with Kalvora(notes={"m.txt": "||Mike"}, settings=SETTINGS, unticked=("Keep_typing",)) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("m")
    a_new_note_is_typed_and_saved(program)
    a_note_saved_under_another_title_is_renamed(program)
    a_title_in_other_letters_is_the_same_note(program)
    delete_asks_nothing(program)
    fast_delete_asks(program)
    without_notes_nothing_is_deleted(program)
    assert program.end() == 0
