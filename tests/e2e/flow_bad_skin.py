"""If this fails, a skin that is missing or broken makes the program crash or stay without a word."""

import random
import struct
from pathlib import Path

from kalvora import Kalvora

MOST_MEMORY = 100 * 1024  # kilobytes


def most_memory(program):
    """The most memory that the program ever had in use, in kilobytes."""
    status = Path(f"/proc/{program.process_id}/status").read_text(encoding="ascii")
    return int(status.split("VmHWM:")[1].split()[0])


def expect_skin_error(program, broken):
    program.start()
    box = program.message_box("Skin Error", timeout=60)
    assert broken in box.message, box.message
    memory = most_memory(program)
    assert memory < MOST_MEMORY, f"{memory} kB"
    box.answer("OK")
    program.exit_code()


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
        expect_skin_error(program, broken)

with Kalvora("picture-60000") as program:
    header = struct.pack("<2sIIIIiiHHIIiiII", b"BM", 0, 0, 54, 40, 60000, 60000, 1, 24, 0, 0, 0, 0, 0, 0)
    (program.folder / "skins" / "Almanac" / "main1.bmp").write_bytes(header + bytes(100000))
    expect_skin_error(program, "main1.bmp")

with Kalvora("description-20-megabytes") as program:
    (program.folder / "skins" / "Almanac" / "config.ini").write_bytes(noise.randbytes(20_000_000))
    expect_skin_error(program, "config.ini")

with Kalvora("random-description", notes={"a.txt": "||Alpha"}) as program:
    (program.folder / "skins" / "Almanac" / "config.ini").write_bytes(noise.randbytes(5000))
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
