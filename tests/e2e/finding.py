"""The window "Find" as a user knows it: its field, its rows, its notice."""

from coming import HEADINGS, ROW

TITLE = "Find"
WORDS, ROWS, NOTICE, CLOSE = 2501, 2503, 2504, 2
# What opens it in the note editor.
EDITOR_WORDS, EDITOR_BUTTON = 1989, 1997


class Find:
    """The open window. Clicks and keys go to it as a hand would send them."""

    def __init__(self, program):
        self.program = program
        self.window = program.window(title=TITLE)
        self._controls = {}
        self.wait_for_focus(WORDS)

    def __getitem__(self, number):
        if number not in self._controls:
            self._controls[number] = self.window.control(number)
        return self._controls[number]

    def wait_for_focus(self, number):
        self.program.wait_until(lambda: self.program.wine.ask("focus", self.window.handle) == self[number].handle,
                                f"the keyboard in the control {number} of Find")

    @property
    def words(self):
        return self[WORDS].text

    def type(self, words):
        """Types over what stands in the field, which has the keyboard."""
        self.program.screen.key("Home", "shift+End", "Delete")
        self.program.screen.type(words)
        self.program.wait_until(lambda: self.words == words, f"the words {words!r}, not {self.words!r}")

    @property
    def notice(self):
        return self[NOTICE].text

    def rows(self, first=0, most=40):
        """(name, kind, text) of some rows."""
        return [tuple(row) for row in self.program.wine.ask("rows", self[ROWS].handle, first, most)]

    def wait_for_rows(self, *rows):
        self.program.wait_until(lambda: self.rows() == list(rows), f"the rows {rows}, not {self.rows()}")

    def wait_for_names(self, *names):
        self.program.wait_until(lambda: [row[0] for row in self.rows()] == list(names),
                                f"the notes {names}, not {self.rows()}")

    def wait_for_notice(self, text):
        self.program.wait_until(lambda: self.notice == text, f"the notice {text!r}, not {self.notice!r}")

    def click_row(self, row):
        self[ROWS].click(30, HEADINGS + ROW * row + ROW // 2)

    def wait_until_closed(self):
        self.program.wait_until(lambda: not self.program.windows(title=TITLE), "the window Find to go")
