"""How long the window is busy with a click: asked of the window itself, by the probe."""

import time

CALM = 0.5  # seconds in which the window must have answered at once; work that comes later is not seen
SLOW = 0.02  # seconds; an answer that takes longer was kept waiting by such work


def _seconds_of(work):
    begin = time.monotonic()
    work()
    return time.monotonic() - begin


def milliseconds_busy(program, main, place):
    """From the click at that place of the window until the window has done all that follows, and answers again; with
    what a timer or a message to itself makes it do a little later."""
    busy = _seconds_of(lambda: program.wine.ask("click", main.handle, *place))
    calm_since = time.monotonic()
    while time.monotonic() - calm_since < CALM:
        # Gives up after some seconds and is asked again.
        taken = _seconds_of(lambda: program.wine.ask("text", main.handle))
        if taken > SLOW:
            busy, calm_since = busy + taken, time.monotonic()
        time.sleep(0.005)  # or the asking would keep the window busy itself
    return 1000 * busy


def milliseconds_of_a_question(program, main):
    """What of such a figure is the asking: a question to a window that has nothing to do."""
    return 1000 * _seconds_of(lambda: program.wine.ask("text", main.handle))
