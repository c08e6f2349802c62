"""If this fails, a note rings twice, or never, in the night in which the clocks are changed."""

from kalvora import TEXT, TIME, TITLE
from reminders import RingingKalvora

# The clocks of Warsaw: put back at 3:00 on 25 October 2026, and forward at 2:00 on 29 March 2026.
ZONE = "Europe/Warsaw"
AUTUMN = {"Bread.tx1": "2|0|Out of the oven", "Dough.tx1": "2|30|Knead it", "Shop.tx1": "3|0|Open it",
          "Till.tx1": "3|30|Count it"}
SPRING = {"Bread.tx1": "1|59|Out of the oven", "Dough.tx1": "2|30|Knead it", "Shop.tx1": "3|0|Open it",
          "Till.tx1": "3|30|Count it"}
FIRST, SECOND = 0, 1  # pass of the hour that comes twice


def clocks_are_put_back():
    with RingingKalvora("put-back", notes=AUTUMN, clock="2026-10-25 01:59:30", time_zone=ZONE) as program:
        program.start_and_wait_for_tray()
        program.ring_and_dismiss("2026-10-25 02:00:00", "Bread", "Out of the oven", FIRST)
        program.ring_and_dismiss("2026-10-25 02:30:00", "Dough", "Knead it", FIRST)
        # The program runs while 2:59:59 is followed by 2:00:00.
        program.set_clock("2026-10-25 02:59:58", FIRST)
        program.wait_until(lambda: program.clock().fold == SECOND, "the clocks to be put back")
        assert program.clock().hour == 2
        program.wait_until(lambda: not_out(program) and program.clock().second > 4, "the hour to come again")
        program.pass_in_silence("2026-10-25 02:10:00", SECOND)
        # A note that is written only now, for later in that hour, rings: it did not yet.
        program.open_window()
        write_note(program, "Oven", "2:20", "Turn it off")
        program.ring_and_dismiss("2026-10-25 02:20:00", "Oven", "Turn it off", SECOND)
        program.pass_in_silence("2026-10-25 02:30:00", SECOND)
        program.ring_and_dismiss("2026-10-25 03:00:00", "Shop", "Open it", SECOND)
        program.ring_and_dismiss("2026-10-25 03:30:00", "Till", "Count it")
        # The next day everything rings as ever.
        program.ring_and_dismiss("2026-10-26 02:00:00", "Bread", "Out of the oven")
        assert program.alarms_heard() == 6, program.heard()
        assert program.end() == 0


def write_note(program, title, time, text):
    """In the main window, which then goes back to the tray."""
    program.press("New")
    for field, value in ((TITLE, title), (TIME, time), (TEXT, text)):
        program.main.control(field).set_text(value)
    program.press("Save")
    program.wait_until(lambda: (program.folder / "notes" / f"{title}.txt").exists(), "the new note")
    program.dismiss()


def clocks_are_put_forward():
    with RingingKalvora("put-forward", notes=SPRING, clock="2026-03-29 01:58:30", time_zone=ZONE) as program:
        program.start_and_wait_for_tray()
        program.ring_and_dismiss("2026-03-29 01:59:00", "Bread", "Out of the oven")
        # The program runs while 1:59:59 is followed by 3:00:00.
        program.set_clock("2026-03-29 01:59:58")
        program.wait_until(lambda: program.main.visible, "the reminder at three")
        assert program.clock().hour == 3
        program.expect_reminder("Shop", "Open it")
        program.dismiss()
        program.ring_and_dismiss("2026-03-29 03:30:00", "Till", "Count it")
        program.ring_and_dismiss("2026-03-30 01:59:00", "Bread", "Out of the oven")
        assert program.alarms_heard() == 4, program.heard()
        assert program.end() == 0


def not_out(program):
    assert not program.main.visible, f"the window came out at {program.clock()}"
    return True


clocks_are_put_back()
clocks_are_put_forward()
