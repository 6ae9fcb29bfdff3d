"""How the program ends, what it says then, and what it leaves alone."""

import shutil
import subprocess
import unittest

from pools import APPROVED, BUILD, SMALL_TITLE, Folder, faults, run, sample_pool, small_field, small_pool

DONE, FAULTS_FOUND, USED_WRONGLY = 0, 1, 2


class Status(unittest.TestCase):
    def setUp(self):
        self.folder = Folder(self)

    def test_wrong_words_are_answered_with_what_is_wrong(self):
        sample_pool(self.folder)
        before = self.folder.contents()
        for words in ([], ["standing"], ["report"], ["report", "0"], ["report", "8"], ["report", "one"],
                      ["report", "0x1"], ["report", "01"], ["report", "+1"], ["report", "1.0"],
                      ["standings", "--jason"], ["csv"], ["csv", "players"], ["csv", "0"], ["csv", "PICKS"],
                      ["outlook", "--weights", "luck"], ["outlook", "--weights", "0"], ["page", "--weights", "Seeds"],
                      ["csv", "standings", "--weights", "seeds"], ["csv", "--weights", "alike", "picks"],
                      ["import"], ["standings", "outlook"], ["form", "--mail-to", "not an address"]):
            with self.subTest(words):
                done = self.folder.run(*words)
                self.assertEqual((done.returncode, done.stdout), (USED_WRONGLY, b""))
                self.assertNotEqual(faults(done), [])
        self.assertEqual(self.folder.contents(), before)

    def test_an_unknown_verb_is_named(self):
        unknown, none = "There is no verb standing", "A verb is required"
        for words, fault in ((["standing"], unknown), (["standing", "--json"], unknown), ([], none), (["--json"], none),
                             (["--weights", "seeds"], none)):
            with self.subTest(words):
                done = self.folder.run(*words)
                self.assertEqual((done.returncode, faults(done)),
                                 (USED_WRONGLY, [fault, "Run with --help for more information."]))

    def test_what_a_verb_lacks_is_named(self):
        for words, fault in ((["report"], "A number is required: 1 to 7"),
                             (["report", "--title", "1"], "A number is required: 1 to 7"),
                             (["csv"], "A table is required: standings, picks, picks-by-player or outlook"),
                             (["import"], "A file is required, or a folder")):
            with self.subTest(words):
                done = self.folder.run(*words)
                self.assertEqual((done.returncode, faults(done)),
                                 (USED_WRONGLY, [fault, "Run with --help for more information."]))

    def test_a_folder_that_is_not_there_is_named(self):
        done = run("--folder", self.folder.path / "nowhere", "standings")
        self.assertEqual((done.returncode, done.stdout), (USED_WRONGLY, b""))
        self.assertIn("nowhere", done.stderr.decode())

    def test_help_and_version_go_to_the_output(self):
        for word in ("--help", "--version"):
            done = run(word)
            self.assertEqual((done.returncode, done.stderr), (DONE, b""))
        for verb in ("standings", "report", "scores", "outlook", "page", "csv", "final", "form", "import", "check"):
            self.assertIn(verb, run("--help").stdout.decode())
            self.assertEqual(run(verb, "--help").returncode, DONE)

    def test_an_empty_folder_has_no_standings_and_a_reason(self):
        done = self.folder.run("standings")
        self.assertEqual((done.returncode, done.stdout), (FAULTS_FOUND, b""))
        self.assertEqual(faults(done), ["There aren't any Player Selection files saved, so the \"Tournament Standings "
                                        "Report\" cannot be prepared."])

    def test_without_a_field_or_without_players_nothing_is_replaced(self):
        page = self.folder.path / "page.html"
        page.write_text("the page of yesterday")
        outlooks = (["outlook"], ["outlook", "--json"], ["page"], ["csv", "outlook"], ["final"], ["final", "--json"])
        others = (["standings"], ["standings", "--json"], ["scores"], ["scores", "--json"], ["csv", "standings"],
                  ["csv", "picks"], *(["report", number] for number in range(1, 8)))

        def refused(words, fault=None):
            with self.subTest(words):
                done = self.folder.run("--out", page, *words)
                self.assertEqual((done.returncode, done.stdout), (FAULTS_FOUND, b""))
                self.assertNotEqual(faults(done), [])
                if fault:
                    self.assertEqual(faults(done), [fault])
                self.assertEqual(page.read_text(), "the page of yesterday")

        for words in (*outlooks, *others):
            refused(words)
        small_pool(self.folder)
        for words in outlooks:
            refused(words, "POOLSTART.THS: It is not there: the field was never saved.")
        self.folder.write("POOLSTART.THS", small_field())
        for name in self.folder.contents():
            if name.endswith(".THC"):
                (self.folder.path / name).unlink()
        for words in (*outlooks, ["scores"], ["scores", "--json"]):
            refused(words, "There is no selection that can be read: nothing was made.")
        for words in (["standings"], ["standings", "--json"], ["csv", "standings"], ["csv", "picks"]):
            refused(words)

    def test_a_page_without_its_final_sheet_is_a_fault(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", small_field())
        lines = self.folder.read("Adams_AB.THC").split(b"\r\n")
        lines[129] = b"99999"
        self.folder.write("Adams_AB.THC", b"\r\n".join(lines))
        done = self.folder.run("page")
        self.assertEqual((done.returncode, len(faults(done))), (FAULTS_FOUND, 1))
        self.assertTrue(faults(done)[0].startswith("There is no final sheet. "), faults(done))
        self.assertIn(b'"There is no final sheet."', done.stdout)

    def test_a_field_that_cannot_be_read_is_reported(self):
        small_pool(self.folder)
        (self.folder.path / "POOLSTART.THS").mkdir()
        for words in (["standings"], ["outlook"], ["final"]):
            with self.subTest(words):
                done = self.folder.run(*words)
                self.assertEqual((done.returncode, faults(done)),
                                 (FAULTS_FOUND, ["POOLSTART.THS: It cannot be read, or not whole."]))

    def test_a_damaged_selection_is_named_and_the_others_are_there(self):
        small_pool(self.folder)
        self.folder.write("POOLSTART.THS", small_field())
        self.folder.write("Clark_D.THC", ["one line"])
        for words in (["standings"], ["scores"], ["outlook"], ["final"], ["csv", "standings"], ["csv", "outlook"]):
            with self.subTest(words):
                done = self.folder.run(*words)
                self.assertEqual((done.returncode, faults(done)),
                                 (FAULTS_FOUND, ["Clark_D.THC: The file has fewer than 131 lines."]))
                self.assertIn(b"AB, Adams", done.stdout)
        done = self.folder.run("check")
        self.assertIn("Clark_D.THC: The file has fewer than 131 lines.", faults(done))

    def test_a_faulty_player_list_is_reported(self):
        small_pool(self.folder)
        self.folder.write("PLAYERNAMES.CSV", ["too short"])
        done = self.folder.run("report", 2)
        self.assertEqual((done.returncode, done.stdout), (FAULTS_FOUND, b""))
        self.assertTrue(any("PLAYERNAMES.CSV" in fault for fault in faults(done)))

    def test_a_full_disk_is_a_fault(self):
        small_pool(self.folder)
        for words in (["standings"], ["--version"], ["--help"], ["csv", "--help"]):
            with self.subTest(words), open("/dev/full", "wb") as full:
                done = self.folder.run(*words, stdout=full)
                self.assertEqual(done.returncode, FAULTS_FOUND)
                self.assertEqual(len(faults(done)), 1)

    def test_a_file_that_cannot_be_written_is_named(self):
        small_pool(self.folder)
        done = self.folder.run("standings", "--out", self.folder.path / "nowhere/x.txt")
        self.assertEqual(done.returncode, FAULTS_FOUND)
        self.assertIn("x.txt", faults(done)[0])

    def test_no_output_replaces_a_part_of_the_pool(self):
        small_pool(self.folder)
        before = self.folder.contents()
        for name in ("TALLYHOOP.THS", "poolstart.ths", "Adams_AB.THC", "New.thc", "PLAYERNAMES.CSV", "prizes.csv", "TALLYHOOP.INI"):
            with self.subTest(name):
                done = self.folder.run("standings", "--out", self.folder.path / name)
                self.assertEqual(done.returncode, USED_WRONGLY)
        self.assertEqual(self.folder.contents(), before)

    def test_no_link_leads_the_output_to_a_part_of_the_pool(self):
        small_pool(self.folder)
        elsewhere = Folder(self).path
        (elsewhere / "link").symlink_to(self.folder.path / "Adams_AB.THC")
        (elsewhere / "chain").symlink_to(elsewhere / "link")
        (elsewhere / "new").symlink_to(self.folder.path / "New_N.THC")
        (elsewhere / "second name").hardlink_to(self.folder.path / "TALLYHOOP.THS")
        before = self.folder.contents()
        for name in ("link", "chain", "new", "second name"):
            with self.subTest(name):
                done = self.folder.run("standings", "--out", elsewhere / name)
                self.assertEqual((done.returncode, done.stdout), (USED_WRONGLY, b""))
        self.assertEqual(self.folder.contents(), before)
        (elsewhere / "report").symlink_to(elsewhere / "RPTOPT1.TXT")
        self.assertEqual(self.folder.run("standings", "--out", elsewhere / "report").returncode, DONE)

    def test_an_empty_name_is_no_name(self):
        small_pool(self.folder)
        for words in (["--folder", "", "standings"], ["standings", "--folder="], ["standings", "--out", ""],
                      ["--folder", self.folder.path, "--out=", "standings"]):
            with self.subTest(words):
                done = run(*words, cwd=self.folder.path)
                self.assertEqual((done.returncode, done.stdout), (USED_WRONGLY, b""))

    def test_the_common_options_may_follow_the_verb(self):
        small_pool(self.folder)
        done = run("report", 1, "--folder", self.folder.path, "--title", SMALL_TITLE)
        self.assertEqual(done.stdout, (APPROVED / "small/RPTOPT1.TXT").read_bytes())

    def test_the_last_folder_counts(self):
        small_pool(self.folder)
        done = run("--folder", "/nowhere", "standings", "--folder", self.folder.path)
        self.assertEqual(done.returncode, DONE)

    def test_its_own_folder_is_the_one_that_holds_it(self):
        small_pool(self.folder)
        copy = self.folder.path / "tallyhoop-cli"
        shutil.copy2(BUILD / "cli/tallyhoop-cli", copy)
        done = run("standings", program=copy, cwd="/")
        self.assertEqual((done.returncode, done.stderr), (DONE, b""))
        self.assertIn(b"AB, Adams", done.stdout)

    def test_reading_writes_nothing(self):
        sample_pool(self.folder)
        before = self.folder.contents()
        for words in (["standings"], ["scores"], ["outlook"], ["check"], ["form"], ["csv", "picks"], ["final"], ["page"],
                      *(["report", number] for number in range(1, 8))):
            self.folder.run(*words)
        self.assertEqual(self.folder.contents(), before)

    def test_the_form_needs_a_final_field(self):
        done = self.folder.run("form")
        self.assertEqual((done.returncode, done.stdout), (FAULTS_FOUND, b""))
        sample_pool(self.folder)
        done = self.folder.run("form", "--mail-to", "ann@example.org")
        self.assertEqual((done.returncode, done.stderr), (DONE, b""))
        self.assertTrue(done.stdout.startswith(b"<!DOCTYPE html>"))
        self.assertIn(b"ann@example.org", done.stdout)
        maker = subprocess.run([BUILD / "tests/pages/tallyhoop_page_maker", "page",
                                self.folder.path / "POOLSTART.THS", "ann@example.org"], capture_output=True)
        self.assertEqual(done.stdout, maker.stdout, "the bytes of the windows' form")

    def test_it_needs_neither_windows_nor_the_mail_library(self):
        linked = subprocess.run(["ldd", BUILD / "cli/tallyhoop-cli"], capture_output=True, text=True).stdout
        for library in ("Qt6", "gmime", "glib"):
            self.assertNotIn(library, linked)

    def test_it_runs_without_a_display_and_without_a_home(self):
        small_pool(self.folder)
        done = subprocess.run([BUILD / "cli/tallyhoop-cli", "--folder", self.folder.path, "standings"], env={},
                              capture_output=True)
        self.assertEqual((done.returncode, done.stderr), (DONE, b""))


if __name__ == "__main__":
    unittest.main()
