"""Folders as nobody meant them: every verb ends, says what is wrong on lines of its own, and shows no commands."""

import os
import re
import unittest

from pools import Folder, complete_pool, faults

VERBS = (["standings"], ["standings", "--json"], ["scores"], ["scores", "--json"], ["outlook"], ["outlook", "--json"],
         ["csv", "standings"], ["csv", "picks"], ["csv", "picks-by-player"], ["form"], ["final"], ["final", "--json"], ["check"],
         *(["report", number] for number in range(1, 8)))


class Hostile(unittest.TestCase):
    def setUp(self):
        self.folder = Folder(self)

    def run_all(self, statuses=(0, 1)):
        """Every verb in turn; gives all faults that were reported."""
        reported = []
        for words in VERBS:
            with self.subTest(words):
                done = self.folder.run(*words)
                self.assertIn(done.returncode, statuses, done.stderr)
                self.assertEqual(done.returncode != 0, done.stderr != b"", "a fault is reported, or there is none")
                self.assertIsNone(re.search(r"[\x00-\x09\x0b-\x1f\x7f]", done.stderr.decode("utf-8")))
                reported += faults(done)
        return reported

    def test_an_empty_folder(self):
        self.run_all()

    def test_names_with_line_breaks_and_commands_for_terminals(self):
        complete_pool(self.folder)
        name = "Eve\nAll is well.\x1b[2J_E.THC"
        (self.folder.path / name).write_bytes(b"damaged")
        reported = self.run_all()
        self.assertTrue(any("Eve" in fault for fault in reported))
        self.assertNotIn("All is well.", reported)

    def test_files_that_are_something_else(self):
        complete_pool(self.folder)
        os.mkfifo(self.folder.path / "Pipe_P.THC")
        (self.folder.path / "Folder_F.THC").mkdir()
        (self.folder.path / "Loop_L.THC").symlink_to("Loop_L.THC")
        (self.folder.path / "PLAYERNAMES.CSV").mkdir()
        self.run_all()

    def test_results_that_are_a_folder_and_a_field_that_is_a_pipe(self):
        complete_pool(self.folder)
        for name in ("TALLYHOOP.THS", "POOLSTART.THS"):
            (self.folder.path / name).unlink()
        (self.folder.path / "TALLYHOOP.THS").mkdir()
        os.mkfifo(self.folder.path / "POOLSTART.THS")
        self.run_all()

    def test_bytes_that_mean_nothing(self):
        complete_pool(self.folder)
        for name in ("TALLYHOOP.THS", "POOLSTART.THS", "PLAYERNAMES.CSV", "NCAALIST.THS", "TALLYHOOP.INI", "PRIZES.CSV",
                     "Random_R.THC"):
            self.folder.write(name, bytes(range(256)) * 40)
        self.run_all()

    def test_a_selection_that_is_too_large(self):
        complete_pool(self.folder)
        self.folder.write("Large_L.THC", b"x" * (2 << 20))
        self.assertTrue(any("Large_L.THC" in fault for fault in self.run_all()))

    def test_payoffs_that_are_no_numbers(self):
        complete_pool(self.folder)
        lines = self.folder.read("POOLSTART.THS").split(b"\r\n")
        lines[70] = b"99999"
        self.folder.write("POOLSTART.THS", b"\r\n".join(lines))
        self.assertTrue(any("99999" in fault for fault in self.run_all()))


if __name__ == "__main__":
    unittest.main()
