"""If this fails, a tick of the page "Comfort" is not kept, or is kept by a user who never chose it."""

import options_dialog as options
from driver import comfort_keys
from kalvora import Kalvora
from options_dialog import OptionsDialog

KEYS = comfort_keys()


def ticked(dialog):
    """The keys of what is ticked."""
    return [key for key, number in zip(KEYS, options.COMFORT) if dialog.checked(number)]


def stored(program):
    return [program.setting("Comfort", key) for key in KEYS]


with Kalvora(notes={"a.txt": "||Alpha"}) as program:
    program.start_and_wait_for_tray()

    # Who chooses nothing there has nothing stored.
    dialog = OptionsDialog(program)
    dialog.page("Comfort")
    program.keep_picture("options-comfort")
    assert ticked(dialog) == []
    dialog.click(options.APPLY)
    program.wait_until(lambda: program.setting("Sys", "AmPm") == "True", "the settings to be stored")
    assert program.setting_keys("Comfort") == [], program.setting_keys("Comfort")

    # With the mouse: one of them, and after a look at another page it is still ticked.
    dialog.tick(options.EACH_DAY)
    dialog.page("Systems")
    dialog.page("Comfort")
    dialog.leave(options.OK)
    program.wait_until(lambda: program.setting("Comfort", "Each_day") == "True", "the tick to be stored")
    assert program.setting_keys("Comfort") == ["Each_day"], program.setting_keys("Comfort")

    # With the keyboard alone: from the tree to the first tick, on to the button, and OK.
    dialog = OptionsDialog(program)
    dialog.page("Comfort")
    assert ticked(dialog) == ["Each_day"]
    for key in ("Tab", "space"):
        program.screen.key(key)
    program.wait_until(lambda: ticked(dialog) == ["Ring_while_out", "Each_day"], "the first tick")
    for key in ["Tab"] * len(KEYS) + ["space"]:
        program.screen.key(key)
    program.wait_until(lambda: ticked(dialog) == KEYS, "all of them")
    program.keep_picture("options-comfort-all")
    for key in ("Tab", "Return"):
        program.screen.key(key)
    program.wait_until(lambda: not dialog.window.exists, "the options to go")
    assert stored(program) == ["True"] * len(KEYS), stored(program)
    assert program.end() == 0

    program.start_and_wait_for_tray()
    dialog = OptionsDialog(program)
    dialog.page("Comfort")
    assert ticked(dialog) == KEYS
    for number in options.COMFORT:
        dialog.tick(number)
    dialog.leave(options.OK)
    program.wait_until(lambda: stored(program) == ["False"] * len(KEYS), "the ticks to be taken back")
    assert program.end() == 0
