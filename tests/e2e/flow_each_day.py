"""If this fails, a monthly or yearly note of the next day does not ring where Kalvora runs on over midnight, though the
user ticked that; it comes twice, or also to a user who did not."""

import options_dialog as options
from options_dialog import tick_comfort, tick_comfort_by_key
from reminders import RINGING_OUT, RingingKalvora

# A day each; the daily note shows that midnight has passed.
NOTES = {"Browsing.txt": "||Nothing is due here", "Cake.tx4": "26|10|||Bake it", "Glass.tx3": "24|||Bring it away",
         "Rent.tx3": "25|||Pay it", "Sleep.tx1": "0|2|Every day"}


def by_mouse():
    with RingingKalvora("each_day", notes=NOTES, clock="2026-11-23 23:58:20") as program:
        program.start_and_wait_for_tray()
        program.pass_in_silence("2026-11-24 00:00:00")
        program.ring_and_dismiss("2026-11-24 00:02:00", "Sleep", "Every day")
        # Those of the day that has begun come in the next minute.
        tick_comfort(program, options.EACH_DAY)
        program.ring_and_dismiss("2026-11-24 00:05:00", "Glass", "Bring it away")
        program.ring_and_dismiss("2026-11-25 00:00:00", "Rent", "Pay it")
        program.ring_and_dismiss("2026-11-25 00:02:00", "Sleep", "Every day")
        # A clock that is set passes midnight, too.
        program.ring_and_dismiss("2026-11-26 12:00:00", "Cake", "Bake it")
        program.pass_in_silence("2026-11-26 12:01:00")
        assert program.end() == 0


def by_keyboard():
    with RingingKalvora("each_day_keys", notes=NOTES, settings=RINGING_OUT, clock="2026-11-23 23:58:20") as program:
        program.start_and_wait_for_tray()
        program.wait_until_standing()
        tick_comfort_by_key(program, options.RING_WHILE_OUT, options.EACH_DAY)
        program.take_keyboard()
        for moment, title, text in (("2026-11-23 23:59:58", "Glass", "Bring it away"),
                                    ("2026-11-24 00:01:58", "Sleep", "Every day"),
                                    ("2026-11-24 23:59:58", "Rent", "Pay it")):
            program.set_clock(moment)
            program.expect_reminder(title, text)
            program.screen.key("F8")
            program.expect_browsing("Browsing")
        assert program.alarms_heard() == 3, program.heard()
        assert program.end() == 0


by_mouse()
by_keyboard()
