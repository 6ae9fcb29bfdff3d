"""The check of all files: silent about a sound pool, and a line for everything else."""

import unittest

from pools import PRIZES, Folder, complete_pool, faults, record

DONE, FAULTS_FOUND = 0, 1


class Check(unittest.TestCase):
    def setUp(self):
        self.folder = Folder(self)
        complete_pool(self.folder)

    def change(self, name, line, text):
        lines = self.folder.read(name).decode("cp1252").split("\r\n")
        lines[line] = text
        self.folder.write(name, "\r\n".join(lines).encode("cp1252"))

    def reported(self):
        done = self.folder.run("check")
        self.assertEqual(done.returncode, FAULTS_FOUND if faults(done) else DONE)
        return faults(done)

    def test_a_sound_pool_has_no_faults(self):
        done = self.folder.run("check")
        self.assertEqual((done.returncode, done.stderr), (DONE, b""))
        self.assertEqual(done.stdout, b"14 files read, 0 faults.\r\n", "twelve players, the field and the results")

    def test_the_faults_of_the_field(self):
        self.change("POOLSTART.THS", 2, "Arizona")  # the second row of the West
        self.assertIn('POOLSTART.THS: 2 rows have the team "Arizona".', self.reported())
        self.change("POOLSTART.THS", 2, "")
        self.assertIn("POOLSTART.THS: West, row 2 has no team.", self.reported())
        self.change("POOLSTART.THS", 2, "Jackson St.")
        self.change("POOLSTART.THS", 70, "0")
        self.assertEqual(self.reported(), ["POOLSTART.THS: The points of round 1 are not 1 to 99."])
        (self.folder.path / "POOLSTART.THS").unlink()
        self.assertEqual(self.reported(), ["POOLSTART.THS: It is not there: the field was never saved."])

    def test_all_faults_of_the_field_at_once(self):
        self.change("POOLSTART.THS", 2, "")
        self.change("POOLSTART.THS", 5, "")
        self.change("POOLSTART.THS", 65, "")  # the title, and after it those of the regions
        self.change("POOLSTART.THS", 66, "")
        self.change("POOLSTART.THS", 70, "0")
        reported = [fault for fault in self.reported() if fault.startswith("POOLSTART.THS: ")]
        self.assertEqual(sorted(reported), sorted(f"POOLSTART.THS: {words}" for words in (
            "Region 1, row 2 has no team.", "Region 1, row 5 has no team.", "The pool has no title.",
            "Region 1 has no title.", "The points of round 1 are not 1 to 99.")))

    def test_the_faults_of_a_selection(self):
        name = "Joe Brandt_JB.THC"
        self.change(name, 127, " ")
        self.change(name, 129, "300")
        self.assertEqual(self.reported(), [f"{name}: The initials are missing.",
                                       f"{name}: The total of the final is not 50 to 250."])
        self.change(name, 127, "JB")
        self.assertEqual(self.reported(), [f"{name}: The total of the final is not 50 to 250."])
        self.change(name, 129, "150")
        self.change(name, 0, "ARIZONA")
        self.assertIn(f'{name}: West, row 1 has "ARIZONA", the field has "Arizona".', self.reported())

    def test_a_row_without_a_team_differs_from_one_with_a_team(self):
        name = "Joe Brandt_JB.THC"
        self.change(name, 0, "")
        self.assertIn(f'{name}: West, row 1 has no team, the field has "Arizona".', self.reported())
        self.change("POOLSTART.THS", 1, "")
        self.change(name, 0, "Arizona")
        self.assertIn(f'{name}: West, row 1 has "Arizona", the field has no team.', self.reported())

    def test_picks_that_cannot_be(self):
        name = "Joe Brandt_JB.THC"
        self.change(name, 126, "Nobody U.")
        self.assertEqual(self.reported(), [f'{name}: "Nobody U." does not play in final.'])
        self.change(name, 126, "")
        self.assertEqual(self.reported(), [f"{name}: 1 game of 63 without a pick."])

    def test_results_may_be_unfinished_but_not_impossible(self):
        self.change("TALLYHOOP.THS", 16, "Duke")
        self.assertIn('TALLYHOOP.THS: "Duke" does not play in West, round 1, game 1.', self.reported())

    def test_the_faults_of_the_player_list(self):
        self.folder.write("PLAYERNAMES.CSV", [record("Name", "FileName", "Email", "Phone"), "short",
                                              record("Ann", "Ann_A.THC", "", "").replace('"', "'"),
                                              record("Bob", "Bob_B.THC", "", "") + "!"])
        self.assertEqual(self.reported(), ["PLAYERNAMES.CSV: Record 2 is too short.",
                                       "PLAYERNAMES.CSV: Record 3 has not the format of a record.",
                                       "PLAYERNAMES.CSV: Record 4 is too long."])
        self.assertNotIn("PLAYERNAMES.TXT", self.folder.contents(), "it only looks")

    def test_the_faults_of_the_prizes(self):
        self.folder.write("PRIZES.CSV", PRIZES)
        self.assertEqual(self.reported(), [])
        self.folder.write("PRIZES.CSV", [*PRIZES, "Prize,0,1.00"])
        [fault] = self.reported()
        self.assertTrue(fault.startswith("PRIZES.CSV: "), fault)
        self.folder.write("PRIZES.CSV", [PRIZES[0], "Fee,,10.00", "Prize,1,60 %", "Prize,2,all", "Prize,3,41 %"])
        self.assertEqual(self.reported(), [
            "PRIZES.CSV: Row 2 is not understood: Fee, , 10.00",
            "PRIZES.CSV: Row 4 is not understood: Prize, 2, all",
            "PRIZES.CSV: The shares of the prizes come to 101 %: together they can be 100 % at most."])

    def test_two_files_of_one_name(self):
        self.folder.write("tallyhoop.ths", self.folder.read("TALLYHOOP.THS"))
        self.assertEqual(self.reported(), ["TALLYHOOP.THS: There are several of this name: TALLYHOOP.THS, tallyhoop.ths."])

    def test_damaged_files(self):
        self.folder.write("TALLYHOOP.THS", ["one line"])
        self.folder.write("Joe Brandt_JB.THC", ["one line"])
        self.folder.write("NCAALIST.THS", ["no marker"])
        reported = self.reported()
        self.assertEqual(len(reported), 3, reported)
        for name, fault in zip(("TALLYHOOP.THS", "Joe Brandt_JB.THC", "NCAALIST.THS"), reported):
            self.assertTrue(fault.startswith(name), fault)


if __name__ == "__main__":
    unittest.main()
