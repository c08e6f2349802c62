"""Ten days with all ticks of the page "Comfort": whatever becomes of the computer, what comes due is seen, and once.

The program is the real one and so are its timers; only its clock is led, from one minute of a note to the next. On
the way the computer sleeps over hours and days (the program is stopped, the clock goes on, the program goes on), the
power goes and the program is started again, the clock is set forward or back, over midnight too, and then right again,
the window is brought out and put away, a note gets another name, and the user is not always there. What comes out is
compared with comfort_rules.py.

    soak_comfort.py [DAYS]       KALVORA_SEED repeats a run
"""

import collections
import datetime
import os
import random
import signal
import sys
import time

from comfort_rules import ComfortRules
from led_kalvora import QUIET, SETTINGS, LedKalvora
from two_hundred_notes import notes_for_one_date, two_hundred_notes

FIRST_DAY = datetime.date(2026, 2, 25)  # The month ends on the fourth day.
DAYS = 10
ONCE_TIMES = [(0, 0), (7, 5), (12, 30), (19, 45), (23, 59)]
QUIET_MINUTES = 6  # a day
START_SECONDS = (0, 1, 30)
FULL_SETTINGS = {**SETTINGS, "Comfort": dict.fromkeys(
    ("Ring_while_out", "Catch_up", "Each_day", "Once_a_minute", "Once_notes"), "True")}
# What happens on the way to a moment, and how often; else the user looks on.
CHANCES = {"sleep": 0.05, "power cut": 0.05, "clock back": 0.04, "clock forward": 0.04, "window": 0.1,
           "another name": 0.05, "user goes": 0.06}
BROUGHT_OUT = 0.12  # a start leaves the window in the tray
LONGEST_GAPS = (3, 12, 70)  # moments that pass over: hours, and a day or two
AWAY_FOR = 3
WRONG_BY = {"clock back": 3 * 60, "clock forward": 12 * 60}  # at most so many minutes


def time_of(text):
    """(hour, minute) of a note that rings every day; None where it does not."""
    hour, minute = text.split("|")[:2]
    return (int(hour), int(minute)) if hour and minute and int(hour) < 24 else None


