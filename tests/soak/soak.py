"""Ten days of a user's life in minutes: two hundred notes, and each reminder is to come once and in its turn.

The program is the real one and so are its timers; only its clock is led. It is held in second 1 of one minute
after another: of every minute in which a note has its time, of some others between them, and across every
midnight. On the first days the program is started anew at some hour, then one start lives through the rest. Now
and then the user is away, and what falls due waits. What comes out is compared with rules.py, and what the
program holds is weighed at the end of each day.

    soak.py [DAYS]       KALVORA_SEED repeats a run
"""

import datetime
import os
import random
import sys
import time

from led_kalvora import QUIET, SETTINGS, LedKalvora, expect_flat
from rules import Rules
from two_hundred_notes import two_hundred_notes

FIRST_DAY = datetime.date(2026, 2, 25)  # The month ends on the fourth day.
DAYS = 10
DAYS_WITH_A_START = 5
START_HOURS = range(5, 22)
START_SECONDS = (0, 30)  # before and after the second in which the clock is looked at
LAST_START = datetime.time(23, 59, 30)
QUIET_MINUTES = 6  # a day
STAYS = 0.2  # of the minutes in which a note rang are held on to, in case it rings again
IS_AWAY = 0.05  # of those minutes find the user gone for the next two
AWAY_FOR = 2


class TenDays:
    def __init__(self, program, notes, chance):
        self._program, self._notes, self._chance = program, notes, chance
        self._rules = Rules(notes)
        self._away_for = 0
        self.rung = self.looked_at = self.starts = 0
        self.weights = []

    def start(self, moment):
        if self.starts:
            self._answer_all(f"before {moment}")
            self._program.stop()
        self._program.start_at(moment)
        self._rules.start(moment)
        self.starts += 1
        self.weights = []
        if self._rules.waiting:
            self._wait_for_reminder(f"the start at {moment}")
        self._answer_all(f"the start at {moment}")

    def live_through(self, date, start=None):
        for moment in self._minutes_of(date):
            if start and moment + datetime.timedelta(seconds=1) > start:
                self.start(start)
                start = None
            if self.starts:
                self._come_to(moment)
        self._answer_all(f"the end of {date}")
        self.weights.append(self._program.weigh())
        print(f"{date}: {self.rung} reminders, {self.looked_at} minutes, {self.weights[-1]}", flush=True)

    def start_of(self, date):
        """The moment of that day at which the program is started, half of the time in a note's minute."""
        minutes = [one for one in self._rules.minutes_of(date) if one.hour in START_HOURS]
        moment = self._chance.choice(minutes) + datetime.timedelta(minutes=self._chance.randint(0, 1))
        return moment.replace(second=self._chance.choice(START_SECONDS))

    def _minutes_of(self, date):
        """The minutes of the day that are looked at. No two in a row have the same number in their hours."""
        midnight = datetime.datetime.combine(date, datetime.time())
        times = set(self._rules.minutes_of(date))
        quiet = set(self._chance.sample(range(24 * 60), QUIET_MINUTES))
        times |= {midnight + datetime.timedelta(minutes=minute) for minute in quiet}
        ordered = []
        for moment in sorted(times):
            if ordered and ordered[-1].minute == moment.minute:
                ordered.append(moment - datetime.timedelta(minutes=1))
            ordered.append(moment)
        return ordered

    def _come_to(self, moment):
        self.looked_at += 1
        due = self._rules.second_one(moment)
        self._program.hold_clock(moment.replace(second=1))
        if due and not self._away_for:
            self._wait_for_reminder(moment)
            self._away_for = AWAY_FOR + 1 if self._chance.random() < IS_AWAY else 0
        else:
            time.sleep(QUIET)
        self._away_for = max(0, self._away_for - 1)
        if self._away_for:
            return
        self._answer_all(moment)
        if due and self._chance.random() < STAYS:
            time.sleep(QUIET)
            self._answer_all(f"{moment} for the second time")

    def _wait_for_reminder(self, when):
        self._program.wait_until(lambda: self._program.shows_reminder, f"{self._rules.waiting} at {when}")

    def _answer_all(self, when):
        """Puts away what is on show: it must be what waits, no more and in no other order."""
        expected = [(name[:-4], self._notes[name].split("|")[-1]) for name in self._rules.waiting]
        seen = self._program.put_away()
        assert seen == expected, f"{when}: came {seen}, due are {expected}"
        self.rung += len(seen)
        self._rules.waiting.clear()
        self._away_for = 0


def live(program, notes, chance, days):
    life = TenDays(program, notes, chance)
    for number in range(days):
        date = FIRST_DAY + datetime.timedelta(days=number)
        life.live_through(date, life.start_of(date) if number < DAYS_WITH_A_START else None)
    expect_flat(life.weights)
    life.start(datetime.datetime.combine(date, LAST_START))
    program.stop()
    print(f"{life.rung} reminders in {life.looked_at} minutes and {life.starts} starts, each in its turn")
    assert program.message_boxes() == []


seed = int(os.environ.get("KALVORA_SEED", random.randrange(10**6)))
print(f"KALVORA_SEED={seed} repeats this run", flush=True)
chance = random.Random(seed)
notes = two_hundred_notes(chance)
with LedKalvora("soak", notes=notes, settings=SETTINGS, clock=str(FIRST_DAY)) as program:
    live(program, notes, chance, int(sys.argv[1]) if len(sys.argv) > 1 else DAYS)
