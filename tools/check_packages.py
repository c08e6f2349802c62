"""Proves the packages of build/packages under Wine, as their users meet them: the zip in a folder with
an awkward name, the installer that asks nothing, the program that it installs, its update, and its removal;
and that another checkout gives the same packages. tools/check-packages is how it is run.

The x86 packages are looked into but not run: there is no 32-bit Wine beside the other packages of this system.
Packages that were made with KALVORA_SITE_URL are checked with it, too; signed ones cannot be checked for sameness.
"""

import hashlib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests" / "e2e"))

from kalvora import TITLE, Kalvora  # noqa: E402

PACKAGES = ROOT / "build" / "packages"
FIRST_NOTE = "1. Welcome to Kalvora"
RUN_KEY = "Software\\Microsoft\\Windows\\CurrentVersion\\Run"
UNINSTALL_KEY = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Kalvora"
SHIPPED = ("kalvora.exe", "kalvora-skin.exe", "skins/Almanac/main1.bmp", "skins/Almanac/config.ini",
           "icons/kalvora.ico", "sounds/reminder.wav", "skin-template/config.ini", "LICENSE.txt",
           "THIRD-PARTY.txt", "USER-GUIDE.html", "SKINS.html")
VERSION = re.search(r"project\(Kalvora VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text())[1]
SITE = os.environ.get("KALVORA_SITE_URL") or None
# A phrase of each licence of what is linked in, and of each name in the list at its head.
LICENCES = ("stb_image", "Sean Barrett", "mingw-w64", "Zope Public License", "Names of the copyright holders must not",
            "winpthreads", "libgcc and libstdc++", "GCC RUNTIME LIBRARY EXCEPTION", "Version 3.1, 31 March 2009",
            "GNU GENERAL PUBLIC LICENSE", "END OF TERMS AND CONDITIONS")
ABOUT, ABOUT_LICENCES, ABOUT_LINK = "About Kalvora", 4005, 4003  # of src/win32/about/AboutIds.h


class Packaged(Kalvora):
    """A machine of its own on which nothing of the program is installed yet."""

    def _stage(self):
        # Not the base, which holds Wine's drives: this folder is kept as evidence when a check fails.
        self.folder = self._base / "downloads"
        self.folder.mkdir(parents=True)

    @property
    def local_programs(self):
        users = self.wine.prefix / "drive_c" / "users"
        user = next(folder for folder in users.iterdir() if folder.name != "Public")
        return user / "AppData" / "Local" / "Programs"

    @property
    def start_menu_entry(self):
        return self.local_programs.parents[1] / "Roaming/Microsoft/Windows/Start Menu/Programs/Kalvora.lnk"

    def run_to_its_end(self, *command, folder):
        process = self.wine.spawn(list(map(str, command)), folder, {})
        return process.wait(120)

    def told_by(self, *command, folder):
        """What a console program writes. Wine's own processes outlive it and would keep a pipe open."""
        with tempfile.TemporaryFile() as output:
            subprocess.run(["wine", *map(str, command)], cwd=folder, env=self.wine.environment, stdout=output,
                           stdin=subprocess.DEVNULL, timeout=120, check=True)
            output.seek(0)
            return output.read().decode()

    def shows_a_note(self):
        field = self.main.control(TITLE)
        self.wait_until(lambda: self.main.visible and field.text == FIRST_NOTE, "the first sample note")


def package(ending):
    found = list(PACKAGES.glob(f"kalvora-*.*.*-{ending}"))
    assert len(found) == 1, f"one package {ending} in {PACKAGES}: {found}; run tools/package first"
    return found[0]


def check_sums():
    listed = dict(line.split()[::-1] for line in (PACKAGES / "SHA256SUMS").read_text().splitlines())
    files = {path.name for path in PACKAGES.iterdir()} - {"SHA256SUMS"}
    assert set(listed) == files and len(files) == 4, (listed, files)
    for name, digest in listed.items():
        assert hashlib.sha256((PACKAGES / name).read_bytes()).hexdigest() == digest, name


def machine_of(data):
    """The machine that a program is made for, from its header: "x86-64" or "x86"."""
    start = int.from_bytes(data[0x3C:0x40], "little")
    return {0x8664: "x86-64", 0x14C: "x86"}[int.from_bytes(data[start + 4:start + 6], "little")]


def zips_hold_everything():
    for architecture in ("x86-64", "x86"):
        with zipfile.ZipFile(package(f"{architecture}.zip")) as archive:
            names = set(archive.namelist())
            missing = [name for name in SHIPPED if f"Kalvora/{name}" not in names]
            assert not missing, missing
            for program in ("kalvora.exe", "kalvora-skin.exe"):
                assert machine_of(archive.read(f"Kalvora/{program}")) == architecture


def texts_are_readable():
    with zipfile.ZipFile(package("x86-64.zip")) as archive:
        def text(name):
            return archive.read(f"Kalvora/{name}").decode()

        missing = [phrase for phrase in LICENCES if phrase not in text("THIRD-PARTY.txt")]
        assert not missing, missing
        for guide in ("USER-GUIDE.html", "SKINS.html"):
            page = text(guide)
            assert "<table>" in page and "|--" not in page and "![" not in page, guide
            for link in re.findall(r'href="([^"#:]+)"', page):
                assert f"Kalvora/{link}" in archive.namelist(), (guide, link)


def programs_know_their_version():
    """Both of them, and the manifest, have the one of CMakeLists.txt."""
    with zipfile.ZipFile(package("x86-64.zip")) as archive:
        for program in ("kalvora.exe", "kalvora-skin.exe"):
            told = "FileVersion\0".encode("utf-16-le") + rb"(?:\0\0)?" + re.escape(f"{VERSION}\0".encode("utf-16-le"))
            assert re.search(told, archive.read(f"Kalvora/{program}")), program
        manifest = f'name="Kalvora" version="{VERSION}.0"'
        assert manifest.encode() in archive.read("Kalvora/kalvora.exe"), manifest


def about_window_points_to_what_there_is(machine):
    machine.choose("About")
    about = machine.window(title=ABOUT)
    assert "THIRD-PARTY.txt" in about.control(ABOUT_LICENCES).text
    link = about.control(ABOUT_LINK)
    assert (link.visible, link.text) == (SITE is not None, SITE or ""), link.text
    about.close()
    machine.wait_until(lambda: not about.exists, "the about window to close")


def zip_runs_anywhere():
    with Packaged("package-zip", settings={"Graph": {"ShWatS": "True"}}) as machine:
        place = machine.folder / "Мои заметки & más"
        with zipfile.ZipFile(package("x86-64.zip")) as archive:
            archive.extractall(place)
        machine.folder = place / "Kalvora"
        machine.start()
        machine.shows_a_note()
        about_window_points_to_what_there_is(machine)
        told = machine.told_by("kalvora-skin.exe", "--version", folder=machine.folder)
        assert told.startswith(f"kalvora-skin {VERSION}") and "THIRD-PARTY.txt" in told, told


def uninstall_key_tells_size_and_pages(machine, installed):
    told = machine.told_by("reg", "query", "HKCU\\" + UNINSTALL_KEY, "/v", "EstimatedSize", folder=installed)
    kilobytes = int(re.search(r"EstimatedSize\s+REG_DWORD\s+0x([0-9a-f]+)", told)[1], 16)
    there = sum(path.stat().st_size for path in installed.rglob("*") if path.is_file()) / 1024
    assert 0.9 * there < kilobytes < 1.1 * there, (kilobytes, there)
    for name in ("URLInfoAbout", "URLUpdateInfo", "HelpLink"):
        assert machine.wine.ask("regread", UNINSTALL_KEY, name) == SITE, name


def bring_from_an_older_version(installed, changed_since):
    """Files that the installed version's list names and this one does not bring: some as they came, others not."""
    listing = installed / "shipped-files.txt"
    came = listing.stat().st_mtime
    older = [installed / name for name in ("skins/Old/main1.bmp", "skins/Old/config.ini", "sounds/old.wav",
                                           "skins/Older/main1.bmp", "skins/Older/config.ini")]
    listed = "".join(str(path.relative_to(installed)).replace("/", "\\") + "\r\n" for path in older)
    listing.write_bytes(listing.read_bytes() + listed.encode("utf-16-le"))
    for path in older:
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(b"as it came")
        os.utime(path, (came, came))
    os.utime(listing, (came, came))
    for path in (installed / name for name in changed_since):
        path.parent.mkdir(exist_ok=True)
        path.write_bytes(b"the user's")


def update_takes_away_what_is_shipped_no_more(machine, setup, installed):
    changed = ("skins/Older/config.ini", "skins/Mine/config.ini", "sounds/mine.wav")
    bring_from_an_older_version(installed, changed)
    assert machine.run_to_its_end(setup, "/S", folder=setup.parent) == 0
    gone = [name for name in ("skins/Old", "sounds/old.wav", "skins/Older/main1.bmp") if (installed / name).exists()]
    assert not gone, gone
    for name in changed:
        assert (installed / name).read_bytes() == b"the user's", name
        (installed / name).unlink()
    for folder in ("skins/Older", "skins/Mine"):
        (installed / folder).rmdir()
    assert not [name for name in SHIPPED if not (installed / name).is_file()]


def silent_removal_ends_the_program(machine, installed):
    """Only the copy that runs from there: another one goes on."""
    other = installed.parent / "another copy"
    shutil.copytree(installed, other)
    bystander = machine.wine.spawn(["kalvora.exe"], other, {})
    machine.folder = installed
    machine.start()
    machine.wait_until(lambda: sum(one["class"] == "KalvoraMain" for one in machine.all_windows()) == 2, "both copies")
    # The uninstaller goes on as a copy in another process, which removes this one last.
    machine.run_to_its_end(installed / "uninstall.exe", "/S", folder=machine.local_programs)
    assert machine.exit_code() == 0
    machine.wait_until(lambda: sorted(path.name for path in installed.iterdir()) == ["backup", "notes"],
                       "the removal")
    assert bystander.poll() is None, "the removal ended a copy of another folder"


def installs(machine, setup, installed):
    assert machine.run_to_its_end(setup, "/S", folder=setup.parent) == 0
    missing = [name for name in (*SHIPPED, "uninstall.exe", f"notes/{FIRST_NOTE}.txt")
               if not (installed / name).is_file()]
    assert not missing, missing
    assert machine.wine.ask("regread", RUN_KEY, "Kalvora").endswith('\\Programs\\Kalvora\\kalvora.exe"')
    assert machine.wine.ask("regread", UNINSTALL_KEY, "DisplayName") == "Kalvora"
    assert machine.start_menu_entry.is_file()
    assert machine.setting("Graph", "ShWatS") == "True"
    assert machine.setting("Sounds", "Use_Sounds") is None, "sounds are a tick of its own"
    uninstall_key_tells_size_and_pages(machine, installed)


def leaves_a_running_program_alone(machine, setup, installed):
    machine.folder = installed
    machine.start()
    machine.shows_a_note()
    while_it_runs = machine.run_to_its_end(setup, "/S", folder=setup.parent)
    assert while_it_runs == 2 and machine.running, while_it_runs
    assert machine.end() == 0


def update_keeps_what_the_user_chose(machine, setup, installed, notes):
    machine.start_menu_entry.unlink()
    assert machine.run_to_its_end(setup, "/S", folder=setup.parent) == 0
    assert contents(installed / "notes") == notes, "an update changes notes"
    assert not machine.start_menu_entry.exists(), "an update brings back what the user removed"
    assert machine.wine.ask("regread", RUN_KEY, "Kalvora"), "an update forgets the start with Windows"


def removal_leaves_nothing_but_notes(machine, installed, notes, copies):
    silent_removal_ends_the_program(machine, installed)
    # The last step of the removal.
    machine.wait_until(lambda: machine.setting("Graph", "ShWatS") is None, "the settings to be removed")
    assert contents(installed / "notes") == notes
    assert contents(installed / "backup") == copies
    assert machine.wine.ask("regread", RUN_KEY, "Kalvora") is None
    assert machine.wine.ask("regread", UNINSTALL_KEY, "DisplayName") is None
    assert not machine.start_menu_entry.exists()


def contents(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir()}


def installer_installs_updates_and_removes():
    with Packaged("package-setup") as machine:
        setup = Path(shutil.copy2(package("x86-64-setup.exe"), machine.folder))
        installed = machine.local_programs / "Kalvora"
        installs(machine, setup, installed)
        leaves_a_running_program_alone(machine, setup, installed)
        (installed / "notes" / "Mine.txt").write_bytes(b"||Precious")
        (installed / "backup").mkdir(exist_ok=True)
        (installed / "backup" / "Mine 2026-11-20 09-41-00.txt").write_bytes(b"||Older")
        notes, copies = contents(installed / "notes"), contents(installed / "backup")
        update_keeps_what_the_user_chose(machine, setup, installed, notes)
        update_takes_away_what_is_shipped_no_more(machine, setup, installed)
        removal_leaves_nothing_but_notes(machine, installed, notes, copies)


def another_checkout_gives_the_same_bytes():
    with tempfile.TemporaryDirectory() as folder:
        copy = Path(folder) / "another checkout"
        shutil.copytree(ROOT, copy, ignore=lambda parent, _: {"build"} if Path(parent) == ROOT else set())
        # What the compiler's cache remembers would be the same in any case.
        subprocess.run([copy / "tools" / "package"], env={**os.environ, "CCACHE_DISABLE": "1"},
                       stdout=subprocess.DEVNULL, check=True)
        here, there = ((one / "build" / "packages" / "SHA256SUMS").read_text() for one in (ROOT, copy))
        assert here == there, f"here:\n{here}there:\n{there}"


CHECKS = (check_sums, zips_hold_everything, texts_are_readable, programs_know_their_version, zip_runs_anywhere,
          installer_installs_updates_and_removes, another_checkout_gives_the_same_bytes)


def main():
    for check in CHECKS:
        check()
        print(f"good: {check.__name__.replace('_', ' ')}", flush=True)


if __name__ == "__main__":
    main()
