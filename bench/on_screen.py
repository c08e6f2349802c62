"""When a window comes, asked of the screen."""

import time

LONGEST = 60  # seconds


def wait_until_shown(program, name):
    """Asks as often as an xdotool can be started, which takes some milliseconds each time."""
    deadline = time.monotonic() + LONGEST
    while not program.screen.xdotool("search", "--onlyvisible", "--name", f"^{name}$"):
        assert time.monotonic() < deadline, f"the window {name} does not come"
