"""Fees, prizes and the final sheet: entered, saved, and settled by the total of the final."""

import unittest

from outlook_test import CHAMPION, PLAYED, SEMIFINAL_A, SEMIFINAL_B
from pool_2000 import selection, setup_file
from program import Program, centre

# All regions' points, 128, for Ann and Bob; their predictions are 148 and 160, so that 154 is the middle.
FINISHED = {**PLAYED, SEMIFINAL_A: "Arizona", SEMIFINAL_B: "Duke", CHAMPION: "Duke"}


class Money(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())
        self.program.write("POOLSTART.THS", setup_file())
        self.program.write("TALLYHOOP.THS", selection(FINISHED, "X", "FinalResults"))
        self.program.write("Ann_A.THC", selection(PLAYED, "A", "Ann", "148"))
        self.program.write("Bob_B.THC", selection(PLAYED, "B", "Bob", "160"))
        self.program.write("Cid_C.THC", selection({}, "C", "Cid"))
        self.program.start()

    def shows(self, name, text):
        self.program.wait(lambda: self.program.text(name) == text, f"{name} showing {text!r}")

    def open(self):
        self.program.menu("mnuOptions", "mnuMoney")
        self.program.wait(lambda: self.program.visible("txtEntryFee"), "fees and prizes")

    def enter_prizes(self):
        """10.00 from each of three players: 21.00 for the first and 9.00 for the second place."""
        self.program.type("txtEntryFee", "10")
        self.program.type("txtPrize_0", "70 %")
        self.program.type("txtPrize_1", "30%")
        self.shows("lblPurse", "Fees 30.00: kept back 0.00, prizes 30.00, left 0.00.")

    def final_sheet(self, line):
        """The lines of FINAL.TXT once it has this one."""
        self.program.click("cmdFinalSheet")
        self.program.wait(lambda: "FINAL.TXT" in self.program.files(), "the sheet")
        self.program.wait(lambda: line in self.program.read("FINAL.TXT").decode("cp1252").split("\r\n"), line)
        return self.program.read("FINAL.TXT").decode("cp1252").split("\r\n")

    def test_fees_and_prizes_are_kept(self):
        self.open()
        self.enter_prizes()
        self.program.click_at(centre(self.program.table("grdFees")["rects"][1][0]))
        self.shows("lblFees", "1 of 3 players paid: 10.00 received, 20.00 owed.")
        self.program.click("cmdSave")
        self.program.wait(lambda: "PRIZES.CSV" in self.program.files(), "the file")
        self.program.wait(lambda: self.program.text("explanation") == "Fees and prizes are saved.", "the news")
        self.assertEqual(self.program.read("PRIZES.CSV"),
                         b"Item,Which,Value\r\nEntry fee,,10.00\r\nKept back,,0.00\r\nTies,,Nearest\r\n"
                         b"Prize,1,70 %\r\nPrize,2,30 %\r\nPaid,Bob_B.THC,Yes\r\n")
        self.program.restart()
        self.open()
        self.shows("txtPrize_1", "30 %")
        self.shows("lblAmount_1", "9.00")
        self.shows("lblFees", "1 of 3 players paid: 10.00 received, 20.00 owed.")
        self.program.key("Escape")
        self.program.wait(lambda: self.program.visible("lblTitle"), "the board")

    def test_the_total_settles_who_is_first(self):
        self.open()
        self.enter_prizes()
        sheet = self.final_sheet("    1=  B, Bob          128        160  15.00")
        self.assertIn("    1=  A, Ann          128        148  15.00", sheet)
        self.assertIn("    1  A, Ann (148)              153      154  B, Bob (160)              155", sheet)
        self.program.click("cmdSave")
        self.program.wait(lambda: "PRIZES.CSV" in self.program.files(), "the file")
        self.program.key("Alt+x")
        self.program.wait(lambda: self.program.visible("lblTitle"), "the board")

        self.program.key("F5")
        self.program.type("txtFinalPoints", "150")
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.program.wait(lambda: b"\r\n150\r\n*END*" in self.program.read("TALLYHOOP.THS"), "the results")

        self.open()
        self.shows("lblTotal", "Total of the final: 150.")
        sheet = self.final_sheet("    1   A, Ann          128        148   -2  21.00")
        self.assertIn("    2   B, Bob          128        160  +10   9.00", sheet)
        self.assertIn("    3   C, Cid          000                         Last", sheet)

    def test_what_is_not_saved_is_asked_about(self):
        self.open()
        self.program.type("txtEntryFee", "ten")
        self.program.key("Return")
        self.program.answer("OK", "Money")
        self.program.key("Escape")
        self.program.answer("Cancel", "MONEY NOT SAVED")
        self.program.key("Escape")
        self.program.answer("OK", "MONEY NOT SAVED")
        self.program.wait(lambda: self.program.visible("lblTitle"), "the board")
        self.assertNotIn("PRIZES.CSV", self.program.files())


if __name__ == "__main__":
    unittest.main()
