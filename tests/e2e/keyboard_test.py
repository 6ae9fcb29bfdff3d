"""A whole pool played without a mouse: every step is a key press."""

import unittest

from program import Program

GREEN = "#00ff00"
PROPHET = "Demo Prophet_DP.THC"


def lines(content):
    return content.decode("cp1252").split("\r\n")[:-1]


class Keyboard(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())
        self.program.move = self.program.press = self.program.click = self.program.drag = None  # the mouse must not be used

    # --- the keys ---

    def keys(self, *keys):
        for key in keys:
            self.program.key(key)

    def shows(self, name, text):
        self.program.wait(lambda: self.program.text(name) == text, f"{name} showing {text!r}")

    def focused(self, name):
        self.program.wait(lambda: self.program.widget(name)["focus"], f"{name} having the focus")

    def tab_to(self, name, at_most=30):
        for _ in range(at_most):
            if self.program.widget(name)["focus"]:
                return
            self.program.key("Tab")
        self.fail(f"{name} is not reached by Tab")

    def walk(self, start, *steps):
        """Arrow keys from one place of the board; each step names the key and the place it leads to."""
        self.focused(f"lblRegion_{start}")
        for key, place in steps:
            self.program.key(key)
            self.focused(f"lblRegion_{place}")

    def menu(self, *path):
        """Opens a menu by the letters underlined: the first with Alt, the others plainly."""
        modifier = "Alt+"
        for name in path:
            text = self.program.wait(lambda entry=name: self.program.action(entry)["enabled"]
                                     and (modifier or self.program.action(entry)["rect"])
                                     and self.program.action(entry)["text"], f"the menu entry {name}")
            self.program.key(modifier + text[text.index("&") + 1].lower())
            modifier = ""

    def accept(self, title):
        box = self.program.box(title)
        self.program.key("Return")
        self.program.wait(lambda: self.program.modal() != box, f"the box {title!r} going away")
        return box

    def file_dialog(self, path=None):
        self.program.wait(lambda: self.program.modal().get("name") == "QFileDialog", "a file dialog")
        self.program.box()
        self.focused("fileNameEdit")
        if path:
            self.keys("Ctrl+A")
            self.program.type_text(path)
            self.shows("fileNameEdit", path)
        self.keys("Return")
        self.program.wait(lambda: self.program.modal().get("name") != "QFileDialog", "the file dialog going away")

    def mnemonic(self, name):
        caption = self.program.text(name)
        self.program.key("Alt+" + caption[caption.index("&") + 1].lower())

    # --- the story ---

    def test_a_whole_pool(self):
        self.take_the_offer()
        self.open_the_selection()
        self.change_a_pick()
        self.undo_and_redo()
        self.save_the_selection()
        self.score_the_selection()
        self.enter_a_winner()
        self.show_and_sort_the_scores()
        self.write_a_report()
        self.leave()

    def take_the_offer(self):
        self.program.start()
        self.accept("** DEMO MODE OPTION **")
        self.program.box("STALLYHOOP DEMOSTRATION MODE")
        self.program.wait(lambda: "TALLYHOOP.INI" in self.program.files(), "the sample pool")
        self.accept("STALLYHOOP DEMOSTRATION MODE")
        self.shows("lblTitle", "2000 NCAA Tournament")
        self.focused("txtPlayerInitials")

    def open_the_selection(self):
        self.keys("Ctrl+O")
        self.file_dialog(self.program.path(PROPHET))
        self.shows("txtPlayerName", "Demo Prophet")

    def change_a_pick(self):
        # From the fields into the bracket: down the rows, out to the winners and back.
        self.tab_to("lblRegion_0")
        self.walk(0, ("Down", 1), ("Down", 2), ("Down", 3), ("Down", 4), ("Right", 18), ("Up", 17), ("Down", 18),
                  ("Left", 4))
        self.shows("lblRegion_18", "Indiana St.")
        self.keys("Space")
        self.shows("lblRegion_18", "Texas")
        self.assertEqual(self.program.widget("lblRegion_18")["accessibleName"],
                         "West, winner of first round, game 3: Texas")
        self.focused("lblRegion_4")
        self.walk(4, ("Right", 18))
        self.keys("Delete")
        self.shows("lblRegion_18", "")
        self.assertEqual(self.program.widget("lblRegion_18")["accessibleName"],
                         "West, winner of first round, game 3: no team")

    def undo_and_redo(self):
        self.keys("Ctrl+Z")
        self.shows("lblRegion_18", "Texas")
        self.keys("Ctrl+Z")
        self.shows("lblRegion_18", "Indiana St.")
        self.assertFalse(self.program.action("mnuUndo")["enabled"])
        self.keys("Ctrl+Shift+Z")
        self.shows("lblRegion_18", "Texas")
        self.keys("Ctrl+Shift+Z")
        self.shows("lblRegion_18", "")
        self.assertFalse(self.program.action("mnuRedo")["enabled"])
        self.menu("mnuEdit", "mnuUndo")
        self.shows("lblRegion_18", "Texas")

    def save_the_selection(self):
        before = lines(self.program.read(PROPHET))
        self.keys("Ctrl+S")
        self.program.wait(lambda: self.program.modal().get("name") == "QFileDialog", "the save dialog")
        self.shows("fileNameEdit", PROPHET)
        self.file_dialog()
        self.program.wait(lambda: lines(self.program.read(PROPHET)) != before, "the file being saved")
        self.assertEqual(lines(self.program.read(PROPHET)), [*before[:18], "Texas", *before[19:]])

    def score_the_selection(self):
        self.menu("mnuOptions", "mnuScoreSelections")
        # One point more than the 80 of 120 that the sample comes with: Texas won its first game.
        self.shows("txtPointScore", "Points: 81 / 121")
        self.program.wait(lambda: self.program.colour("lblRegion_18") == GREEN, "Texas in green")
        self.assertEqual(self.program.widget("lblRegion_18")["accessibleName"],
                         "West, winner of first round, game 3, = right pick: Texas")
        # A scored selection cannot be changed, and nothing can be undone.
        self.assertFalse(self.program.action("mnuUndo")["enabled"])
        self.keys("Ctrl+Z")
        self.shows("lblRegion_18", "Texas")
        self.mnemonic("cmdDefaultColors")
        self.program.wait(lambda: not self.program.visible("cmdDefaultColors"), "the marks going away")
        self.assertEqual(self.program.widget("lblRegion_18")["accessibleName"],
                         "West, winner of first round, game 3: Texas")

    def enter_a_winner(self):
        before = lines(self.program.read("TALLYHOOP.THS"))
        self.menu("mnuOptions", "mnuGameResults")
        self.shows("txtPlayerName", "FinalResults")
        self.tab_to_the_bracket()
        self.go_to_the_midwest_winner()
        self.keys("Space")
        self.shows("lblRegion_124", "Michigan St.")
        self.keys("Ctrl+S")
        self.program.wait(lambda: lines(self.program.read("TALLYHOOP.THS")) != before, "the results being saved")
        self.assertEqual(lines(self.program.read("TALLYHOOP.THS")), [*before[:124], "Michigan St.", *before[125:]])

    def place_with_focus(self):
        return next((place for place in range(127) if self.program.widget(f"lblRegion_{place}")["focus"]), None)

    def tab_to_the_bracket(self):
        """The bracket is one stop of the tab order, at the place that had the focus last."""
        for _ in range(30):
            if self.place_with_focus() is not None:
                return
            self.program.key("Tab")
        self.fail("the bracket is not reached by Tab")

    def go_to_the_midwest_winner(self):
        """Down the first rounds of the left half into the second region, then to the right until its winner."""
        for _ in range(40):
            if self.place_with_focus() in range(31, 62):
                break
            self.program.key("Down")
        for _ in range(6):
            if self.place_with_focus() == 61:
                return
            self.program.key("Right")
        self.fail("the winner of the second region is not reached by arrow keys")

    def show_and_sort_the_scores(self):
        self.menu("mnuOptions", "mnuScoreSelections")
        self.program.wait(lambda: self.program.visible("msgScoreDisplay"), "the score display")
        self.program.wait(lambda: any(window["active"] and window["name"] == "frmPoolMisc"
                                      for window in self.program.windows()), "the score display in front")
        self.mnemonic("cmdOk")
        self.program.wait(lambda: len(self.program.rows("msgScoreDisplay")) == 4, "the scores")
        # The semi-final's 12 points: Prophet had 81 with Texas, and picked Michigan St.
        self.assertIn([PROPHET, "DP, Demo Prophet", "93", "121", "Michigan St."], self.program.rows("msgScoreDisplay"))
        self.tab_to("msgScoreDisplay")
        self.keys("Right", "Right", "Ctrl+Shift+Left", "Ctrl+Shift+Left")
        self.program.wait(lambda: self.program.rows("msgScoreDisplay")[0][:2] == ["93", PROPHET], "the best first")
        self.keys("Right", "Space")  # a file name marks that player's picks on the board
        self.program.wait(lambda: self.program.colour("lblRegion_18") == GREEN, "the marks")
        self.keys("Escape")
        self.program.wait(lambda: not self.program.visible("msgScoreDisplay"), "the scores going away")

    def write_a_report(self):
        self.menu("mnuReports")
        self.program.wait(lambda: self.program.visible("cmdPrintSelections"), "the reports")
        self.tab_to("chkOptions_0")
        self.keys("Space")
        self.program.wait(lambda: self.program.widget("chkOptions_0")["checked"], "the tick")
        self.tab_to("optDestination_0")
        self.keys("Down")
        self.program.wait(lambda: self.program.widget("optDestination_1")["checked"], "the destination")
        self.mnemonic("cmdPrintSelections")
        self.program.wait(lambda: "RPTOPT1.TXT" in self.program.files(), "the report")
        self.program.wait(lambda: b"Demo Longshot" in self.program.read("RPTOPT1.TXT"), "its last line")
        standings = self.program.read("RPTOPT1.TXT").decode("cp1252")
        self.assertIn(" 093   DP, Demo Prophet ", standings)
        self.mnemonic("cmdExit")
        self.program.wait(lambda: not self.program.visible("cmdPrintSelections"), "the board")

    def leave(self):
        self.keys("Ctrl+Q")
        self.assertEqual(self.program.wait_for_end(), 0)
        self.assertEqual(self.program.errors(), "")


if __name__ == "__main__":
    unittest.main()
