"""If this fails, a user who ticked "Keep what I type" and types into the window and the editor at once, or over a note that
rings, finds what one of them saved undone, a note twice, or a deleted one back."""

from drafts import drafts
from editor import CONTENT, DELETE, NAME, Editor, note_files, wait_for_files
from kalvora import TEXT, TITLE
from reminders import WINDOW, RingingKalvora

GYM, WITH_SUNDAY = b"7|30|0|1|0|0|0|1|0|", b"7|30|1|1|0|0|0|1|0|"
NOTES = {"Gym.tx2": GYM + b"Mat", "Milk.txt": "||Two", "Pills.tx1": "7|31|Two of them", "Tea.tx1": "7|32|Now",
         "Walk.tx1": "8|40|Round the lake"}
SETTINGS = {"Graph": {**WINDOW, "Window_X": "20"}, "Sounds": {"Use_Sounds": "True"},
            "Sys": {"AmPm": "False", "Fast_delete_msg": "False"}, "Comfort": {"Keep_typing": "True"}}
SCREEN = (1440, 900)
WEEKLY, DAILY = 1, 0


def each_window_keeps_what_the_other_saved(program, files):
    editor = Editor(program)
    editor.choose_tab(WEEKLY)
    editor.pick("Gym")
    editor.tick("Sunday")
    # The editor saves the main window's words where it reads, not while it is typed in.
    program.type_over(TEXT, "Mat and towel")
    program.press("Right")
    program.shows("Milk")
    files["Gym.tx2"] = GYM + b"Mat and towel"
    wait_for_files(program, files)
    editor.wait_for_text(CONTENT, "Mat and towel")
    editor.choose_tab(DAILY)
    files["Gym.tx2"] = WITH_SUNDAY + b"Mat and towel"
    wait_for_files(program, files)
    editor.choose_tab(WEEKLY)
    editor.wait_for_text(CONTENT, "Mat and towel")
    program.press("Left")
    program.shows("Gym")
    return editor


def a_new_name_comes_into_the_other_window(program, files, editor):
    program.type_over(TEXT, "Shoes")
    editor.fill(NAME, "Sport")
    editor.choose_tab(DAILY)
    files["Sport.tx2"] = files.pop("Gym.tx2")
    wait_for_files(program, files)
    program.shows("Sport")
    assert program.main.control(TEXT).text == "Shoes"
    program.press("Right")
    files["Sport.tx2"] = WITH_SUNDAY + b"Shoes"
    wait_for_files(program, files)


def a_deletion_is_not_undone(program, files, editor):
    editor.pick("Tea")
    while program.main.control(TITLE).text != "Tea":
        title = program.main.control(TITLE).text
        program.press("Right")
        program.wait_until(lambda title=title: program.main.control(TITLE).text != title, "another page")
    program.type_over(TEXT, "Never")
    editor[DELETE].click()
    del files["Tea.tx1"]
    wait_for_files(program, files)
    editor.close()
    program.shows("Milk")
    assert note_files(program) == files
    assert drafts(program) == {("Tea.tx1", b"7|32|Never")}, drafts(program)


def a_reminder_that_waits_follows_the_name(program, files):
    program.press("Right")
    program.shows("Pills")
    program.set_clock("2026-11-23 07:30:58")
    program.wait_until(lambda: program.clock().minute == 31 and program.clock().second > 4, "the minute of Pills")
    program.expect_browsing("Pills")
    program.type_over(TITLE, "Tablets")
    program.press("Minimize")
    files["Tablets.tx1"] = files.pop("Pills.tx1")
    program.expect_reminder("Tablets", "Two of them")
    wait_for_files(program, files)
    program.dismiss()


def the_fast_bin_deletes_though_a_reminder_waits(program, files):
    program.open_window()
    program.shows("Tablets")
    program.press("Left")
    program.shows("Sport")
    program.type_over(TEXT, "Towel")
    program.set_clock("2026-11-23 08:39:58")
    program.wait_until(lambda: program.clock().minute == 40 and program.clock().second > 4, "the minute of Walk")
    program.press("Fast Delete")
    program.expect_reminder("Walk", "Round the lake")
    del files["Sport.tx2"]
    wait_for_files(program, files)
    program.dismiss()
    assert program.end() == 0
    wait_for_files(program, files)


# A Monday; no note is due before 7:30.
with RingingKalvora(notes=NOTES, settings=SETTINGS, screen=SCREEN, clock="2026-11-23 06:41:00") as program:
    files = {name: text if isinstance(text, bytes) else text.encode() for name, text in NOTES.items()}
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("Gym")
    editor = each_window_keeps_what_the_other_saved(program, files)
    a_new_name_comes_into_the_other_window(program, files, editor)
    a_deletion_is_not_undone(program, files, editor)
    a_reminder_that_waits_follows_the_name(program, files)
    the_fast_bin_deletes_though_a_reminder_waits(program, files)
