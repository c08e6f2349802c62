"""If this fails, a button plays the wrong sound, or the program is heard though sounds are off."""

from sounds import AudibleKalvora

WINDOW = {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "100", "Win2_Jump": "100"}


def use_everything(program, after_each):
    """Every button and the tray icon, in a round that leaves the window hidden."""
    program.open_window()
    after_each("show")
    for button in ("New", "Left", "Right", "Save", "Delete"):
        program.press(button)
        after_each("press")
    program.press("Fast Delete")
    program.message_box("Delete").answer("Cancel")
    after_each("delete")
    program.press("Rool Down/Up")
    program.wait_until(lambda: program.main.place[3] == 43, "the window to roll up")
    program.main.press(*program.middle_of("Minimize"))
    program.screen.move(*program.main.on_screen(-20, -20))
    program.screen.release()  # beside the button
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to slide away")
    after_each("hide")
    program.open_window()
    after_each("show")
    program.tray.double_click()
    program.wait_until(lambda: not program.main.visible, "the window to slide away")
    after_each("hide")


NOTES = {"a.txt": "||Alpha", "b.txt": "||Bravo", "c.txt": "||Charlie"}

with AudibleKalvora(notes=NOTES, settings={"Graph": WINDOW, "Sounds": {"Use_Sounds": "True"}}) as program:
    program.start_and_wait_for_tray()
    so_far = []

    def hear(name):
        so_far.append(name)
        program.expect(*so_far)

    use_everything(program, hear)
    assert program.end() == 0
    program.expect(*so_far)

with AudibleKalvora("sounds-off", notes=NOTES, settings={"Graph": WINDOW, "Sounds": {"Use_Sounds": "False"}}) as program:
    program.start_and_wait_for_tray()
    use_everything(program, lambda name: None)
    assert program.end() == 0
    program.expect()
