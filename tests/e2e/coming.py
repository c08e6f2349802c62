"""The window "What Comes" as a user knows it: its rows, its span, its months."""

from editor import NAME as NAME_BOX, TITLE as EDITOR_TITLE

TITLE = "What Comes"
SPAN, ROWS, CALENDAR, NOTICE, CLOSE = 2401, 2403, 2405, 2406, 2
SPANS = ("Today", "7 days", "30 days", "A year")
# The button of the note editor that opens it.
EDITOR_BUTTON = 1998
DATE, TIME, NAME, KIND, STATE = range(5)
HEADINGS, ROW = 19, 14  # pixels, in the system's dialog font
FIRST_WEEK, WEEK, DAY = 40, 15, 32  # of the calendar, likewise


class WhatComes:
    """The open window. Clicks and keys go to it as a hand would send them."""

    def __init__(self, program):
        self.program = program
        self.window = program.window(title=TITLE)
        self._controls = {}
        program.wait_until(lambda: self.focus == self[ROWS].handle, "the keyboard in the list of what comes")

    def __getitem__(self, number):
        if number not in self._controls:
            self._controls[number] = self.window.control(number)
        return self._controls[number]

    @property
    def focus(self):
        return self.program.wine.ask("focus", self.window.handle)

    @property
    def count(self):
        return self.program.wine.ask("rowcount", self[ROWS].handle)

    @property
    def selected(self):
        """The number of the selected row; -1 for none."""
        return self.program.wine.ask("rowselected", self[ROWS].handle)

    @property
    def span(self):
        return SPANS[self.program.wine.ask("chosen", self[SPAN].handle)]

    @property
    def notice(self):
        return self[NOTICE].text

    def rows(self, first=0, most=40):
        """(time, name, kind, state) of some rows; what a date looks like is the platform's affair."""
        return [tuple(row[TIME:]) for row in self.program.wine.ask("rows", self[ROWS].handle, first, most)]

    def dates(self, first=0, most=40):
        return [row[DATE] for row in self.program.wine.ask("rows", self[ROWS].handle, first, most)]

    def wait_for_rows(self, *rows):
        self.program.wait_until(lambda: self.rows() == list(rows), f"the rows {rows}, not {self.rows()}")

    def click_row(self, row, times=1):
        self[ROWS].click(30, HEADINGS + ROW * row + ROW // 2, times=times)

    def click_day(self, week, weekday):
        """Both from 0, as the calendar shows the month; Sunday comes first."""
        self[CALENDAR].click(DAY * weekday + DAY // 2, FIRST_WEEK + WEEK * week + WEEK // 2)

    def wait_until_closed(self):
        self.program.wait_until(lambda: not self.program.windows(title=TITLE), "the window of what comes to go")


def editor_on(program, note):
    """The editor, once it stands in front with the note on its page."""
    window = program.window(title=EDITOR_TITLE)

    def names():
        return [facts["text"] for facts in program.wine.ask("controls", window.handle)
                if facts["visible"] and NAME_BOX <= facts["id"] < NAME_BOX + 10]
    program.wait_until(lambda: names() == [note], f"the note {note} in the editor, not {names()}")
    program.wait_until(lambda: program.front.handle == window.handle, "the editor in front")
    return window
