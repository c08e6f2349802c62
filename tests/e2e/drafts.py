"""What the program keeps of what was typed and not saved, as files and as Restore… shows it."""

import re

from editor import RESTORE, files_in

LIST_TITLE = "Restore a Note"
COPIES, WHEN, SHOWN = 1994, 1995, 1996
HEADINGS, ROW = 19, 14  # pixels, in the system's dialog font
_DRAFT = re.compile(r"(.*) \d{4}-\d\d-\d\d \d\d-\d\d-\d\d draft(?: \(\d+\))?(\.tx[t1-4])", re.DOTALL)


def drafts(program):
    """(note's file name, bytes) of every draft."""
    found = [(_DRAFT.fullmatch(name), content) for name, content in files_in(program.folder / "backup").items()]
    return {(match[1] + match[2], content) for match, content in found if match}


def wait_for_draft(program, name, content, way, timeout=60):
    """Waits until the draft of a note holds just these bytes."""
    program.wait_until(lambda: (name, content) in drafts(program),
                       f"the draft {name} with {content!r} after: {way}; there are {drafts(program)}", timeout)


class RestoreList:
    """The list behind Restore…, opened by the mouse."""

    def __init__(self, program, editor):
        self._program = program
        editor[RESTORE].click()
        self._window = program.window(title=LIST_TITLE)
        self._list = self._window.control(COPIES)
        program.wait_until(lambda: self._list.visible, "the list of copies")

    def shown(self):
        """When the note that is picked comes, and its text."""
        return self._window.control(WHEN).text.removeprefix("Reminder: "), self._window.control(SHOWN).text

    def pick(self, row):
        self._list.click(30, HEADINGS + ROW * row + ROW // 2)

    def expect(self, row, when, text):
        self.pick(row)
        self._program.wait_until(lambda: self.shown() == (when, text),
                                 f"{(when, text)} in row {row}, where there is {self.shown()}")

    def press(self, button):
        self._window.control(button).click()
        self._program.wait_until(lambda: not self._window.exists, "the list of copies to go")
