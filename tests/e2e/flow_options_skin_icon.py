"""If this fails, a skin or an icon that the user clicks in the options is not worn at once, or is lost
with the dialog; or closing the dialog stores something."""

import shutil

import options_dialog as options
from kalvora import ALMANAC, PLAIN, SOURCE, Kalvora
from options_dialog import OptionsDialog

ICONS = [SOURCE / "assets" / "icons" / f"{name}.ico" for name in ("bell", "kalvora", "pin")]
PLACE = (60, 80)
SETTINGS = {"Graph": {"Window_X": str(PLACE[0]), "Window_Y": str(PLACE[1]), "Win1_Jump": "100",
                      "Win2_Jump": "100"}}


def look(program):
    """The window's size and what is to be seen near its left edge, which the dialog leaves free."""
    left, top, width, height = program.main.place
    picture = program.screen.picture()
    return (width, height), [picture.getpixel((left + 80, top + y)) for y in range(60, height - 60, 20)]


def tray_picture(program):
    place = program.tray.place
    if place is None:  # The icon is put in anew.
        return None
    left, top, _, height = place
    return program.screen.picture().crop((left, top, left + 20, top + height)).tobytes()


def check_skins(program, dialog):
    dialog.page("Skins")
    assert dialog.text(options.SKIN_PLACE) == "0 of 2"
    first = look(program)
    dialog.choose_skin(1)
    program.wait_until(lambda: look(program)[0] != first[0], "the window in the second skin")
    assert dialog.text(options.SKIN_PLACE) == "1 of 2", "counted from 0"
    second = look(program)
    assert second[1] != first[1], "other pictures too"
    program.keep_picture("options-second-skin")
    dialog.choose_skin(0)
    program.wait_until(lambda: look(program) == first, "the window in the first skin")

    shutil.copytree(PLAIN, program.folder / "skins" / "Third")
    dialog.click(options.REFRESH_SKINS)
    program.wait_until(lambda: dialog.text(options.SKIN_PLACE) == "0 of 3", "the new skin in the list")
    dialog.choose_skin(1)
    program.wait_until(lambda: look(program) == second, "the window in the second skin again")
    return first, second


def check_icons(program, dialog):
    dialog.page("Icons")
    before = tray_picture(program)
    dialog.icon(0).click()
    program.wait_until(lambda: tray_picture(program) not in (before, None), "the bell in the tray")
    bell = tray_picture(program)
    dialog.icon(2).click()
    program.wait_until(lambda: tray_picture(program) not in (before, bell, None), "the pin in the tray")
    program.keep_picture("options-second-icon")
    dialog.icon(0).click()
    program.wait_until(lambda: tray_picture(program) == bell, "the bell in the tray again")
    return bell


with Kalvora(notes={"a.txt": "||Alpha"}, skins=[ALMANAC, PLAIN], icons=ICONS, settings=SETTINGS) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    dialog = OptionsDialog(program)
    first, second = check_skins(program, dialog)
    bell = check_icons(program, dialog)
    dialog.page("Systems")
    dialog.tick(options.ON_TOP)
    dialog.leave(options.CLOSE)
    # Skin and icon stay on and were stored; what needs Apply or OK is forgotten.
    assert look(program) == second
    program.wait_until(lambda: tray_picture(program) == bell, "the bell in the tray")
    chosen = {"Graph": ["Icon filename"], "Sys": ["Last_skin"], "Sounds": []}
    for section, keys in chosen.items():
        assert sorted(program.setting_keys(section)) == sorted({*SETTINGS.get(section, {}), *keys}), section
    assert program.setting("Sys", "Last_skin") == "1"
    assert program.setting("Graph", "Icon filename") == "bell.ico"

    # "Use and close" wears the chosen skin and closes.
    dialog = OptionsDialog(program)
    dialog.page("Systems")
    assert dialog.checked(options.ON_TOP)
    dialog.page("Skins")
    assert dialog.text(options.SKIN_PLACE) == "1 of 3"
    dialog.choose_skin(0)
    dialog.leave(options.USE_AND_CLOSE)
    program.wait_until(lambda: look(program) == first, "the window in the first skin")

    # OK stores both, and the next start finds them.
    dialog = OptionsDialog(program)
    dialog.page("Skins")
    dialog.choose_skin(1)
    program.wait_until(lambda: look(program) == second, "the window in the second skin")
    dialog.leave(options.OK)
    assert program.setting("Sys", "Last_skin") == "1"
    assert program.setting("Graph", "Icon filename") == "bell.ico"
    assert program.end() == 0
    program.start_and_wait_for_tray()
    program.open_window()
    program.wait_until(lambda: look(program) == second, "the second skin at the next start")
    program.wait_until(lambda: tray_picture(program) == bell, "the bell at the next start")
    assert program.end() == 0
