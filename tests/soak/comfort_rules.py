"""What comes out for a user who has ticked all of the page "Comfort", said a second time: the yardstick of its soak.

    rules = ComfortRules(notes)     notes: file name -> the text of the file
    rules.start(moment)             the program starts; the run before was killed, and what waited was not put away
    rules.look(moment)              the program looks at its clock
    rules.waiting                   the file names that are to come out, in their order
    rules.put_away()                the user saw them all
    rules.rename(notes, old, new)   the user gave a note another name; nothing waits
"""

import dataclasses
import datetime

from rules import dated_notes, timed_notes

MINUTE, DAY = datetime.timedelta(minutes=1), datetime.timedelta(days=1)


@dataclasses.dataclass(frozen=True)
class NoteForOneDate:
    name: str
    moment: datetime.datetime
    hour: int
    minute: int

    def rings_at(self, moment):
        return moment == self.moment


def _for_one_date(notes):
    for name in sorted((name for name in notes if name.endswith(".tx5")), key=str.upper):
        year, month, day, hour, minute = map(int, notes[name].split("|")[:5])
        yield NoteForOneDate(name, datetime.datetime(year, month, day, hour, minute), hour, minute)


def midnight(date):
    return datetime.datetime.combine(date, datetime.time())


class ComfortRules:
    def __init__(self, notes):
        self._take(notes)
        self._looked = None  # the minute that was looked at last
        self._day = None  # whose notes of days were queued in this run
        self._rung = set()  # (name, the minute, or the first one of the day), and does not ring again
        self._on_show = []  # none or one of those below, as (the moment, name)
        self._missed = {}  # name -> the latest moment
        self._queue = []  # (the minute in which it was queued, name)

    def _take(self, notes):
        self._timed = [*timed_notes(notes), *_for_one_date(notes)]
        self._dated = dated_notes(notes)

    @property
    def waiting(self):
        return [name for _, name in self._on_show + self._in_turn()]

    def _in_turn(self):
        return sorted((moment, name) for name, moment in self._missed.items()) + self._queue

    def put_away(self):
        self._on_show, self._missed, self._queue = [], {}, []

    def rename(self, notes, old, new):
        """What rang under the old name rang under the new one. The notes are those with the new one."""
        assert not self.waiting
        self._take(notes)
        self._rung = {(new if name == old else name, moment) for name, moment in self._rung}

    def start(self, moment):
        for since, name in self._on_show + self._queue:
            self._miss(name, since)
        self._on_show, self._queue, self._day = [], [], None
        self.look(moment)

    def look(self, moment):
        now = moment.replace(second=0)
        if self._looked:
            self._catch_up(self._looked, now)
        if self._day != now.date():
            self._day = now.date()
            # Once also where a note has its day and the one of its advance reminder today.
            self._queue_new([note.name for note in self._dated if note.times_on(self._day)], midnight(self._day), now)
        self._queue_new([note.name for note in self._timed if note.rings_at(now)], now, now)
        self._looked = now
        if not self._on_show:
            self._come_out()

    def _come_out(self):
        self._on_show = self._in_turn()[:1]
        for shown in self._on_show:
            if self._missed.pop(shown[1], None) is None:
                self._queue.remove(shown)

    def minutes_of(self, date):
        """The minutes of that day in which a note has its time, whether or not it rings on that day."""
        times = sorted({(note.hour, note.minute) for note in self._timed if note.hour < 24 and note.minute < 60})
        return [datetime.datetime.combine(date, datetime.time(*time)) for time in times]

    def _queue_new(self, names, moment, now):
        new = [name for name in names if (name, moment) not in self._rung]
        self._queue += [(now, name) for name in new]
        self._rung |= {(name, moment) for name in new}

    def _catch_up(self, after, now):
        """What came due between the two and was looked for by nobody. The notes of today's day come in any case, and
        that is for the days before, too."""
        today = {note.name for note in self._dated if note.times_on(now.date())}
        today = {name for name in today if (name, midnight(now.date())) not in self._rung}
        for number in range((now.date() - after.date()).days + 1):
            date = after.date() + number * DAY
            if after.date() < date < now.date():
                due = [note for note in self._dated if note.times_on(date)]
                self._rung |= {(note.name, midnight(date)) for note in due if note.name in today}
                self._find(due, midnight(date))
            for minute in self.minutes_of(date):
                if after < minute < now:
                    self._find([note for note in self._timed if note.rings_at(minute)], minute)

    def _find(self, notes, moment):
        for note in notes:
            if (note.name, moment) not in self._rung:
                self._rung.add((note.name, moment))
                self._miss(note.name, moment)

    def _miss(self, name, moment):
        self._missed[name] = max(moment, self._missed.get(name, moment))
