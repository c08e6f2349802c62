"""If this fails, a skin that is missing or broken makes the program crash or stay without a word."""

import random
import shutil

from kalvora import ALMANAC, Kalvora

with Kalvora("no-skin", skins=[]) as program:
    program.start()
    box = program.message_box("Skin Error", timeout=60)
    assert box.message == "Ther's no skin. Download some and run program again.", box.message
    box.answer("OK")
    program.exit_code()

with Kalvora("no-titlebar") as program:
    (program.folder / "skins" / "Almanac" / "titlebar.bmp").unlink()
    program.start()
    box = program.message_box("Skin Error", timeout=60)
    assert box.message.startswith("Ther's no Skin in this Directory "), box.message
    assert box.message.endswith("\\skins\\Almanac\\titlebar.bmp"), box.message
    box.answer("OK")
    program.exit_code()
    assert not program.tray.there

noise = random.Random(7)
for broken in ("main1.bmp", "main2.bmp", "titlebar.bmp", "text.bmp", "shapem.bmp", "shapet.bmp"):
    with Kalvora("random-" + broken) as program:
        (program.folder / "skins" / "Almanac" / broken).write_bytes(noise.randbytes(5000))
        program.start()
        box = program.message_box("Skin Error", timeout=60)
        assert broken in box.message, box.message
        box.answer("OK")
        program.exit_code()

with Kalvora("random-description", notes={"a.txt": "||Alpha"}) as program:
    (program.folder / "skins" / "Almanac" / "config.ini").write_bytes(noise.randbytes(5000))
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
