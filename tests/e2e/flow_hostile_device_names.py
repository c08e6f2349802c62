"""If this fails, a file whose name Windows keeps for a device hangs the program, which then rings no more."""

from editor import NAME, Editor, note_files
from kalvora import TEXT
from reminders import WINDOW, RingingKalvora

# From another system, or from an archive, such files come into a folder; who opens one opens a port.
DEVICES = {"aux.tx2": b"7|30|1|1|1|1|1|1|1|A", "com1.txt": b"7|30|C", "lpt1.tx1": b"7|30|L"}
NOTES = {**DEVICES, "Gym.txt": b"7|30|Run"}
CANNOT_READ = "This note cannot be read. "


def expect_named(program, title):
    program.shows(title)
    text = program.main.control(TEXT).text
    assert text.startswith(CANNOT_READ), text


def pages(program):
    program.open_window()
    expect_named(program, "aux")
    program.press("Right")
    expect_named(program, "com1")
    program.keep_picture("device-name")
    program.press("Right")
    program.shows("Gym")
    program.press("Right")
    expect_named(program, "lpt1")
    assert program.message_boxes() == []


def deletes(program):
    """Fast Delete says why where it cannot do it, and nothing else of the folder is touched."""
    program.press("Fast Delete")
    box = program.message_box("Error!")
    assert box.message.startswith("This file cannot be deleted: ") and "lpt1.tx1" in box.message, box.message
    box.answer("OK")
    assert note_files(program) == NOTES


def opens_in_the_editor(program):
    """Daily notes come first, and lpt1 is the only one."""
    editor = Editor(program)
    assert editor.names == ["lpt1"], editor.names
    editor.click_name("lpt1")
    box = program.message_box("Error!")
    assert "lpt1.tx1" in box.message, box.message
    box.answer("OK")
    assert editor[NAME].text == ""
    editor.close()


with RingingKalvora(notes=NOTES, clock="2026-11-21 07:20:00", settings={
        "Graph": WINDOW, "Sys": {"AmPm": "False", "Fast_delete_msg": "False"},
        "Sounds": {"Use_Sounds": "True"}}) as program:
    program.start_and_wait_for_tray()
    box = program.message_box("Error!")
    assert sorted(box.message.splitlines()[1:]) == sorted(DEVICES), box.message
    box.answer("OK")
    pages(program)
    deletes(program)
    opens_in_the_editor(program)
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")
    program.ring_and_dismiss("2026-11-21 07:30:00", "Gym", "Run")
    assert program.end() == 0
