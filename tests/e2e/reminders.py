"""A reminder as a user knows it, for the flows in which notes ring."""

import datetime

from kalvora import TEXT, TIME, TITLE
from sounds import AudibleKalvora

MAIN_BUTTONS = ("New", "Save", "Delete", "Left", "Right")
REMINDER = " REMINDER"
# Second 1 of a minute is when a note rings; after this second of it, none does.
QUIET_AFTER = 4
# Slides that take no time worth waiting for.
WINDOW = {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "100", "Win2_Jump": "100"}
RINGING = {"Graph": WINDOW, "Sys": {"AmPm": "False"}, "Sounds": {"Use_Sounds": "True"}}
# The window is out from the start.
RINGING_OUT = {**RINGING, "Graph": {**WINDOW, "ShWatS": "True"}}


class RingingKalvora(AudibleKalvora):
    """The program with a clock that a flow moves, asked whether a reminder is on show."""

    def __init__(self, name=None, **options):
        options.setdefault("settings", RINGING)
        super().__init__(name, **options)

    def start_at(self, moment):
        """Starts the program at a moment, also where it ran before."""
        self.wait_until(lambda: not self.tray.there, "the tray icon to go")
        self.set_clock(moment)
        self.start_and_wait_for_tray()

    def take_keyboard(self):
        """Gives the window the keyboard: no key of this desktop goes from one window to another."""
        self.main.control(TEXT).click()

    def alarms_heard(self):
        return self.heard().count("alarm")

    def expect_reminder(self, title, text):
        """Waits until this note is on show as a reminder, and looks at all that makes it one."""
        self.shows(title)
        self.wait_until_standing()
        self.wait_until(lambda: self.title_strip() == REMINDER, f"the title strip to say{REMINDER}")
        main = self.main
        assert main.control(TEXT).text == text, main.control(TEXT).text
        assert all(main.control(field).read_only for field in (TITLE, TEXT, TIME)), "can be typed over"
        for button in MAIN_BUTTONS:
            assert not self.looks_whole(button), f"{button} is to be seen"

    def expect_browsing(self, title):
        """Waits until this note is on show in the usual way, to be changed and paged from."""
        self.shows(title)
        self.wait_until_standing()
        self.wait_until(lambda: self.title_strip() != REMINDER, "the title strip to scroll the note's name")
        main = self.main
        assert not any(main.control(field).read_only for field in (TITLE, TEXT, TIME)), "can't be typed over"
        for button in MAIN_BUTTONS:
            self.wait_until(lambda: self.looks_whole(button), f"{button} to be back")

    def dismiss(self):
        """Closes the last reminder that waits, and with it the window."""
        self.press("Minimize")
        self.wait_until(lambda: not self.main.visible, "the window to go after the last reminder")

    def pass_in_silence(self, minute, fold=0):
        """Lets the program live through the beginning of a minute in which nothing may ring."""
        start = datetime.datetime.fromisoformat(minute)
        alarms = self.alarms_heard()
        self.set_clock(str(start - datetime.timedelta(seconds=2)), fold)
        self.stay_silent_until(start + datetime.timedelta(seconds=QUIET_AFTER), alarms)

    def stay_silent_until(self, moment, alarms):
        def over():
            assert not self.main.visible, f"the window came out at {self.clock()}"
            return self.clock().replace(tzinfo=None) >= moment

        self.wait_until(over, f"the clock to pass {moment}")
        assert self.alarms_heard() == alarms, self.heard()

    def ring_at(self, minute, title, text, fold=0):
        """Comes to a minute with the window hidden: not before its second 1 does this note come out."""
        start = datetime.datetime.fromisoformat(minute)
        alarms = self.alarms_heard()
        assert not self.main.visible
        self.set_clock(str(start - datetime.timedelta(seconds=2)), fold)
        self.wait_until(lambda: self.main.visible, f"the reminder of {minute}")
        assert self.clock().replace(tzinfo=None) >= start + datetime.timedelta(seconds=1), f"early: {self.clock()}"
        self.expect_reminder(title, text)
        self.wait_until(lambda: self.alarms_heard() > alarms, "the alarm")
        assert self.alarms_heard() == alarms + 1, self.heard()

    def ring_and_dismiss(self, minute, title, text, fold=0):
        """Comes to a minute in which this note alone rings, and closes it."""
        self.ring_at(minute, title, text, fold)
        self.dismiss()