class TenDays:
    def __init__(self, program, notes, chance):
        self._program, self._notes, self._chance = program, notes, chance
        self._rules = ComfortRules(notes)
        self._out = False
        self._away_for = 0
        self.seen = self.moments_out = self.over_midnight = self.renamed = 0
        self.happened = collections.Counter()

    def moments(self, days):
        """Those that are looked at: no two in a row have the same number in their hours."""
        moments = []
        for number in range(days):
            date = FIRST_DAY + datetime.timedelta(days=number)
            midnight = datetime.datetime.combine(date, datetime.time())
            quiet = {midnight + datetime.timedelta(minutes=minute)
                     for minute in self._chance.sample(range(24 * 60), QUIET_MINUTES)}
            for moment in sorted({*self._rules.minutes_of(date), *quiet}):
                if moments and moments[-1].minute == moment.minute:
                    moments.append(moment - datetime.timedelta(minutes=1))
                moments.append(moment)
        return moments

    def live_through(self, moments):
        self.start(moments[0])
        position = 1
        while position < len(moments):
            before, what = moments[position - 1], self._what_happens()
            self.happened[what] += 1
            if what in ("sleep", "power cut"):
                position = min(position + self._chance.randint(1, self._chance.choice(LONGEST_GAPS)), len(moments) - 1)
            moment = moments[position]
            self.moments_out += self._out
            if what == "sleep":
                self._sleep_until(moment)
            elif what == "power cut":
                self._program.kill()
                self.start(moment)
            else:
                self._pass(what, before, moment)
            if moment.date() != before.date():
                print(f"{moment}: {self.seen} reminders, {dict(self.happened)}", flush=True)
            position += 1
        self._see_all("the end")

    def _what_happens(self):
        if not self._out and not self._rules.waiting and self._chance.random() < BROUGHT_OUT:
            return "window"
        roll = self._chance.random()
        for what, share in CHANCES.items():
            roll -= share
            if roll < 0:
                return what
        return "nothing"

    def start(self, moment):
        self._program.start_at(moment.replace(second=self._chance.choice(START_SECONDS)))
        self._rules.start(moment)
        self._out, self._away_for = False, 0
        self._come(f"the start at {moment}")

    def _sleep_until(self, moment):
        os.kill(self._program.process_id, signal.SIGSTOP)
        self._program.hold_clock(moment.replace(second=1))
        time.sleep(self._chance.random())
        os.kill(self._program.process_id, signal.SIGCONT)
        self._rules.look(moment)
        self._come(f"the sleep until {moment}")

    def _pass(self, what, before, moment):
        if what in WRONG_BY:
            self._set_clock_wrong(what, before)
        elif what == "window" and not self._rules.waiting:
            self._open_or_close()
        elif what == "another name" and self._out and not self._rules.waiting:
            self._rename(before)
        elif what == "user goes" and not self._away_for:
            self._away_for = AWAY_FOR
        self._program.hold_clock(moment.replace(second=1))
        self._rules.look(moment)
        self._come(moment)

    def _set_clock_wrong(self, what, before):
        by = datetime.timedelta(minutes=self._chance.randint(1, WRONG_BY[what]))
        wrong = before - by if what == "clock back" else before + by
        self.over_midnight += wrong.date() != before.date()
        self._program.hold_clock(wrong.replace(second=1))
        self._rules.look(wrong)
        self._come(f"{what} from {before} to {wrong}")

    def _rename(self, moment):
        """In the main window a Fast note with a time, of this minute if there is one: its save looks for what is due in
        this minute once more."""
        times = {name[:-4]: time_of(text) for name, text in self._notes.items() if name.endswith(".txt")}
        of_now = {title for title, time in times.items() if time == (moment.hour, moment.minute)}
        new = f"{self._chance.choice(('ant', 'Moth', 'wasp'))} {self.renamed} t"
        old = self._program.rename_one_of(of_now or {title for title, time in times.items() if time}, new)
        self._notes[f"{new}.txt"] = self._notes.pop(f"{old}.txt")
        self._rules.rename(self._notes, f"{old}.txt", f"{new}.txt")
        self.renamed += 1

    def _open_or_close(self):
        self._program.open_window() if not self._out else self._program.put_window_away()
        self._out = not self._out

    def _come(self, when):
        """What is due comes out; who is there puts it away."""
        if self._rules.waiting:
            self._program.wait_until(lambda: self._program.shows_reminder, f"{self._rules.waiting} at {when}")
        else:
            time.sleep(QUIET)
        self._away_for = max(0, self._away_for - 1)
        if self._away_for:
            # The last one for now may still be on its way into the queue.
            time.sleep(QUIET)
        else:
            self._see_all(when)

    def _see_all(self, when):
        expected = [(name[:-4], self._notes[name].split("|")[-1]) for name in self._rules.waiting]
        seen = self._program.put_away(stays_out=self._out, most=len(expected) + 1)
        assert seen == expected, f"{when}: came {seen}, due are {expected}"
        self.seen += len(seen)
        self._rules.put_away()


seed = int(os.environ.get("KALVORA_SEED", random.randrange(10**6)))
print(f"KALVORA_SEED={seed} repeats this run", flush=True)
chance = random.Random(seed)
days = int(sys.argv[1]) if len(sys.argv) > 1 else DAYS
notes = {**two_hundred_notes(chance), **notes_for_one_date(chance, FIRST_DAY, days, ONCE_TIMES)}
with LedKalvora("soak_comfort", notes=notes, settings=FULL_SETTINGS, clock=str(FIRST_DAY)) as program:
    life = TenDays(program, notes, chance)
    life.live_through(life.moments(days))
    program.stop()
    print(f"{life.seen} reminders, each once and in its turn; on the way {dict(life.happened)}; "
          f"the window was out at {life.moments_out} of {life.happened.total()} moments, "
          f"the clock was set over midnight {life.over_midnight} times, {life.renamed} notes got another name")
    assert program.message_boxes() == []
