"""If this fails, the about window stands still or says nothing of version and licences, or a click on a link
opens no page, or opens another one than the program's own."""

import re
import shutil

from kalvora import BUILD, SOURCE, Kalvora

TITLE = "About Kalvora"
BAND, VERSION, HOME_LINK, SECOND_LINK, LICENCES, CLOSE = 4000, 4002, 4003, 4004, 4005, "Close"
HOME, SKINS = "https://kalvora.example/", "https://kalvora.example/skins"
LABEL_CHANGES_WITHIN = 60  # seconds; some nine, where the machine is not late with its ticks


def recorder():
    return next(BUILD.rglob("e2e-recorder.exe"))


class Recorded:
    """A program of the prefix that writes down how it is called instead of doing its work."""

    def __init__(self, program, path):
        self._program = program
        self._file = program.wine.prefix / "drive_c" / path
        self._file.unlink(missing_ok=True)  # It may be a hard link to the system's.
        shutil.copy2(recorder(), self._file)
        self._log = self._file.with_name(self._file.name + ".log")

    def calls(self):
        return self._log.read_text(encoding="ascii").splitlines() if self._log.exists() else []

    def expect(self, *patterns):
        self._program.wait_until(lambda: len(self.calls()) >= len(patterns), f"the calls {patterns}")
        assert len(self.calls()) == len(patterns), self.calls()
        for call, pattern in zip(self.calls(), patterns):
            assert re.fullmatch(pattern, call), (call, pattern)


def band_picture(program, window):
    left, top, width, height = window.control(BAND).place
    return program.screen.picture().crop((left, top, left + width, top + height))


def check_band(program, window):
    """It moves to the left, pixel by pixel, and nothing of it changes."""
    program.screen.move(5, 5)
    first = band_picture(program, window)
    program.wait_until(lambda: band_picture(program, window).tobytes() != first.tobytes(), "the band to move")
    second = band_picture(program, window)
    width, height = first.size

    def fits(step):
        return first.crop((step, 0, width, height)).tobytes() == second.crop((0, 0, width - step, height)).tobytes()

    steps = [step for step in range(1, width // 2) if fits(step)]
    assert steps, "the second picture is not the first one further to the left"


def check_texts(program, window):
    version = re.search(r'project\(Kalvora VERSION "?([0-9.]+)', (SOURCE / "CMakeLists.txt").read_text(), re.I)[1]
    assert f"Version {version}" in window.control(VERSION).text, window.control(VERSION).text
    licences = window.control(LICENCES).text
    for words in ("MIT licence", "no warranty", "stb_image", "GCC Runtime Library Exception", "mingw-w64"):
        assert words in licences, words
    for number in (VERSION, LICENCES, HOME_LINK, SECOND_LINK):
        assert window.control(number).visible, number


def check_command(program, window):
    """The command itself, run hidden, with one of the two addresses and nothing else."""
    shell = Recorded(program, "windows/system32/cmd.exe")
    window.control(HOME_LINK).click()
    window.control(SECOND_LINK).click()
    home = r"hidden cmd\.exe /d /c start https://kalvora\.example/"
    either = home + r"(skins)?"
    shell.expect(home, either)
    # A caption that is none of the two addresses is no command.
    for caption in ("https://kalvora.example/ & calc", "https://elsewhere.example/"):
        window.control(HOME_LINK).set_text(caption)
        window.control(HOME_LINK).click(5, 5)
    window.control(SECOND_LINK).click()
    shell.expect(home, either, either)


def check_label(program, window):
    """The second link shows the two pages in turn."""
    label = window.control(SECOND_LINK)
    assert label.text == SKINS, label.text
    for address in (HOME, SKINS):
        program.wait_until(lambda: label.text == address, f"the link {address}", LABEL_CHANGES_WITHIN)
    assert window.control(HOME_LINK).text == HOME


# Wine takes its own shell rather than the one in the prefix, unless told so.
with Kalvora(notes={"a.txt": "||Alpha"}, environment={"WINEDLLOVERRIDES": "cmd.exe=n"}) as program:
    program.start_and_wait_for_tray()
    program.choose("About")
    window = program.window(title=TITLE)
    check_label(program, window)
    check_band(program, window)
    check_texts(program, window)
    check_command(program, window)
    [one for one in window.controls("Button") if one.text == CLOSE][0].click()
    program.wait_until(lambda: not window.exists, "the window to close")
    assert program.end() == 0
