#!/usr/bin/python3
"""Proves the packages of build/packages under Wine, as their users meet them: the zip in a folder with
an awkward name, the installer that asks nothing, the program that it installs, and its removal.

    tools/package && tools/check-packages

Needs what ./test has built (the probe of the end-to-end tests). The x86 packages are looked into but not
run: there is no 32-bit Wine beside the other packages of this system.
"""

import hashlib
import shutil
import sys
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
           "USER-GUIDE.txt", "SKINS.txt")


class Packaged(Kalvora):
    """A machine of its own on which nothing of the program is installed yet."""

    def _stage(self):
        self.folder = self._base
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


def zip_runs_anywhere():
    with Packaged("package-zip", settings={"Graph": {"ShWatS": "True"}}) as machine:
        place = machine.folder / "Мои заметки & más"
        with zipfile.ZipFile(package("x86-64.zip")) as archive:
            archive.extractall(place)
        machine.folder = place / "Kalvora"
        machine.start()
        machine.shows_a_note()


def installer_installs_and_removes():
    with Packaged("package-setup") as machine:
        setup = shutil.copy2(package("x86-64-setup.exe"), machine.folder)
        assert machine.run_to_its_end(Path(setup).name, "/S", folder=machine.folder) == 0
        installed = machine.local_programs / "Kalvora"
        missing = [name for name in (*SHIPPED, "uninstall.exe", f"notes/{FIRST_NOTE}.txt")
                   if not (installed / name).is_file()]
        assert not missing, missing
        ask = machine.wine.ask
        assert ask("regread", RUN_KEY, "Kalvora").endswith('\\Programs\\Kalvora\\kalvora.exe"')
        assert ask("regread", UNINSTALL_KEY, "DisplayName") == "Kalvora"
        assert machine.start_menu_entry.is_file()
        assert machine.setting("Graph", "ShWatS") == "True"
        assert machine.setting("Sounds", "Use_Sounds") is None, "sounds are a tick of its own"

        machine.folder = installed
        machine.start()
        machine.shows_a_note()
        while_it_runs = machine.run_to_its_end(Path(setup).name, "/S", folder=Path(setup).parent)
        assert while_it_runs == 2 and machine.running, while_it_runs
        machine.choose("Exit")
        assert machine.exit_code() == 0

        (installed / "notes" / "Mine.txt").write_bytes(b"||Precious")
        kept = {path.name: path.read_bytes() for path in (installed / "notes").iterdir()}
        backup = installed / "backup"
        backup.mkdir(exist_ok=True)
        (backup / "Mine 2026-11-20 09-41-00.txt").write_bytes(b"||Older")
        copies = {path.name: path.read_bytes() for path in backup.iterdir()}
        machine.start_menu_entry.unlink()
        assert machine.run_to_its_end(Path(setup).name, "/S", folder=Path(setup).parent) == 0
        assert {path.name: path.read_bytes() for path in (installed / "notes").iterdir()} == kept, "an update"
        assert not machine.start_menu_entry.exists(), "an update brings back what the user removed"
        assert ask("regread", RUN_KEY, "Kalvora"), "an update forgets the start with Windows"

        # The uninstaller goes on as a copy in another process, which removes this one last.
        machine.run_to_its_end(installed / "uninstall.exe", "/S", folder=machine.local_programs)
        machine.wait_until(lambda: sorted(path.name for path in installed.iterdir()) == ["backup", "notes"],
                           "the removal")
        assert {path.name: path.read_bytes() for path in backup.iterdir()} == copies
        assert {path.name: path.read_bytes() for path in (installed / "notes").iterdir()} == kept
        assert ask("regread", RUN_KEY, "Kalvora") is None
        assert ask("regread", UNINSTALL_KEY, "DisplayName") is None
        assert machine.setting("Graph", "ShWatS") is None
        assert not machine.start_menu_entry.exists()


CHECKS = (check_sums, zips_hold_everything, zip_runs_anywhere, installer_installs_and_removes)


def main():
    for check in CHECKS:
        check()
        print(f"good: {check.__name__.replace('_', ' ')}", flush=True)


if __name__ == "__main__":
    main()
