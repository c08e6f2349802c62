"""When each note rings, said a second time and in another way than the program says it: the soak's yardstick.

    rules = Rules(notes)            notes: file name -> the text of the file
    rules.start(moment)             the program starts
    rules.second_one(moment)        the program looks at its clock in second 1 of a minute
    rules.waiting                   the file names that are to come out, in their order
"""

import dataclasses
import datetime

WRAP = 31  # days; an advance day before the 1st is looked for that many days later


@dataclasses.dataclass(frozen=True)
class TimedNote:
    """A note of a time of day: on every weekday, or on those that are ticked (0 is Sunday)."""

    name: str
    hour: int
    minute: int
    weekdays: frozenset

    def rings_at(self, moment):
        weekday = (moment.weekday() + 1) % 7
        return (self.hour, self.minute) == (moment.hour, moment.minute) and weekday in self.weekdays


@dataclasses.dataclass(frozen=True)
class DatedNote:
    """A note of a day of each month, or of one month (1 to 12), with reminders days ahead."""

    name: str
    day: int
    month: int | None
    days_before: int | None
    every_days: int | None

    def times_on(self, date):
        """How often it comes out when the program is started on that date."""
        if self.month not in (None, date.month):
            return 0
        if self.day == date.day:
            return 1
        if self.days_before is None or self.every_days is None:
            return 0
        return [self._ahead(step) for step in range(self.days_before + 1)].count(date.day)

    def _ahead(self, step):
        day = self.day - step
        return (day if day >= 1 else day + WRAP) - (self.every_days - 1) * step


def _number(field):
    return int(field) if field else None


def _timed(name, text):
    fields = text.split("|")
    hour, minute = _number(fields[0]), _number(fields[1])
    if hour is None or minute is None:
        return None
    ticked = range(7) if name[-1] in "t1" else (day for day in range(7) if fields[2 + day] == "1")
    return TimedNote(name, hour, minute, frozenset(ticked))


def _dated(name, text):
    fields = text.split("|")
    if name.endswith(".tx3"):
        return DatedNote(name, int(fields[0]), None, _number(fields[1]), _number(fields[2]))
    return DatedNote(name, int(fields[0]), int(fields[1]) + 1, _number(fields[2]), _number(fields[3]))


def _of_kinds(notes, extensions, read):
    """In the order in which the notes of a folder are looked through."""
    names = [name for extension in extensions
             for name in sorted((name for name in notes if name.endswith(extension)), key=str.upper)]
    return [note for note in (read(name, notes[name]) for name in names) if note]


def timed_notes(notes):
    return _of_kinds(notes, (".txt", ".tx1", ".tx2"), _timed)


def dated_notes(notes):
    return _of_kinds(notes, (".tx3", ".tx4"), _dated)


class Rules:
    def __init__(self, notes):
        self._timed = timed_notes(notes)
        self._dated = dated_notes(notes)
        self._last_minute = None
        self.waiting = []

    def start(self, moment):
        self.waiting = [note.name for note in self._dated for _ in range(note.times_on(moment.date()))]
        self._look(moment)
        # Whatever was found: the clock is looked at again in second 1 of this minute.
        self._last_minute = None

    def second_one(self, moment):
        """What it finds anew. One minute of the hour is not looked at twice in a row."""
        if moment.minute == self._last_minute:
            return []
        self._last_minute = moment.minute
        return self._look(moment)

    def _look(self, moment):
        due = [note.name for note in self._timed if note.rings_at(moment)]
        self.waiting += due
        return due

    def minutes_of(self, date):
        """The minutes of that day in which a note has its time, whether or not it rings on that day."""
        times = sorted({(note.hour, note.minute) for note in self._timed if note.hour < 24 and note.minute < 60})
        return [datetime.datetime.combine(date, datetime.time(*time)) for time in times]
