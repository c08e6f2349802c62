"""The program's windows as the driver sees them: their controls, and message boxes."""

from desktop import Timeout

ES_READONLY = 0x800


class Control:
    """A control of a window, or any window, as it was when it was found; text is read anew each time."""

    def __init__(self, program, facts):
        self._program = program
        self.handle = facts["handle"]
        self.class_name = facts["class"]
        self.id = facts["id"]

    def _facts(self):
        return self._program.wine.ask("window", self.handle)

    def _fact(self, name):
        facts = self._facts()
        if facts is None:
            raise AssertionError(f"the window {self.class_name} {self.id} is gone")
        return facts[name]

    @property
    def exists(self):
        return self._facts() is not None

    @property
    def text(self):
        return self._program.wine.ask("text", self.handle)

    @property
    def visible(self):
        facts = self._facts()
        return facts is not None and facts["visible"]

    @property
    def enabled(self):
        return self._fact("enabled")

    @property
    def checked(self):
        return self._fact("checked")

    @property
    def read_only(self):
        """Whether an edit box takes no input."""
        return bool(self._fact("style") & ES_READONLY)

    @property
    def first_line(self):
        """The number of the topmost line of an edit box, from 0."""
        return self._program.wine.ask("firstline", self.handle)

    @property
    def topmost(self):
        return self._fact("topmost")

    @property
    def place(self):
        """(x, y, width, height) in pixels of the screen."""
        return tuple(self._fact("place"))

    def set_text(self, text):
        """Puts a text in at once, as pasting over all of it would."""
        self._program.wine.ask("settext", self.handle, text)

    def push(self):
        """Pushes a button, without the mouse."""
        self._program.wine.ask("press", self.handle)

    def on_screen(self, x, y):
        left, top, _, _ = self.place
        return left + x, top + y

    def click(self, x=None, y=None, button=1, times=1):
        """Clicks at (x, y) of the window, or in its middle."""
        left, top, width, height = self.place
        at = (left + (width // 2 if x is None else x), top + (height // 2 if y is None else y))
        self._program.screen.click(*at, button=button, times=times)

    def type(self, text):
        """Clicks into the control and types."""
        self.click()
        self._program.screen.type(text)


class Window(Control):
    """A top-level window. Positions are pixels from its upper left corner."""

    def control(self, number):
        """The control with this id."""
        for facts in self._program.wine.ask("controls", self.handle):
            if facts["id"] == number:
                return Control(self._program, facts)
        raise AssertionError(f"the window has no control {number}")

    def controls(self, class_name=None):
        return [Control(self._program, facts)
                for facts in self._program.wine.ask("controls", self.handle)
                if class_name is None or facts["class"] == class_name]

    def press(self, x, y, button=1):
        self._program.screen.press(*self.on_screen(x, y), button=button)

    def release(self, button=1):
        self._program.screen.release(button)

    def drag(self, start, finish):
        """Presses at start and lets go at finish, both in the window as it stands before the drag."""
        self._program.screen.drag(self.on_screen(*start), self.on_screen(*finish))

    def pixel(self, x, y):
        """The colour on the screen at that place, whoever painted it."""
        return self._program.screen.pixel(*self.on_screen(x, y))

    def covers(self, x, y):
        """Whether the pixel lies inside the window's shape."""
        return self._program.wine.ask("covers", self.handle, x, y)

    def close(self):
        self._program.wine.ask("close", self.handle)


CLICKS_AT_MOST = 3


class MessageBox(Window):
    """A message box: its title, its text and its buttons."""

    def __init__(self, program, facts):
        super().__init__(program, facts)
        self.title = facts["text"]

    def _wait_until_standing(self):
        """A busy window manager may still move a box that just came, and a click would miss it."""
        places = []

        def stands():
            places.append(self.place)
            return len(places) > 4 and len(set(places[-4:])) == 1

        self._program.wait_until(stands, f"the box '{self.title}' to stand still")

    @property
    def message(self):
        return "\n".join(one.text for one in self.controls("Static") if one.text)

    @property
    def buttons(self):
        return [one.text.replace("&", "") for one in self.controls("Button")]

    def answer(self, button):
        """Clicks the button with this caption and waits until the box is gone."""
        self._wait_until_standing()
        found = [one for one in self.controls("Button") if one.text.replace("&", "") == button]
        assert found, f"the box has no button '{button}', only {self.buttons}"
        # On a busy machine the window manager can swallow the first click on a window that just came.
        for _ in range(CLICKS_AT_MOST):
            found[0].click()
            try:
                return self._program.wait_until(lambda: not self.exists, f"the box '{self.title}' to go", 20)
            except Timeout as timeout:
                missed = timeout
        raise missed
