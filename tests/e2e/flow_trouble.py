"""If this fails, one bad value or one bad file takes the whole program down."""

import random

from kalvora import TITLE, Kalvora

# A step beyond 16 bits of twips: the window comes out, and the message says what is to be mended.
with Kalvora("overflow", notes={"a.txt": "||Alpha"},
             settings={"Graph": {"Win1_Jump": "3000", "Window_X": "300", "Window_Y": "200"}}) as program:
    program.start_and_wait_for_tray()
    program.tray.double_click()
    box = program.message_box("Error!")
    assert '"Size of a step" for the main window' in box.message, box.message
    assert program.main.visible and program.main.place[:2] == (300, 200), program.main.place
    program.keep_picture("step-too-large")
    box.answer("OK")
    program.shows("a")
    assert program.end() == 0

# A number in the settings that is none: the default holds.
with Kalvora("conversion", notes={"a.txt": "||Alpha"}, settings={"Graph": {"Win1_Jump": "ten"}}) as program:
    program.start_and_wait_for_tray()
    box = program.message_box("Error!", timeout=60)
    assert '"ten"' in box.message, box.message
    assert '"Win1_Jump"' in box.message, box.message
    box.answer("OK")
    program.open_window()
    program.shows("a")
    assert program.end() == 0

noise = random.Random(11)
NOTES = {"a.txt": noise.randbytes(3000), "b.tx2": noise.randbytes(3000), "c.tx4": b"",
         "d.txt": b"||" + b"d" * 32765, "e.txt": b"||" + b"e" * 32766}
with Kalvora("bad-notes", notes=NOTES) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    for title in ("b", "c", "d"):
        program.press("Right")
        program.shows(title)
    program.press("Right")
    box = program.message_box("Error!")
    assert box.message.startswith("The file: ") and box.message.endswith("\\e.txt is too large to open!")
    box.answer("OK")
    assert program.main.control(TITLE).text == "d"
    assert program.end() == 0

with Kalvora("no-notes") as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("Untiled")
    program.press("Left")
    program.press("Right")
    program.shows("Untiled")
    assert program.end() == 0
