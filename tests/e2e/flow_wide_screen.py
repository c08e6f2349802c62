"""If this fails, nobody with a wide screen sees the window or a reminder, or it loses its place on the right half."""

from reminders import RingingKalvora

SLIDES = {"Win1_Jump": "40", "Win2_Jump": "100"}
SETTINGS = {"Graph": SLIDES, "Sys": {"AmPm": "False"}, "Sounds": {"Use_Sounds": "True"}}
NOTES = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.txt": "7|40|Two"}
GRIP = (150, 5)
FAR = 2300


def drag_to(program, x, y):
    left, top, _, _ = program.main.place
    program.main.drag(GRIP, (GRIP[0] + x - left, GRIP[1] + y - top))
    program.wait_until(lambda: program.main.place[:2] == (x, y), f"the window at {x}, {y}")


def away(program):
    program.tray.double_click()  # The window's own button may be beyond the edge of the screen.
    program.wait_until(lambda: not program.main.visible, "the window to slide away")


def on_a_screen_of(size):
    with RingingKalvora(f"wide-{size[0]}", notes=NOTES, settings=SETTINGS, screen=size,
                        clock="2026-11-21 07:29:00") as program:
        program.start_and_wait_for_tray()
        program.open_window()
        left, top, width, height = program.main.place
        assert left + width == size[0], (left, width)
        assert abs(top - (size[1] - 161) // 2) <= 1, (top, height)
        away(program)
        program.ring_at("2026-11-21 07:30:00", "Gym", "Run")
        program.keep_picture(f"wide-{size[0]}")
        program.dismiss()

        program.open_window()
        program.expect_browsing("Browsing")
        drag_to(program, FAR, 600)
        away(program)
        program.open_window()
        assert program.main.place[:2] == (FAR, 600), program.main.place
        away(program)
        assert program.end() == 0
        assert (program.setting("Graph", "Window_X"), program.setting("Graph", "Window_Y")) == (str(FAR), "600")

        program.start_at("2026-11-21 07:39:30")
        program.ring_at("2026-11-21 07:40:00", "Pills", "Two")
        assert program.main.place[:2] == (FAR, 600), program.main.place
        assert not program.message_boxes()
        assert program.end() == 0


on_a_screen_of((2560, 1440))
on_a_screen_of((3840, 2160))
