"""The reports as text: byte for byte those that were worked out without the program."""

import os
import pty
import re
import unittest

from pools import APPROVED, MESSY_TITLE, PRIZES, SMALL_TITLE, Folder, faults, messy_pool, sample_pool, setup_file, small_pool


class Reports(unittest.TestCase):
    def setUp(self):
        self.folder = Folder(self)

    def approved(self, pool, name):
        return (APPROVED / pool / name).read_bytes()

    def test_all_seven_of_four_players_are_as_worked_out_by_hand(self):
        small_pool(self.folder)
        for number in range(1, 8):
            with self.subTest(number):
                done = self.folder.run("report", number, "--title", SMALL_TITLE)
                self.assertEqual(done.stdout, self.approved("small", f"RPTOPT{number}.TXT"))
                self.assertEqual((done.returncode, done.stderr), (0, b""))

    def test_all_seven_of_the_pool_with_awkward_names_are_as_a_second_reckoning_has_them(self):
        messy_pool(self.folder)
        for number in range(1, 8):
            with self.subTest(number):
                done = self.folder.run("report", number, "--title", MESSY_TITLE)
                self.assertEqual(done.stdout, self.approved("messy", f"RPTOPT{number}.TXT"))
                # One of its selections is not whole; the player listing reads none of them.
                self.assertEqual((done.returncode, len(faults(done))), (0, 0) if number == 2 else (1, 1))

    def test_a_file_gets_the_same_bytes(self):
        small_pool(self.folder)
        done = self.folder.run("report", 1, "--title", SMALL_TITLE, "--out", self.folder.path / "mine.txt")
        self.assertEqual((done.returncode, done.stdout), (0, b""))
        self.assertEqual(self.folder.read("mine.txt"), self.approved("small", "RPTOPT1.TXT"))

    def test_the_title_is_the_fields_unless_there_is_another(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", setup_file(SMALL_TITLE))
        self.assertEqual(self.folder.run("report", 1).stdout, self.approved("small", "RPTOPT1.TXT"))
        self.assertIn(b"M\xe4rz\r\n", self.folder.run("report", 1, "--title", "M\u00e4rz").stdout)

    def test_standings_are_report_1(self):
        small_pool(self.folder)
        self.assertEqual(self.folder.run("standings", "--title", SMALL_TITLE).stdout,
                         self.approved("small", "RPTOPT1.TXT"))

    def test_the_outlook_is_as_worked_out_by_hand(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", setup_file(SMALL_TITLE))
        done = self.folder.run("outlook")
        self.assertEqual(done.stdout, self.approved("small", "OUTLOOK.TXT"))
        self.assertEqual((done.returncode, done.stderr), (0, b""))

    def test_the_outlook_says_what_its_chances_are(self):
        sample_pool(self.folder)
        for weights, words in (("seeds", b"by seed"), ("picks", b"as this pool picked"), ("alike", b"all outcomes")):
            self.assertIn(b"\r\nChances: " + words, self.folder.run("outlook", "--weights", weights).stdout)

    def test_the_final_sheet_is_as_worked_out_by_hand(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", setup_file(SMALL_TITLE))
        self.folder.write("PRIZES.CSV", PRIZES)
        done = self.folder.run("final")
        self.assertEqual(done.stdout, self.approved("small", "FINAL.TXT"))
        self.assertEqual((done.returncode, done.stderr), (0, b""))

    def test_prizes_that_were_not_read_whole_do_not_look_final(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", setup_file(SMALL_TITLE))
        self.folder.write("PRIZES.CSV", [*PRIZES[:5], "Prize,2,a third", PRIZES[6]])
        for words in ("final",), ("final", "--json"), ("page",):
            with self.subTest(words):
                done = self.folder.run(*words)
                self.assertEqual(done.returncode, 1)
                self.assertIn(b"PRIZES.CSV could not be read whole: these prizes are not final", done.stdout)
                self.assertIn(b"PRIZES.CSV: Row 6 is not understood: Prize, 2, a third", done.stdout)
                self.assertEqual(faults(done),
                                 ["PRIZES.CSV: Row 6 is not understood: Prize, 2, a third"])

    def test_there_is_no_final_sheet_before_the_last_four(self):
        small_pool(self.folder)
        bracket = self.folder.read("TALLYHOOP.THS").split(b"\r\n")
        bracket[30] = b""  # the winner of the West
        self.folder.write("TALLYHOOP.THS", b"\r\n".join(bracket))
        done = self.folder.run("final")
        self.assertEqual((done.returncode, done.stdout), (1, b""))
        self.assertEqual(len(faults(done)), 1)

    def test_the_page_holds_the_pool(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", setup_file(SMALL_TITLE))
        done = self.folder.run("page")
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertTrue(done.stdout.startswith(b"<!DOCTYPE html>"))
        for text in (b"Office Pool 2001", b"AB, Adams", b"EF, Dunn", b"If it ended like this"):
            self.assertIn(text, done.stdout)
        self.assertEqual(self.folder.run("page").stdout, done.stdout, "the same pool makes the same page")

    def test_the_scores_are_the_printed_list(self):
        sample_pool(self.folder)
        lines = self.folder.run("scores").stdout.decode("cp1252").split("\r\n")
        self.assertRegex(lines[0], r"^ {16}TALLYHOOP POINT SUMMARY: \d+-[A-Z][a-z]+-\d\d$")
        self.assertEqual(re.split(" {2,}", lines[3].strip()),
                         ["File Name", "Player Name", "Score", "-MAX-", "Winning Pick"])
        self.assertEqual([re.split(" {2,}", line.strip()) for line in lines[5:-1]],
                         [["Demo Favorite_DF.THC", "DF, Demo Favorite", "59", "71", "Duke"],
                          ["Demo Halfway_DH.THC", "DH, Demo Halfway", "55", "67"],
                          ["Demo Longshot_DL.THC", "DL, Demo Longshot", "31", "31", "Gonzaga"],
                          ["Demo Prophet_DP.THC", "DP, Demo Prophet", "80", "120", "Michigan St."]])

    def test_a_terminal_shows_letters_and_plain_lines(self):
        messy_pool(self.folder)
        master, terminal = pty.openpty()
        self.folder.run("standings", stdout=terminal)
        os.close(terminal)
        shown = b""
        try:
            while piece := os.read(master, 65536):
                shown += piece
        except OSError:
            pass  # how Linux tells the end
        os.close(master)
        self.assertIn("\u00c1lvarez", shown.decode("utf-8"))
        self.assertNotIn(b"\f", shown)


if __name__ == "__main__":
    unittest.main()
