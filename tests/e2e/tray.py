"""The program's icon in the strip of tray icons that Wine shows."""

import time

STRIP_TITLE = "^Wine System Tray$"
TRAY_ICON_WIDTH = 20  # of Wine's strip of tray icons
POINTER_RESTS = 0.25  # seconds; for 0.1 Wine believes what it was told last


class Tray:
    """The tray icon. Wine shows the icons in a strip, one program's first."""

    def __init__(self, program):
        self._program = program

    @property
    def place(self):
        return self._program.screen.place_of("--name", STRIP_TITLE)

    @property
    def there(self):
        return self.place is not None

    @property
    def middle(self):
        """The middle of the icon on the screen."""
        left, top, _, height = self._program.wait_until(lambda: self.place, "the tray icon")
        return left + TRAY_ICON_WIDTH // 2, top + height // 2

    def move_to(self, x, y):
        """Takes the strip to another corner, as a user does who has his task bar there."""
        self._program.screen.xdotool("search", "--name", STRIP_TITLE, "windowmove",
                                     *self._program.screen.on_x(x, y))
        self._program.wait_until(lambda: self.place[:2] == (x, y), f"the tray icons at {x}, {y}")

    def rest_pointer(self):
        """Points at the icon and waits until Windows has known it for a while. What a window still
        had to read of the pointer's way would otherwise take it back for a moment."""
        self._program.screen.move(*self.middle)
        since = time.monotonic()

        def rests():
            nonlocal since
            if tuple(self._program.wine.ask("pointer")) != self.middle:
                since = time.monotonic()
            return time.monotonic() - since > POINTER_RESTS

        self._program.wait_until(rests, "the pointer to rest on the tray icon")

    def _click(self, button, times):
        self._program.screen.click(*self.middle, button, times)

    def click(self):
        self._click(1, 1)

    def double_click(self):
        self._click(1, 2)

    def right_click(self):
        self._click(3, 1)
