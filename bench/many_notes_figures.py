"""The real program with 30,000 notes: its start, Save, a page turn, what it reads while nothing changes, and its
memory, each beside the same files in a bare program or beside itself with a hundred notes."""

import statistics
import time

from anchors import bare_listing, bare_reading, start_of_kalvora
from answers import milliseconds_busy_with, milliseconds_of_a_question
from browsing import Browsing
from coming import WhatComes
from figures import Figure
from finding import ROWS, WORDS, Find
from folder_watch import FolderWatch
from kalvora import TITLE, Kalvora
from mappings import Mappings
from note_sets import notes_of_all_kinds
from processes import percents, proportional_size, server_of
from start_figures import QUICK_REPETITIONS, REPETITIONS, SHOWN_AT_START
from turns import in_turns

COUNT, FEW = 30_000, 100
MOST_TO_BARE_READING, MOST_TO_LISTING, MOST_OF_A_TURN = 1.1, 3, 5  # the last in milliseconds
MOST_OF_A_SEARCH = 200  # milliseconds
MOST_MEMORY, MOST_HIDDEN = 1.3, 0.2  # times that of few notes; percent of one processor
MOST_OF_COMING = 1000  # milliseconds
SETTLED = 5  # seconds until what a start leaves to do is done
SECONDS_OF_A_CHECK = 3  # from the full minute until its check is over, whatever it did


def with_notes(count):
    """The program with so many notes, not started yet."""
    return Kalvora(f"bench-{count}-notes", notes=notes_of_all_kinds(count), settings=SHOWN_AT_START)


def start(program, mappings):
    """Starts it, and waits until nothing moves any more."""
    mappings.forget()
    program.start()
    mappings.wait_for("Kalvora")
    program.wait_until_standing()


def use(browsing):
    """What it may take memory for."""
    for work in (browsing.turn, browsing.save):
        for _ in range(QUICK_REPETITIONS):
            work()


def start_figures(program, mappings, repetitions):
    times = in_turns((lambda: start_of_kalvora(program, mappings), lambda: bare_reading(program)), repetitions)
    ours, bare = map(statistics.median, times)
    yield Figure(f"start to first window, {COUNT:,} notes", f"{ours:,.0f} ms",
                 f"bare program that lists and reads them {bare:,.0f} ms", ours / bare,
                 f"{MOST_TO_BARE_READING} times", ours / bare / MOST_TO_BARE_READING)


def reading_figure(program, what, work):
    """How often the folder is listed and files in it are opened; not the same run as the one that is timed."""
    with FolderWatch(program.folder / "notes") as watch:
        work()
        found = watch.readings(SETTLED)
    return Figure(f"what {what} reads, {COUNT:,} notes", str(found))


def save_figures(program, browsing, repetitions):
    times = in_turns((browsing.save, lambda: bare_listing(program)), repetitions)
    ours, listing = map(statistics.median, times)
    yield Figure(f"Save in the main window, {COUNT:,} notes", f"{ours:,.0f} ms", f"one bare listing {listing:.0f} ms",
                 ours / listing, f"{MOST_TO_LISTING} times", ours / listing / MOST_TO_LISTING)


def turn_figures(program, browsing, repetitions):
    main = program.main
    times = in_turns((browsing.turn, lambda: milliseconds_of_a_question(program, main)), repetitions)
    ours, question = map(statistics.median, times)
    yield Figure(f"page turn, {COUNT:,} notes", f"{ours:.1f} ms", f"an empty question {question:.1f} ms", None,
                 f"{MOST_OF_A_TURN} ms", ours / MOST_OF_A_TURN)


def until_all_that_comes_is_listed(program):
    """Milliseconds from the key of the window."""
    program.main.control(TITLE).click()
    begin = time.monotonic()
    program.screen.key("F4")
    coming = WhatComes(program)
    program.wait_until(lambda: coming.count > 0 and not coming.notice, "the list to be whole")
    taken = time.monotonic() - begin
    program.screen.key("Escape")
    coming.wait_until_closed()
    return 1000 * taken


