"""Each listing of a folder and each opening of a file in it is counted once, whoever it was."""

import os
import tempfile
import unittest
from pathlib import Path

from folder_watch import FolderWatch, Readings


class FolderWatchTest(unittest.TestCase):
    def setUp(self):
        self._folder = tempfile.TemporaryDirectory()
        self.folder = Path(self._folder.name)
        self.addCleanup(self._folder.cleanup)

    def fill(self, count):
        for number in range(count):
            (self.folder / f"A note with quite a long name {number}.txt").write_text("text")

    def read(self, work):
        with FolderWatch(self.folder) as watch:
            work()
            return watch.readings(0.3)

    def test_a_listing_in_many_pieces_is_one(self):
        self.fill(3000)
        self.assertEqual(self.read(lambda: os.listdir(self.folder)), Readings(1, 0))

    def test_two_listings_are_two(self):
        self.fill(3)
        self.assertEqual(self.read(lambda: [os.listdir(self.folder), os.listdir(self.folder)]), Readings(2, 0))

    def test_files_that_are_read_are_openings(self):
        self.fill(3)
        files = list(self.folder.iterdir())
        self.assertEqual(self.read(lambda: [file.read_text() for file in files]), Readings(0, 3))

    def test_more_than_the_system_keeps_is_counted(self):
        self.fill(20_000)
        files = list(self.folder.iterdir())
        self.assertEqual(self.read(lambda: [file.read_text() for file in files]).openings, 20_000)

    def test_asking_for_one_file_is_no_listing(self):
        self.fill(3)
        self.assertEqual(self.read(lambda: (self.folder / "Milk.txt").exists()), Readings(0, 0))

    def test_a_folder_that_is_not_there_is_a_failure(self):
        with self.assertRaises(OSError):
            FolderWatch(self.folder / "none")


if __name__ == "__main__":
    unittest.main()
