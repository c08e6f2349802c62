"""Folders of notes to measure with."""

import datetime


def notes_of_all_kinds(count):
    """Name -> text, the five kinds alike; about a hundred bytes each. None is due within the measuring."""
    heads, text = _heads(), "Call the workshop about the bicycle. Ask what new brakes cost, and when it is ready."
    endings = list(heads)
    return {f"A note with a long title {number}{endings[number % 5]}":
            f"{heads[endings[number % 5]]}{text} {number}" for number in range(count)}


def notes_of_one_kind(count):
    """The same of the kind that the note editor shows first."""
    return {f"Note {number}.tx1": "7|30|text" for number in range(count)}


def _heads():
    """Of each kind: half a day away, or ten days."""
    now = datetime.datetime.now()
    time_of_day, day = f"{(now.hour + 12) % 24}|44|", f"{(now.day + 10) % 28 + 1}|"
    return {".txt": time_of_day, ".tx1": time_of_day, ".tx2": f"{time_of_day}1|0|1|0|1|0|1|",
            ".tx3": f"{day}0|0|", ".tx4": f"{day}{now.month - 1}|0|0|"}
