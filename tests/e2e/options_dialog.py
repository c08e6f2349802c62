"""The options dialog as a user knows it: its pages in the tree, its boxes by what they set."""

from driver import comfort_keys
from kalvora import Kalvora

TITLE = "Kalvora Options"

# The rows of the tree from top to bottom.
PAGES = ("Systems", "Sounds", "Graphics", "Window Display", "Set Window Position", "Skins", "Icons", "Comfort")
TREE, ROW_HEIGHT, ROW_TEXT = 3000, 16, 50
PAGE_TITLE = 3002

OK, CLOSE, APPLY = "OK", "Close", "Apply"
START_SHOWN, ROLL_DOWN, ROLL_IN, RESIZE, SAVE_POSITION = range(3010, 3015)
WINDOW_TIME, WINDOW_SIZE, NOTES_TIME, NOTES_SIZE = range(3020, 3024)
LEFT, TOP, PREVIEW, SET_USING_MOUSE = 3030, 3031, 3032, 3033
USE_SOUNDS = 3040
SHOW_SOUND, ALARM_SOUND = 3050, 3054
BROWSE_SHOW, PLAY_SHOW = 3060, 3070
TWELVE_HOURS, ON_TOP, ASK_BEFORE_DELETE = 3080, 3081, 3082
SKINS, SKIN_PLACE, REFRESH_SKINS, USE_AND_CLOSE = 3090, 3091, 3092, 3093
SKIN_HEIGHT = 92  # of an entry of the list
ICONS = 3100
ALL_COMFORT = 3085
# The ticks of the page "Comfort", in its order.
COMFORT = range(3110, 3110 + len(comfort_keys()))
RING_WHILE_OUT, CATCH_UP, EACH_DAY, ONCE_A_MINUTE, ONCE_NOTES = COMFORT[:5]


class OptionsDialog:
    """The dialog, opened through the menu of the tray icon."""

    def __init__(self, program, choose=Kalvora.choose):
        """choose: how the menu is gone through."""
        self._program = program
        choose(program, "Options")
        self.window = program.window(title=TITLE)

    def box(self, number):
        return self.window.control(number)

    def page(self, name):
        """Clicks the page's row in the tree and waits until it is on show, alone."""
        self.box(TREE).click(ROW_TEXT, ROW_HEIGHT * PAGES.index(name) + ROW_HEIGHT // 2)
        self._program.wait_until(lambda: self.pages_on_show() == [name], f"the page {name}")

    def pages_on_show(self):
        return [one.text for one in self.window.controls("Static") if one.id == PAGE_TITLE and one.visible]

    def write(self, number, text):
        """Types over the whole of a box, as a user does."""
        self.box(number).click()
        self._program.screen.key("ctrl+a")
        self._program.screen.type(text)

    def text(self, number):
        return self.box(number).text

    def click(self, number):
        """Clicks a control, or one of the three buttons below by its caption."""
        if number in (OK, CLOSE, APPLY):
            below = [one for one in self.window.controls("Button") if one.text.replace("&", "") == number]
            below[0].click()
        else:
            self.box(number).click()

    def tick(self, number):
        """Clicks a check box and waits until it has changed."""
        before = self.box(number).checked
        self.click(number)
        self._program.wait_until(lambda: self.box(number).checked != before, f"the tick of {number}")

    def checked(self, number):
        return self.box(number).checked

    def choose_skin(self, index):
        self.box(SKINS).click(150, SKIN_HEIGHT * index + SKIN_HEIGHT // 2)

    def icon(self, index):
        """The button of the icon file at this place."""
        grid = self.box(ICONS)
        left, top, width, height = grid.place
        inside = [one for one in self.window.controls("Button")
                  if left <= one.place[0] < left + width and top <= one.place[1] < top + height and one.visible]
        return sorted(inside, key=lambda one: (one.place[1], one.place[0]))[index]

    def leave(self, number):
        """Clicks OK or Close and waits until the dialog has gone."""
        self.click(number)
        self._program.wait_until(lambda: not self.window.exists, "the options to go")


def tick_comfort(program, *numbers):
    """Ticks these of the page "Comfort" with the mouse."""
    dialog = OptionsDialog(program)
    dialog.page("Comfort")
    for number in numbers:
        dialog.tick(number)
    dialog.leave(OK)


def tick_comfort_by_key(program, *numbers):
    """The same with the keyboard alone: from the tree through the ticks, and Enter for OK."""
    dialog = OptionsDialog(program, Kalvora.choose_by_key)
    program.screen.key("End")
    program.wait_until(lambda: dialog.pages_on_show() == ["Comfort"], "the last page")
    for number in COMFORT:
        program.screen.key("Tab", *["space"] * (number in numbers))
    program.wait_until(lambda: all(dialog.checked(number) for number in numbers), f"the ticks {numbers}")
    program.screen.key("Return")
    program.wait_until(lambda: not dialog.window.exists, "the options to go")
