"""If this fails, the user cannot tell in the list of what comes which reminders are snoozed and which were missed, or
the list does not follow what becomes of them."""

from coming import WhatComes, editor_on
from kalvora import TITLE
from reminders import RINGING, WINDOW, RingingKalvora

NOTES = {"Birthday.tx4": "24|11|||A cake", "Gym.tx1": "7|30|Run", "Tea.tx1": "7|30|Now", "Walk.tx1": "21|0|The dog"}
# The window is out, and what it is called by is not covered by the list.
SETTINGS = {**RINGING, "Graph": {**WINDOW, "Window_X": "20", "Window_Y": "20"}, "Comfort": {"Ring_while_out": "True"},
            "What comes": {"Span": "0"}}
EVENING = ("21:00", "Walk", "Daily", "")


def key_to_main(program, key):
    program.main.control(TITLE).click()
    program.screen.key(key)


with RingingKalvora(notes=NOTES, settings=SETTINGS, clock="2026-11-23 07:20:10") as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.set_clock("2026-11-23 07:29:58")
    program.expect_reminder("Gym", "Run")
    key_to_main(program, "F4")
    coming = WhatComes(program)
    # Two came at once: of the one that waits behind the other nobody knows yet.
    coming.wait_for_rows(("7:30", "Tea", "Daily", "missed"), ("7:30", "Gym", "Daily", ""), EVENING)

    key_to_main(program, "F7")
    program.expect_reminder("Tea", "Now")
    program.set_clock("2026-11-23 07:31:10")
    coming.wait_for_rows(("7:40", "Gym", "Daily", "snoozed"), EVENING)
    program.keep_picture("what-comes-marks")

    # It comes back while the other one is on show, and waits in turn.
    program.set_clock("2026-11-23 07:39:58")
    coming.wait_for_rows(("7:40", "Gym", "Daily", "missed"), EVENING)
    key_to_main(program, "F8")
    program.expect_reminder("Gym", "Run")
    coming.wait_for_rows(EVENING)
    key_to_main(program, "F7")
    coming.wait_for_rows(("7:50", "Gym", "Daily", "snoozed"), EVENING)
    coming.click_row(0)
    editor_on(program, "Gym")
    program.screen.key("Escape")
    assert program.end() == 0
