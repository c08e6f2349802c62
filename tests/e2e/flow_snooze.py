"""If this fails, a reminder that was put off does not come back at its moment, comes back twice, is lost with the program
or with its note's name, or cannot be put off or away by the keyboard alone."""

from editor import NAME, SAVE, Editor
from kalvora import TEXT
from reminders import RINGING, RingingKalvora

NOTES = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.tx1": "8|0|Two of them",
         "Tea.tx1": "9|5|Now"}
# The window is out, and has the keyboard.
WANTED = {**RINGING, "Comfort": {"Ring_while_out": "True"}, "Snooze": {"Snooze_minutes": "3"}}
DIALOG = "Remind Me Later"
POPUP = "#32768"
DATE = 411


def put_off(program):
    return program.setting("Snooze", "Put_off")


def expect_put_off(program, text):
    program.wait_until(lambda: put_off(program) == text, f"{text!r} to be stored, not {put_off(program)!r}")


def open_menu(program, key):
    program.screen.key(key)
    return program.window(POPUP)


def choose(program, key, letter):
    menu = open_menu(program, key)
    program.screen.key(letter)
    program.wait_until(lambda: not menu.visible, "the menu to go")


def snooze_and_done(program):
    # Without a reminder the keys do nothing; the menu key opens the field's own menu.
    for key in ("F7", "F8", "shift+F7"):
        program.screen.key(key)
    program.expect_browsing("Browsing")
    assert not program.windows(POPUP) or not any(menu.visible for menu in program.windows(POPUP))
    assert put_off(program) is None

    program.set_clock("2026-11-21 07:29:58")
    program.expect_reminder("Gym", "Run")
    program.screen.key("F7")
    program.expect_browsing("Browsing")
    expect_put_off(program, "2026-11-21 07:33|Gym.txt|")
    program.set_clock("2026-11-21 07:32:58")
    program.expect_reminder("Gym", "Run")
    assert put_off(program) == "2026-11-21 07:33|Gym.txt|", "until it is put away"
    program.screen.key("F8")
    program.expect_browsing("Browsing")
    expect_put_off(program, "")


def the_menu(program):
    program.set_clock("2026-11-21 07:59:58")
    program.expect_reminder("Pills", "Two of them")
    # By each of its keys; Esc leaves it, and nothing else.
    for key in ("shift+F7", "shift+F10", "Menu"):
        menu = open_menu(program, key)
        program.keep_picture("snooze-menu")
        program.screen.key("Escape")
        program.wait_until(lambda menu=menu: not menu.visible, f"the menu of {key} to go")
        program.expect_reminder("Pills", "Two of them")
    assert put_off(program) == ""
    choose(program, "shift+F7", "1")
    program.expect_browsing("Browsing")
    expect_put_off(program, "2026-11-21 08:15|Pills.tx1|")


def on_a_date(program):
    program.set_clock("2026-11-21 09:04:58")
    program.expect_reminder("Pills", "Two of them")
    program.screen.key("F8")
    program.expect_reminder("Tea", "Now")
    choose(program, "Menu", "o")
    dialog = program.window(title=DIALOG)
    date = dialog.control(DATE)
    program.keep_picture("snooze-date")
    assert "November 22, 2026" in date.text, f"tomorrow is proposed, not {date.text}"
    # The weekday comes first: one down is a day back.
    program.screen.key("Right", "Down", "Down")
    program.wait_until(lambda: "November 20, 2026" in date.text, f"yesterday, not {date.text}")
    program.screen.key("Return")
    told = program.wait_until(lambda: [box for box in program.message_boxes() if box.handle != dialog.handle],
                              "the refusal")[0]
    assert told.message == "This moment has passed. Choose a later one.", told.message
    program.screen.key("Return")
    program.wait_until(lambda: not told.exists, "the refusal to go")
    assert dialog.visible
    program.screen.key("Right", "Up", "Up", "Up")
    program.wait_until(lambda: "November 23, 2026" in date.text, f"the day after tomorrow, not {date.text}")
    program.screen.key("Return")
    program.expect_browsing("Browsing")
    expect_put_off(program, "2026-11-23 09:05|Tea.tx1|")


def an_end_in_between(program):
    """And a new name for the note."""
    editor = Editor(program)
    editor.pick("Tea")
    editor.fill(NAME, "Cake")
    editor[SAVE].click()
    expect_put_off(program, "2026-11-23 09:05|Cake.tx1|")
    editor.close()
    program.kill()
    # It comes as soon as the program is back, however late that is.
    program.set_clock("2026-11-23 10:30:20")
    program.start()
    program.expect_reminder("Cake", "Now")
    # A power cut while it is on show.
    program.kill()
    program.start()
    program.expect_reminder("Cake", "Now")
    program.main.control(TEXT).click()
    choose(program, "shift+F7", "t")
    program.wait_until(lambda: not program.main.visible, "the window to go")
    expect_put_off(program, "2026-11-24 10:30|Cake.tx1|")


def a_deleted_note(program):
    editor = Editor(program)
    editor.pick("Cake")
    program.screen.key("alt+d")
    expect_put_off(program, "")
    editor.close()
    program.pass_in_silence("2026-11-24 10:30:00")


with RingingKalvora(notes=NOTES, settings=WANTED, clock="2026-11-21 07:28:20") as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("Browsing")
    program.main.control(TEXT).click()
    snooze_and_done(program)
    the_menu(program)
    on_a_date(program)
    an_end_in_between(program)
    a_deleted_note(program)
    assert program.end() == 0
