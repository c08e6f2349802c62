"""What a user does in the main window, measured: saving a note and turning to the next one."""

import itertools

from answers import milliseconds_busy
from kalvora import TEXT, TITLE


class Browsing:
    """The program with its window on show. Each work fails where it did not do what it is to be measured for."""

    def __init__(self, program):
        self._program, self._main = program, program.main
        self._title, self._text = program.main.control(TITLE), program.main.control(TEXT)
        self._texts = (f"A text that was not there before, {number}" for number in itertools.count())

    def save(self):
        """Milliseconds until the window answers again after Save, with another text in the note each time."""
        text = next(self._texts)
        self._text.set_text(text)
        taken = milliseconds_busy(self._program, self._main, self._program.middle_of("Save"))
        saved = [file for file in (self._program.folder / "notes").glob(f"{self._title.text}.*")
                 if text.encode() in file.read_bytes()]
        assert saved, f"the note {self._title.text} was not saved"
        return taken

    def turn(self):
        """The same after "Right"."""
        before = self._title.text
        taken = milliseconds_busy(self._program, self._main, self._program.middle_of("Right"))
        assert self._title.text != before, f"the page of {before} was not turned"
        return taken
