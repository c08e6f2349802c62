"""If this fails, what was typed in the main window and not saved is lost: by turning a page, by New, by a deletion,
by sending the window away, under a reminder, with the note editor, or with the end of the program."""

from drafts import RestoreList, drafts, wait_for_draft
from editor import Editor, note_files, wait_for_files
from kalvora import TEXT, TIME, TITLE, Kalvora
from reminders import WINDOW

NOTES = {f"{letter}.txt": f"||{letter}" for letter in "abcdef"} | {"Gym.tx1": "7|30|Run"}
SETTINGS = {"Graph": WINDOW, "Sys": {"AmPm": "False", "Fast_delete_msg": "False", "AlwOnTop": "False"}}
CLOCK = "2026-11-21 06:41:00"
RESTORE_IT = 1


def type_note(program, title, minute):
    """Types into every field; the file that this would be saved as."""
    program.type_over(TITLE, title)
    program.type_over(TEXT, f"words of {title}")
    program.type_over(TIME, f"5:{minute:02}")
    return f"5|{minute:02}|words of {title}".encode()


def hide(program, leave):
    leave()
    program.wait_until(lambda: not program.main.visible, "the window to go")
    program.open_window()


def close_the_editor(program):
    Editor(program).close()


WAYS = {
    "Right": lambda program: program.press("Right"),
    "Left": lambda program: program.press("Left"),
    "New": lambda program: program.press("New"),
    "Delete": lambda program: program.press("Delete"),
    "Fast Delete": lambda program: hide(program, lambda: program.press("Fast Delete")),
    "Minimize": lambda program: hide(program, lambda: program.press("Minimize")),
    "Tray icon": lambda program: hide(program, program.tray.double_click),
    "Editor": close_the_editor,
}


def every_way_of_leaving(program):
    for minute, (way, leave) in enumerate(WAYS.items()):
        program.press("Right")  # The editor leaves the text locked; an arrow lifts that.
        typed = type_note(program, way, minute)
        leave(program)
        wait_for_draft(program, way + ".txt", typed, way)
    assert len(drafts(program)) == len(WAYS), drafts(program)
    assert not program.message_boxes()


def a_reminder_that_comes_over_it(program):
    program.press("Right")
    wait_for_draft(program, "Reminder.txt", type_note(program, "Reminder", 30), "typing")
    # Of a text that is put into the box whole the window hears nothing: no draft of it is written by itself.
    program.main.control(TEXT).set_text("all words of Reminder")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")
    program.set_clock("2026-11-21 07:29:58")
    unkept = ("Reminder.txt", b"5|30|all words of Reminder")
    assert unkept not in drafts(program), "too early to tell what the reminder keeps"
    program.shows("Gym")
    wait_for_draft(program, *unkept, "a reminder")
    program.wait_until_standing()  # a window that still slides in comes out all the same
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the reminder to go")
    # In that minute it would ring again for the editor that closes.
    program.set_clock("2026-11-21 07:31:00")


def it_comes_back_with_all_its_words(program):
    before = note_files(program)
    editor = Editor(program)
    listed = RestoreList(program, editor)
    listed.expect(0, "at 5:30", "all words of Reminder")
    program.keep_picture("restore-draft")
    listed.press(RESTORE_IT)
    wait_for_files(program, before | {"Reminder.txt": b"5|30|all words of Reminder"})
    editor.close()


def the_end_of_the_program(program):
    program.open_window()
    program.press("Right")
    typed = type_note(program, "Exit", 45)
    assert program.end() == 0
    wait_for_draft(program, "Exit.txt", typed, "Exit")


def a_save_leaves_none(program):
    program.open_window()
    program.press("Right")
    before = drafts(program)
    typed = type_note(program, "Saved", 50)
    wait_for_draft(program, "Saved.txt", typed, "typing")
    program.press("Save")
    program.wait_until(lambda: note_files(program).get("Saved.txt") == typed, "the saved note")
    program.wait_until(lambda: drafts(program) == before, f"the draft to go, there are {drafts(program)}")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")


# Keep_typing saves what this flow leaves unsaved; flow_keep_typing.py goes its ways with it.
with Kalvora(notes=NOTES, settings=SETTINGS, clock=CLOCK, unticked=("Keep_typing",)) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    every_way_of_leaving(program)
    a_reminder_that_comes_over_it(program)
    it_comes_back_with_all_its_words(program)
    a_save_leaves_none(program)
    the_end_of_the_program(program)
