"""How long the window is busy with a click: asked of the window itself, by the probe."""

import time

WATCHED = 0.5  # seconds after the click in which work that comes a little later is seen
SLOW = 0.02  # seconds; an answer that takes longer was kept waiting by such work


def _seconds_of(work):
    begin = time.monotonic()
    work()
    return time.monotonic() - begin


def milliseconds_busy(program, main, place):
    """From the click at that place of the window until the window has done all that follows, and answers again; with
    what a timer or a message to itself makes it do a little later."""
    return milliseconds_busy_with(program, main, lambda: program.wine.ask("click", main.handle, *place))


def milliseconds_busy_with(program, main, work):
    """The same from any work that waits for the window."""
    busy = _seconds_of(work)
    end, taken = time.monotonic() + WATCHED, 0.0
    while time.monotonic() < end or taken > SLOW:
        time.sleep(0.005)  # or the asking would keep the window busy itself
        # Gives up after some seconds and is asked again.
        taken = _seconds_of(lambda: program.wine.ask("text", main.handle))
        busy += taken if taken > SLOW else 0
    return 1000 * busy


def milliseconds_of_a_question(program, main):
    """What of such a figure is the asking: a question to a window that has nothing to do."""
    return 1000 * _seconds_of(lambda: program.wine.ask("text", main.handle))
