"""The score display beside the board: calculated, sorted by dragging headings, and clicked."""

import unittest

from program import Program, centre
from sample_pool import FAVORITE, HALFWAY, LONGSHOT, PROPHET, install

GREEN, RED, BLUE = "#00ff00", "#ff0000", "#0000ff"


class ScoreDisplay(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())
        install(self.program)
        self.program.menu("mnuOptions", "mnuGameResults")
        self.program.wait(lambda: self.program.text("txtPlayerName") == "FinalResults", "the results")
        self.program.menu("mnuOptions", "mnuScoreSelections")
        self.program.click("cmdOk")
        self.rows_are([FAVORITE, HALFWAY, LONGSHOT, PROPHET])

    def rows_are(self, rows):
        self.program.wait(lambda: self.program.rows("msgScoreDisplay") == rows, f"the rows {rows}")

    def drag_to_front(self, heading):
        headings = self.program.table("msgScoreDisplay")["headings"]
        source = next(one["rect"] for one in headings if one["text"] == heading)
        x, y, _, height = headings[0]["rect"]
        self.program.drag_between(centre(source), (x + 4, y + height // 2))

    def test_a_heading_dragged_to_the_front_sorts(self):
        self.drag_to_front("Score")
        moved = [[row[2], row[0], row[1], row[3], row[4]] for row in (PROPHET, FAVORITE, HALFWAY, LONGSHOT)]
        self.rows_are(moved)
        self.drag_to_front("Player Name")
        self.rows_are([[row[1], row[2], row[0], row[3], row[4]] for row in (FAVORITE, HALFWAY, LONGSHOT, PROPHET)])
        self.program.click("cmdOk")
        self.rows_are([FAVORITE, HALFWAY, LONGSHOT, PROPHET])

    def test_a_file_name_marks_the_board_and_closing_clears_it(self):
        rects = self.program.table("msgScoreDisplay")["rects"]
        self.program.click_at(centre(rects[2][2]))  # a score: nothing happens
        self.program.click_at(centre(rects[2][0]))
        # Longshot had Arizona right, and Fresno St. beating Wisconsin.
        self.program.wait(lambda: self.program.colour("lblRegion_17") == RED, "the marks")
        self.assertEqual((self.program.text("lblRegion_17"), self.program.text("lblResult_1")), ("Wisconsin", "X"))
        self.assertEqual((self.program.colour("lblRegion_16"), self.program.text("lblResult_0")), (GREEN, "="))
        self.program.click("cmdExit")
        self.program.wait(lambda: not self.program.visible("msgScoreDisplay"), "the scores going away")
        self.program.wait(lambda: self.program.colour("lblRegion_17") == BLUE, "the marks going away")
        self.program.click("lblRegion_30")
        self.program.wait(lambda: self.program.text("lblRegion_124") == "Wisconsin", "the board being in use again")

    def active(self):
        return [window["name"] for window in self.program.windows() if window["active"]]

    def test_a_press_anywhere_on_the_board_brings_the_scores_to_the_front(self):
        # A row and a winner's place, a marker, a seed, a caption, a field, a comment: all of them are disabled.
        for place in ("lblRegion_0", "lblRegion_16", "lblResult_0", "txtSeed_0", "lblRegionTitle_0", "txtPlayerName",
                      "txtComment1"):
            with self.subTest(place):
                self.program.menu("mnuHelp")
                self.program.key("Escape")
                self.program.wait(lambda: self.active() == ["frmPoolMIDI"], "the frame having the focus")
                x, y, width, height = self.program.widget(place)["rect"]
                self.program.click_at((x + width // 2, y + height // 2))
                self.program.wait(lambda: self.active() == ["frmPoolMisc"], f"the scores in front after {place}")


if __name__ == "__main__":
    unittest.main()
