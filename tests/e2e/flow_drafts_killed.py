"""If this fails, a killed program takes more than the last seconds of typing with it, or what is kept of the typing
fills the folder of the safety copies, or Restore… does not show it."""

from drafts import RestoreList, drafts, wait_for_draft
from editor import EXTENSIONS, KINDS, NAME, Editor
from editor_pages import FILLS
from kalvora import TEXT, TITLE, Kalvora
from trouble import QUIET

MOST_SECONDS = 10
CANCEL = 2
# What Restore… shows of what the functions of editor_pages type, by kind.
SHOWN = (("at 19:30", "Pills\r\nTwo of them"), ("at 7:30, Monday, Friday", "Gym"),
         ("day 20, 6 day(s) before, every 2 day(s)", "Rent"),
         ("14 December, 21 day(s) before, every 7 day(s)", "Cake"), ("at 24:05", "Bread | butter"))


def type_at_the_end(program, number, text):
    field = program.main.control(number)
    field.click()
    program.screen.key("ctrl+End")
    expected = field.text + text
    program.screen.type(text)
    program.wait_until(lambda: field.text == expected, f"{expected!r} in the field {number}")


def typing_in_the_main_window(program):
    program.open_window()
    program.shows("Gym")
    type_at_the_end(program, TEXT, " and towel")
    wait_for_draft(program, "Gym.txt", b"||Mat and towel", "typing", MOST_SECONDS)
    # Typing goes on: the same draft follows.
    type_at_the_end(program, TEXT, " and water")
    type_at_the_end(program, TITLE, "nastics")
    wait_for_draft(program, "Gymnastics.txt", b"||Mat and towel and water", "typing on", MOST_SECONDS)
    program.kill()
    assert drafts(program) == {("Gymnastics.txt", b"||Mat and towel and water")}, drafts(program)
    assert program.read("notes/Gym.txt") == b"||Mat"


def typing_in_the_editor(program):
    editor = Editor(program)
    for kind, fill in enumerate(FILLS):
        if kind > 0:
            editor.choose_tab(kind)
        editor.fill(NAME, "Typed")
        wait_for_draft(program, "Typed" + EXTENSIONS[kind], fill(editor), KINDS[kind], MOST_SECONDS)
    program.kill()
    assert len(drafts(program)) == 1 + len(KINDS), drafts(program)


def restore_shows_it(program):
    listed = RestoreList(program, Editor(program))
    for row, shown in enumerate(reversed(SHOWN)):
        listed.expect(row, *shown)
    listed.expect(len(SHOWN), "", "Mat and towel and water")
    program.keep_picture("restore-killed")
    listed.press(CANCEL)


settings = {**QUIET, "Sys": {**QUIET["Sys"], "AmPm": "True"}}
with Kalvora(notes={"Gym.txt": "||Mat"}, settings=settings) as program:
    program.start_and_wait_for_tray()
    typing_in_the_main_window(program)
    program.start_and_wait_for_tray()
    typing_in_the_editor(program)
    program.start_and_wait_for_tray()
    restore_shows_it(program)
    assert program.end() == 0