def coming_figure(program, repetitions):
    taken = statistics.median(until_all_that_comes_is_listed(program) for _ in range(repetitions))
    return Figure(f"What Comes until it is whole, {COUNT:,} notes", f"{taken:.0f} ms",
                  budget=f"{MOST_OF_COMING} ms", to_budget=taken / MOST_OF_COMING)


def find_figures(program, repetitions):
    """From other words in the field of the window "Find" to its list with what they find, of all notes each time."""
    program.main.control(TITLE).click()
    program.screen.key("ctrl+f")
    find = Find(program)
    begin = time.monotonic()
    find.wait_for_notice(f"{COUNT} notes.")
    yield Figure(f"reading for Find, {COUNT:,} notes", f"{time.monotonic() - begin:.1f} s")
    taken, found = [], []
    for words in ("e", "o") * repetitions:
        taken.append(milliseconds_busy_with(program, find.window, lambda text=words: find[WORDS].set_text(text)))
        found.append(program.wine.ask("rowcount", find[ROWS].handle))
    assert all(found), "nothing was found"
    question = milliseconds_of_a_question(program, find.window)
    yield Figure(f"a search, {COUNT:,} notes", f"{statistics.median(taken):.1f} ms", f"an empty question {question:.1f} ms",
                 None, f"{MOST_OF_A_SEARCH} ms", statistics.median(taken) / MOST_OF_A_SEARCH)
    yield Figure(f"memory with Find open, {COUNT:,} notes", f"{proportional_size(program.process_id):,} kB")
    program.screen.key("Escape")
    find.wait_until_closed()
    yield Figure(f"memory after Find was closed, {COUNT:,} notes", f"{proportional_size(program.process_id):,} kB")


def past_a_minute_check(least):
    """So many seconds and as many more as it takes to the end of the next minute check."""
    return least + 60 - (time.time() + least) % 60 + SECONDS_OF_A_CHECK


def idle_figures(program, least):
    """A listing of our own shows first that the watch sees what it is to see."""
    notes = program.folder / "notes"
    with FolderWatch(notes) as watch:
        list(notes.iterdir())
        assert watch.readings(1).listings == 1, "the watch does not see a listing"
        seconds = past_a_minute_check(least)
        ours, server = percents((program.process_id, server_of(program)), seconds)
        found = watch.readings(0)
    read = found.listings + found.openings
    what = f"hidden, with the minute check, {COUNT:,} notes, over {seconds:.0f} s"
    yield Figure(f"read while nothing changes, {what}", str(found), budget="none", to_budget=float(read > 0) * 2)
    yield Figure(f"processor, {what}", f"{ours:.3f} % (Wine's server {server:.3f} %)", budget=f"{MOST_HIDDEN} %",
                 to_budget=ours / MOST_HIDDEN)


def memory_of_few():
    """Proportional set size in kB with a hundred notes, likewise after turning a page and saving."""
    with with_notes(FEW) as program, Mappings(program) as mappings:
        start(program, mappings)
        use(Browsing(program))
        return proportional_size(program.process_id)


def memory_figure(many):
    few = memory_of_few()
    return Figure(f"memory (proportional set size), {COUNT:,} notes", f"{many:,} kB", f"with {FEW} notes {few:,} kB",
                  many / few, f"{MOST_MEMORY} times", many / few / MOST_MEMORY)


def measure(quick):
    repetitions = QUICK_REPETITIONS if quick else REPETITIONS
    with with_notes(COUNT) as program, Mappings(program) as mappings:
        yield from start_figures(program, mappings, repetitions)
        yield reading_figure(program, "a start", lambda: start(program, mappings))
        browsing = Browsing(program)
        yield from save_figures(program, browsing, repetitions)
        yield reading_figure(program, "Save", browsing.save)
        yield from turn_figures(program, browsing, repetitions)
        yield reading_figure(program, "a page turn", browsing.turn)
        memory = proportional_size(program.process_id)
        yield coming_figure(program, repetitions)
        yield from find_figures(program, repetitions)
        program.press("Minimize")
        program.wait_until(lambda: not program.main.visible, "the window to go")
        time.sleep(SETTLED)
        yield from idle_figures(program, 5 if quick else 60)
    yield memory_figure(memory)
