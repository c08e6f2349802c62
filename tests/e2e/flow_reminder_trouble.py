"""If this fails, a damaged or vanished note keeps other notes from ringing, or the user is told of it again and again."""

from reminders import RingingKalvora

GONE = "This note is gone."


def a_damaged_note():
    """21 November 2026 is a Saturday."""
    notes = {"Broken.tx2": "7|30|1|1|1|1|1|yes|1|Friday is no number", "Good.tx1": "7|30|Rings",
             "Week.tx2": "7|31|1|1|1|1|1|1|1|Rings too"}
    with RingingKalvora("damaged", notes=notes, clock="2026-11-21 07:29:00") as program:
        program.start_and_wait_for_tray()
        box = program.message_box("Error!")
        assert box.message.splitlines()[1:] == ["Broken.tx2"], box.message
        box.answer("OK")
        program.ring_and_dismiss("2026-11-21 07:30:00", "Good", "Rings")
        program.ring_and_dismiss("2026-11-21 07:31:00", "Week", "Rings too")
        # The next day is no news of it.
        program.ring_at("2026-11-22 07:30:00", "Good", "Rings")
        assert program.message_boxes() == []
        program.dismiss()
        assert program.end() == 0


def a_note_that_vanishes():
    notes = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.tx1": "7|30|Two of them",
             "Tea.tx1": "7|30|Green"}
    with RingingKalvora("vanished", notes=notes, clock="2026-11-21 07:29:30") as program:
        program.start_and_wait_for_tray()
        program.ring_at("2026-11-21 07:30:00", "Gym", "Run")
        (program.folder / "notes" / "Pills.tx1").unlink()
        program.press("Minimize")
        program.expect_reminder("Pills", GONE)
        program.keep_picture("reminder-gone")
        program.press("Minimize")
        program.expect_reminder("Tea", "Green")
        program.dismiss()
        assert program.message_boxes() == []
        program.open_window()
        program.expect_browsing("Browsing")
        assert program.end() == 0


def a_folder_that_vanishes():
    notes = {"Gym.txt": "7|30|Run", "Pills.tx1": "7|32|Two of them"}
    with RingingKalvora("folder", notes=notes, clock="2026-11-21 07:29:30") as program:
        folder, away = program.folder / "notes", program.folder / "notes away"
        program.start_and_wait_for_tray()
        folder.rename(away)
        program.ring_and_dismiss("2026-11-21 07:30:00", "Gym", GONE)
        program.pass_in_silence("2026-11-21 07:31:00")
        assert program.message_boxes() == []
        away.rename(folder)
        program.ring_and_dismiss("2026-11-21 07:32:00", "Pills", "Two of them")
        # Also a folder that is away when a day begins.
        folder.rename(away)
        program.pass_in_silence("2026-11-22 00:00:00")
        program.pass_in_silence("2026-11-22 00:01:00")
        assert program.message_boxes() == []
        away.rename(folder)
        program.ring_and_dismiss("2026-11-22 07:30:00", "Gym", "Run")
        assert program.end() == 0


a_damaged_note()
a_note_that_vanishes()
a_folder_that_vanishes()
