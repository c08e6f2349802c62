"""If this fails, a sound whose file has the name of a device is read from that device, where a program may wait for
ever."""

import ctypes
import os

from sounds import AudibleKalvora
from trouble import QUIET

IN_OPEN = 0x20


class OpeningsOf:
    """Tells whether any program has opened a file."""

    def __init__(self, file):
        system = ctypes.CDLL(None, use_errno=True)
        self._events = system.inotify_init1(os.O_NONBLOCK)
        assert system.inotify_add_watch(self._events, bytes(file), IN_OPEN) > 0, os.strerror(ctypes.get_errno())

    def any_since_asked(self):
        try:
            return bool(os.read(self._events, 4096))
        except BlockingIOError:
            return False


with AudibleKalvora(notes={"a.txt": "||Alpha", "b.txt": "||Bravo"},
                    settings={**QUIET, "Sounds": {"Use_Sounds": "True"}}) as program:
    sound = "Z:" + str(program.folder / "com9.wav").replace("/", "\\")
    program.set_setting("Sounds", "Snd_Button_Press", sound)
    program.start_and_wait_for_tray()
    # Wine clears its ports away when it starts. This one answers with a sound that could be heard.
    port = program.folder / "press.wav"
    (program.wine.prefix / "dosdevices" / "com9").symlink_to(port)
    openings = OpeningsOf(port)
    program.open_window()
    program.expect("show")
    program.press("Right")
    program.shows("b")
    # A sound begins when the one before it has ended.
    program.press("Minimize")
    program.expect("show", "hide")
    assert not openings.any_since_asked(), "the port is left alone"
    assert program.wine.ask("hold", sound) and program.wine.ask("release"), "the name leads to the port"
    assert openings.any_since_asked(), "it would have been seen"
    assert program.end() == 0
