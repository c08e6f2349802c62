"""Two hundred notes, forty of each kind, with all that makes reminders differ; and forty more for one date each."""

import datetime

OF_EACH_KIND = 40
ORDINARY_MINUTES = 36
# A day's first and last minute, and one that is written as a user writes it.
SPECIAL_TIMES = [("0", "0"), ("23", "59"), ("07", "05")]
# None rings. Where a field were taken for 0, each would in the day's first minute.
NO_RING = [("", ""), ("24", "0"), ("0", "")]


def two_hundred_notes(chance):
    """File name -> text."""
    minutes = chance.sample(range(24 * 60), ORDINARY_MINUTES)
    times = SPECIAL_TIMES + [(str(minute // 60), str(minute % 60)) for minute in minutes]

    def a_time(number):
        if number < len(NO_RING):
            return NO_RING[number]
        return times[number - len(NO_RING)] if number < 20 else chance.choice(times)

    writers = {".txt": _every_day, ".tx1": _every_day, ".tx2": _on_weekdays, ".tx3": _monthly, ".tx4": _yearly}
    notes = {}
    for extension, write in writers.items():
        for number in range(OF_EACH_KIND):
            title = _title(number, extension, chance)
            notes[title + extension] = write(number, a_time(number), chance) + f"This is {title}"
    return notes


def notes_for_one_date(chance, first_day, days, times):
    """File name -> text: each on one of the days, at one of the times."""
    notes = {}
    for number in range(OF_EACH_KIND):
        title, (hour, minute) = _title(number, ".tx5", chance), chance.choice(times)
        date = first_day + datetime.timedelta(days=chance.randrange(days))
        notes[title + ".tx5"] = f"{date.year}|{date.month}|{date.day}|{hour}|{minute}|This is {title}"
    return notes


def _title(number, extension, chance):
    word = chance.choice(("apples", "Bread", "call", "Dentist", "eggs", "Flowers", "gym", "Egg_cups"))
    return f"{word} {number} {extension[-1]}"


def _every_day(_number, time, _chance):
    return "|".join(time) + "|"


def _on_weekdays(number, time, chance):
    ticked = [str(int(number == 3 or chance.random() < 0.4)) for _ in range(7)]
    return "|".join((*time, *ticked)) + "|"


def _monthly(number, _time, chance):
    return "|".join(_day_and_advance(number, chance)) + "|"


def _yearly(number, _time, chance):
    day, before, every = _day_and_advance(number, chance)
    # Most in February and March, counted from 0, in which the soak takes place.
    month = chance.choice((1, 1, 2, 2, chance.randrange(12)))
    return "|".join((day, str(month), before, every)) + "|"


def _day_and_advance(number, chance):
    """Day, days before, every so many days. Some have no advance, some wrap, one comes twice."""
    if number == 0:
        return "27", "40", "1"
    if number < 10:
        # Half an advance is none, wherever the other half is missing.
        before, every = (("", ""), ("9", ""), ("", "1"))[number % 3]
        return str(chance.randint(1, 31)), before, every
    return str(chance.randint(1, 31)), str(chance.randint(0, 12)), str(chance.randint(1, 4))
