"""If this fails, a reminder can't be put away, or read, once another skin was chosen while it was on show."""

import options_dialog as options
from driver import SOURCE
from kalvora import ALMANAC
from options_dialog import OptionsDialog
from reminders import WINDOW, RingingKalvora

BEACON = SOURCE / "assets" / "skins" / "Beacon"

# Both skins are worn in turn; where the buttons are, the second one's description tells.
with RingingKalvora(notes={"Gym.txt": "7|30|Run"}, skin=BEACON, skins=[ALMANAC, BEACON],
                    clock="2026-11-21 07:29:30",
                    settings={"Graph": {**WINDOW, "Window_X": "20"}, "Sys": {"AmPm": "False"},
                              "Sounds": {"Use_Sounds": "True"}}) as program:
    program.start_and_wait_for_tray()
    program.set_clock("2026-11-21 07:29:58")
    program.wait_until(lambda: program.main.visible, "the reminder")
    program.shows("Gym")
    program.wait_until_standing()
    small = program.main.place
    dialog = OptionsDialog(program)
    dialog.page("Skins")
    dialog.choose_skin(1)
    program.wait_until(lambda: program.main.place[2:] > small[2:], "the window to take the larger skin's size")
    assert program.main.place[:2] == small[:2], (program.main.place, small)
    dialog.leave(options.CLOSE)
    program.expect_reminder("Gym", "Run")
    assert program.looks_whole("Minimize"), "the button that puts it away is to be seen"
    program.keep_picture("reminder-new-skin")
    program.dismiss()
    program.open_window()
    program.expect_browsing("Gym")
    assert program.end() == 0
