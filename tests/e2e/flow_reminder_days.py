"""If this fails, a weekly note rings on a day that is not ticked, or a monthly or yearly one on a wrong date."""

from reminders import RingingKalvora

# 22 November 2026 is a Sunday. The daily notes show that the time of the others has passed in silence.
WEEKLY = {"Class.tx2": "7|30|0|1|0|0|0|0|0|Mondays", "Clean.tx1": "7|31|Every day",
          "Shift.tx2": "0|1|0|1|0|0|0|0|0|Mondays", "Rest.tx2": "0|2|1|0|0|0|0|0|0|Sundays",
          "Sleep.tx1": "0|3|Every day"}
DATED = {"Browsing.txt": "||Nothing is due here",
         "Rent.tx3": "20|6|2|From six days ahead, every second day",
         "Birthday.tx4": "5|11|3|1|In December, from three days ahead"}


def weekly_notes():
    with RingingKalvora("weekly", notes=WEEKLY, clock="2026-11-22 07:29:30") as program:
        program.start_and_wait_for_tray()
        program.pass_in_silence("2026-11-22 07:30:00")
        program.ring_and_dismiss("2026-11-22 07:31:00", "Clean", "Every day")
        # Past midnight into the day that is ticked.
        program.ring_and_dismiss("2026-11-23 00:01:00", "Shift", "Mondays")
        program.pass_in_silence("2026-11-23 00:02:00")
        program.ring_and_dismiss("2026-11-23 00:03:00", "Sleep", "Every day")
        program.ring_and_dismiss("2026-11-23 07:30:00", "Class", "Mondays")
        assert program.end() == 0
        # A program started on the day, and one started on another.
        program.start_at("2026-11-23 07:29:30")
        program.ring_and_dismiss("2026-11-23 07:30:00", "Class", "Mondays")
        assert program.end() == 0
        program.start_at("2026-11-24 07:29:30")
        program.pass_in_silence("2026-11-24 07:30:00")
        assert program.end() == 0


def dated_notes():
    with RingingKalvora("dated", notes=DATED, clock="2026-11-20 09:00:00") as program:
        def rings_on(day, title, text):
            alarms = program.alarms_heard()
            program.start_at(f"{day} 09:00:10")
            program.expect_reminder(title, text)
            program.wait_until(lambda: program.alarms_heard() == alarms + 1, "the alarm")
            program.dismiss()
            assert program.end() == 0

        def is_silent_on(day):
            alarms = program.alarms_heard()
            program.start_at(f"{day} 09:00:10")
            # With the window hidden by now, whoever opens it sees a note, and no reminder.
            program.open_window()
            program.expect_browsing("Birthday")
            assert program.alarms_heard() == alarms, program.heard()
            assert program.end() == 0

        rent, birthday = DATED["Rent.tx3"].split("|")[-1], DATED["Birthday.tx4"].split("|")[-1]
        rings_on("2026-11-20", "Rent", rent)
        rings_on("2026-11-18", "Rent", rent)
        is_silent_on("2026-11-19")
        rings_on("2026-12-05", "Birthday", birthday)
        rings_on("2026-12-02", "Birthday", birthday)
        is_silent_on("2026-12-01")
        is_silent_on("2026-11-05")


weekly_notes()
dated_notes()
