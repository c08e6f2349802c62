#!/usr/bin/env python3
"""Tries what the scripts behind the commands promise, without building anything: the functions of tools/*.sh
are sourced, and stand-ins take the place of apt-get and its like."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
COMMANDS = ("run", "test", "tools/build-assets", "tools/check-packages", "tools/package", "tools/renew-pictures")


def shell(script, *arguments, folder=ROOT, **environment):
    """A bash that has the functions of tools/setup.sh."""
    head = "set -euo pipefail; source tools/setup.sh; "
    return subprocess.run(["bash", "-c", head + script, "bash", *map(str, arguments)], cwd=folder, text=True,
                          env={**os.environ, **environment}, capture_output=True, timeout=60, check=False)


class WithFolder(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)

    def checkout(self, name):
        """The scripts, without the rest, in a folder of that name."""
        folder = self.folder / name
        shutil.copytree(ROOT / "tools", folder / "tools", ignore=shutil.ignore_patterns("__pycache__"))
        for command in ("run", "test"):
            shutil.copy2(ROOT / command, folder)
        return folder


class Help(WithFolder):
    def test_each_command_says_how_it_is_used_and_does_nothing_else(self):
        bare = self.checkout("bare")
        for command in COMMANDS:
            done = subprocess.run([bare / command, "--help"], capture_output=True, text=True, timeout=60, check=False)
            self.assertEqual((done.returncode, done.stderr), (0, ""), command)
            self.assertIn(command, done.stdout)
            self.assertNotIn("set -euo", done.stdout)
        self.assertFalse((bare / "build").exists())


class LetterBases(WithFolder):
    def test_the_table_is_what_the_script_writes(self):
        written = self.folder / "LetterBases.h"
        subprocess.run([sys.executable, ROOT / "tools/letter_bases.py", written], timeout=60, check=True)
        self.assertEqual(written.read_text(encoding="utf-8"), (ROOT / "src/find/LetterBases.h").read_text(encoding="utf-8"))


class Paths(WithFolder):
    def test_a_path_that_breaks_the_build_is_refused_at_once(self):
        for sign in "&'$;(\"`|<>*?#":
            done = subprocess.run([self.checkout(f"a{sign}b") / "run"], capture_output=True, text=True, timeout=60,
                                  check=False)
            self.assertNotEqual(done.returncode, 0, sign)
            self.assertIn("cannot be built in a folder with such a name", done.stderr)

    def test_other_paths_are_not(self):
        for name in ("a b", "żółw", "a.b,c-d_e+f@g=h~i%j"):
            done = subprocess.run([self.checkout(name) / "run", "--help"], capture_output=True, text=True, timeout=60,
                                  check=False)
            self.assertEqual((done.returncode, done.stderr), (0, ""), name)


class Packages(WithFolder):
    def test_without_root_the_line_to_run_is_printed(self):
        nobody = 'id() { echo 1000; }; command() { [ "$2" != sudo ] && builtin command "$@"; }; '
        done = shell(nobody + "findRoot one two")
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("\n    apt-get install --no-install-recommends one two\n", done.stderr)

    def test_a_package_that_the_system_does_not_know_is_refused_by_its_name(self):
        done = shell('apt-cache() { [ "$3" != ghost ]; }; refuseUnknownPackages known ghost')
        self.assertNotEqual(done.returncode, 0)
        self.assertRegex(done.stderr, r"has no package called ghost\.")

    def test_the_size_of_the_download_is_told(self):
        listing = "\n".join(["Reading lists...", "'http://a/one.deb' one.deb 1500000 SHA256:1",
                             "'http://a/two.deb' two.deb 2600000 SHA256:2"])
        done = shell('apt-get() { printf "%s\\n" "$listing"; }; downloadOf one', listing=listing)
        self.assertIn("2 packages", done.stdout)
        self.assertIn("4 MB", done.stdout)

    def test_progress_is_told_in_steps_and_the_rest_is_logged(self):
        lines = ["Get:1 one", "dlstatus:1:3.1:Retrieving", "dlstatus:1:8.0:Retrieving", "dlstatus:1:55.5:Retrieving",
                 "pmstatus:one:50.0:Installing", "Setting up one"]
        log = self.folder / "log"
        done = shell('printf "%s\\n" "$lines" | tellProgress "$1"', log, lines="\n".join(lines))
        self.assertEqual(done.stdout.split("\n"),
                         ["  Downloading 0 %", "  Downloading 50 %", "  Installing 50 %", ""])
        self.assertEqual(log.read_text(), "Get:1 one\nSetting up one\n")

    def test_the_runtime_of_clang_is_that_of_the_clang_that_is_there(self):
        done = shell('clang() { echo 19.1.7; }; ensurePackages() { echo "$*"; }; ensureClang')
        self.assertEqual(done.stdout, "clang\nlibclang-rt-19-dev\n")


class Turns(WithFolder):
    def test_the_second_command_waits_for_the_first(self):
        checkout = self.checkout("turns")
        first = subprocess.Popen(["bash", "-c", "source tools/setup.sh; takeTurn; echo mine; read -r; echo done >>order; endTurn"],
                                 cwd=checkout, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.assertEqual(first.stdout.readline(), "mine\n")
        second = subprocess.Popen(["bash", "-c", "source tools/setup.sh; takeTurn; echo after >>order"],
                                  cwd=checkout, stderr=subprocess.PIPE, text=True)
        self.assertIn("waiting for it", second.stderr.readline())
        first.communicate("\n", timeout=60)
        second.communicate(timeout=60)
        self.assertEqual((checkout / "order").read_text(), "done\nafter\n")


class Staging(WithFolder):
    def put(self):
        done = shell('source tools/stage.sh; putFolder "$1/from" "$1/to"', self.folder)
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_what_is_the_same_is_left_alone_and_what_changed_is_replaced_as_a_whole(self):
        (self.folder / "from/skins").mkdir(parents=True)
        for name in ("same", "changed"):
            (self.folder / "from/skins" / name).write_text("one")
        self.put()
        same, changed = self.folder / "to/skins/same", self.folder / "to/skins/changed"
        number = same.stat().st_ino
        (self.folder / "from/skins/changed").write_text("two and more")
        (self.folder / "to/skins/users").write_text("the user's")
        with open(changed, encoding="ascii") as reader:
            self.put()
            self.assertEqual(reader.read(), "one")
        self.assertEqual(same.stat().st_ino, number)
        self.assertEqual(changed.read_text(), "two and more")
        self.assertEqual(sorted(path.name for path in changed.parent.iterdir()), ["changed", "same", "users"])


class Pictures(WithFolder):
    def shows(self, *drawing):
        picture = self.folder / "picture.png"
        subprocess.run(["convert", "-size", "200x150", "xc:#3a6ea5", *drawing, picture], check=True, timeout=60)
        return shell('source tools/shot.sh; showsTheWindow "$1" 20 20 100 80', picture).returncode == 0

    def test_an_empty_screen_is_no_picture_of_the_program(self):
        self.assertFalse(self.shows())

    def test_a_painted_window_is(self):
        self.assertTrue(self.shows("(", "-size", "100x80", "gradient:red-white", ")", "-geometry", "+20+20",
                                   "-composite"))


class Displays(unittest.TestCase):
    def test_one_that_cannot_be_reached_is_told_before_anything_is_built(self):
        done = subprocess.run([ROOT / "run"], env={**os.environ, "DISPLAY": ":9876"}, capture_output=True, text=True,
                              timeout=110, check=False)
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("The display :9876 cannot be reached", done.stderr)
        self.assertNotIn("Building", done.stdout)


class Signing(WithFolder):
    def sign(self, **environment):
        self.file = self.folder / "a program.exe"
        self.file.write_text("exe")
        return subprocess.run([ROOT / "tools/sign", self.file], env={**os.environ, **environment}, timeout=60,
                              capture_output=True, text=True, check=False)

    def test_the_command_is_run_on_the_file(self):
        self.assertEqual(self.sign(KALVORA_SIGN="sed -i 's/$/ signed/'").returncode, 0)
        self.assertEqual(self.file.read_text(), "exe signed")

    def test_a_failure_is_told(self):
        done = self.sign(KALVORA_SIGN="false")
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("Signing failed", done.stderr)

    def test_without_a_command_the_file_stays(self):
        self.assertEqual(self.sign(KALVORA_SIGN="").returncode, 0)
        self.assertEqual(self.file.read_text(), "exe")


if __name__ == "__main__":
    unittest.main()
