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
import re
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "e2e"))

# The driver is found only now.
from kalvora import TEXT, TITLE, Kalvora  # noqa: E402
from rules import Rules  # noqa: E402
from two_hundred_notes import two_hundred_notes  # noqa: E402

FIRST_DAY = datetime.date(2026, 2, 25)  # The month ends on the fourth day.
DAYS = 10
DAYS_WITH_A_START = 5
START_HOURS = range(5, 22)
START_SECONDS = (0, 30)  # before and after the second in which the clock is looked at
LAST_START = datetime.time(23, 59, 30)
QUIET_MINUTES = 6  # a day
# Longer than two ticks of the minute timer, also on a busy machine. Seconds.
QUIET = 2.5
STAYS = 0.2  # of the minutes in which a note rang are held on to, in case it rings again
IS_AWAY = 0.05  # of those minutes find the user gone for the next two
AWAY_FOR = 2
STANDS = 0.25  # how long a window has to stand still for a hand to reach its button
MOST_AT_ONCE = 100  # more are taken for a note that rings without end
# The window stands after one step of its slide, which leaves the window manager the time to place it before.
SETTINGS = {"Graph": {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "2000", "Window1_interval": "150"},
            "Sys": {"AmPm": "False", "AlwOnTop": "False"}}
# What one start may grow by from its first day to its last: the queue keeps what has been read.
MOST_GROWTH = 512  # kilobytes
MOST_HANDLES_MORE = 3


class Soak(Kalvora):
    """The program, its clock held still, and a user who puts away what comes out."""

    def start_at(self, moment):
        self.wait_until(lambda: not self.tray.there, "the tray icon to go")
        self.hold_clock(moment)
        self.start_and_wait_for_tray()
        self._main = self.main
        self._title, self._text = self._main.control(TITLE), self._main.control(TEXT)

    def stop(self):
        self._main.close()
        assert self.exit_code() == 0

    @property
    def shows_reminder(self):
        return self._main.visible and self._title.read_only

    def put_away(self):
        """Closes reminders until none is left; the (title, text) of each, in their order."""
        seen = []
        while self.shows_reminder:
            self._wait_until_it_stands()
            seen.append((self._title.text, self._text.text))
            assert len(seen) <= MOST_AT_ONCE, f"reminders without end: {seen[-5:]}"
            # It answers when the next one is on show, or the note that is browsed.
            self.wine.ask("click", self._main.handle, *self.middle_of("Minimize"))
        self.wait_until(lambda: not self._main.visible, "the window to go after the last reminder")
        return seen

    def _wait_until_it_stands(self):
        """For a while, as a hand is not faster. Where does not matter here: now and then Wine takes a window
        that came out right at the start to be in the corner, though it is seen at its home."""
        since, last = time.monotonic(), None

        def stands():
            nonlocal since, last
            now = self._main.place
            if now != last:
                since, last = time.monotonic(), now
            return time.monotonic() - since > STANDS

        self.wait_until(stands, "the window to stand still")

    def weigh(self):
        """What the program holds while it waits."""
        memory = dict(re.findall(r"^(\w+): +(\d+) kB", Path(f"/proc/{self.process_id}/smaps_rollup").read_text("ascii"),
                                 re.MULTILINE))
        windows = [one for one in self.all_windows() if one["process"] == self.main_process]
        return {"pss": int(memory["Pss"]), "own": int(memory["Anonymous"]),
                "files": len(os.listdir(f"/proc/{self.process_id}/fd")),
                **self.wine.ask("held", self._main.handle),
                "windows": len(windows) + len(self.wine.ask("controls", self._main.handle))}

    @property
    def main_process(self):
        return next(one["process"] for one in self.all_windows() if one["handle"] == self._main.handle)


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


def expect_flat(weights):
    """One start, a day after the other: it must not hold more and more."""
    first, last = weights[0], weights[-1]
    assert last["own"] - first["own"] <= MOST_GROWTH, f"memory grows: {weights}"
    for what in ("files", "kernel", "gdi", "windows"):
        assert last[what] - first[what] <= MOST_HANDLES_MORE, f"{what} grow: {weights}"


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
with Soak("soak", notes=notes, settings=SETTINGS, clock=str(FIRST_DAY)) as program:
    live(program, notes, chance, int(sys.argv[1]) if len(sys.argv) > 1 else DAYS)
