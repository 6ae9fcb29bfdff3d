"""The main job, from the first start to the last save, in the real program."""

import unittest

from pool_2000 import selection, setup_file
from program import Program, centre
from sample_pool import install

BLUE, GREEN, RED = "#0000ff", "#00ff00", "#ff0000"
PROPHET = "Demo Prophet_DP.THC"


def lines(content):
    return content.decode("cp1252").split("\r\n")[:-1]


class Story(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())

    def shows(self, name, text):
        self.program.wait(lambda: self.program.text(name) == text, f"{name} showing {text!r}")

    def open_selection(self, name):
        self.program.menu("mnuFile", "mnuOpenSelection")
        self.program.file_dialog(name)
        self.program.wait(lambda: not self.program.modal(), f"{name} being open")

    def accept_proposed_name(self, name):
        self.program.wait(lambda: self.program.modal().get("name") == "QFileDialog", "the save dialog")
        self.shows("fileNameEdit", name)
        self.program.wait(lambda: self.program.modal()["active"], "the save dialog having the focus")
        self.program.key("Return")
        self.program.wait(lambda: self.program.modal().get("name") != "QFileDialog", "the save dialog going away")


class FromTheFirstStart(Story):
    def test_the_demo_is_offered_scored_changed_and_found_again(self):
        self.first_start_installs_the_sample_pool()
        self.a_selection_is_opened_and_scored()
        self.a_pick_is_changed_and_saved()
        self.a_semi_final_winner_is_entered()
        self.the_score_counts_it()
        self.everything_is_there_after_a_restart()
        self.assertEqual(self.program.errors(), "")

    def first_start_installs_the_sample_pool(self):
        offer, pause = install(self.program)
        self.assertEqual(offer["text"].splitlines(), [
            "It looks like you are just starting to work ",
            "with Tallyhoop..  A DEMO Mode is offered",
            "which will allow you to view and evaluate",
            "with information from the 2000 tournament...",
            " ",
            "More information is available on DEMO Mode in HELP",
            " ",
            "Do you want to initiate DEMO Mode?"])
        self.assertEqual([button["text"].replace("&", "") for button in offer["buttons"]], ["OK", "Cancel"])
        self.assertEqual(pause["text"], "Select the OK Key to Continue in Demonstration Mode")
        self.assertTrue(self.program.visible("lblDemoMode"))
        self.shows("lblRegion_0", "Arizona")
        self.shows("lblRegion_108", "UNC Wilmington")
        self.assertEqual(self.program.widget("lblRegion_0")["toolTip"], "Left Click or Drag to Select")

    def a_selection_is_opened_and_scored(self):
        self.open_selection(PROPHET)
        self.shows("txtPlayerName", "Demo Prophet")
        self.shows("lblRegion_126", "Michigan St.")
        self.program.menu("mnuOptions", "mnuScoreSelections")
        # Right picks in rounds 1 to 4: West 7, 3, 1, 0; Midwest 7, 3, 2, 1; East 6, 3, 1, 1; South 8, 1, 0, 0.
        # That is 28 x 1 + 10 x 2 + 4 x 4 + 2 x 8 = 80. Michigan St. and Florida are still in: 12 + 12 + 16 more.
        self.shows("txtPointScore", "Points: 80 / 120")
        self.marked(16, "Arizona", GREEN, "=")
        self.marked(18, "Indiana St.", RED, "X")
        self.marked(124, "Michigan St.", BLUE, "")
        self.marked(126, "Michigan St.", BLUE, "")
        self.assertTrue(self.program.widget("cmdDefaultColors")["visible"])
        self.assertTrue(self.program.widget("txtPlayerName")["readOnly"])
        self.assertFalse(self.program.action("mnuSaveSelection")["enabled"])
        self.program.click("cmdDefaultColors")
        self.program.wait(lambda: not self.program.visible("cmdDefaultColors"), "Default Colors going away")
        self.marked(16, "Arizona", BLUE, "")
        self.marked(18, "Indiana St.", BLUE, "")

    def marked(self, position, team, colour, mark):
        block, place = divmod(position, 31) if position < 124 else (4, position - 124 + 16)
        name = f"lblRegion_{position}"
        self.program.wait(lambda: (self.program.text(name), self.program.colour(name)) == (team, colour),
                          f"{team} in {colour} at {position}")
        self.assertEqual(self.program.text(f"lblResult_{15 * block + place - 16}"), mark)

    def a_pick_is_changed_and_saved(self):
        before = lines(self.program.read(PROPHET))
        self.program.click("lblRegion_4")
        self.shows("lblRegion_18", "Texas")
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.accept_proposed_name(PROPHET)
        self.program.wait(lambda: lines(self.program.read(PROPHET)) != before, "the file being saved")
        self.assertEqual(self.program.modal(), {})
        self.assertEqual(lines(self.program.read(PROPHET)), [*before[:18], "Texas", *before[19:]])

    def a_semi_final_winner_is_entered(self):
        before = lines(self.program.read("TALLYHOOP.THS"))
        self.program.menu("mnuOptions", "mnuGameResults")
        self.shows("txtPlayerName", "FinalResults")
        self.shows("txtPlayerInitials", "A")
        self.assertTrue(self.program.widget("txtPlayerName")["readOnly"])
        self.shows("lblRegion_30", "Wisconsin")
        self.shows("lblRegion_124", "")
        self.program.click("lblRegion_61")
        self.shows("lblRegion_124", "Michigan St.")
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.program.wait(lambda: lines(self.program.read("TALLYHOOP.THS")) != before, "the results being saved")
        self.assertEqual(lines(self.program.read("TALLYHOOP.THS")), [*before[:124], "Michigan St.", *before[125:]])

    def the_score_counts_it(self):
        self.open_selection(PROPHET)
        self.shows("txtPlayerName", "Demo Prophet")
        self.program.menu("mnuOptions", "mnuScoreSelections")
        # One point more for Texas, earned and possible, and the semi-final's 12 are earned now.
        self.shows("txtPointScore", "Points: 93 / 121")
        self.marked(18, "Texas", GREEN, "=")
        self.marked(124, "Michigan St.", GREEN, "=")

    def everything_is_there_after_a_restart(self):
        self.assertEqual(self.program.close(), 0)
        self.program.start()
        self.shows("lblTitle", "2000 NCAA Tournament")
        self.assertEqual(self.program.modal(), {})
        self.open_selection(PROPHET)
        self.shows("lblRegion_18", "Texas")
        self.program.menu("mnuOptions", "mnuScoreSelections")
        self.shows("txtPointScore", "Points: 93 / 121")
        self.program.menu("mnuOptions", "mnuGameResults")
        self.shows("txtPlayerName", "FinalResults")
        self.shows("lblRegion_124", "Michigan St.")
        self.shows("lblRegion_125", "")


class InDemoMode(Story):
    def test_a_new_selection_is_refused(self):
        install(self.program)
        before = self.program.files()
        self.program.type("txtPlayerInitials", "JS")
        self.program.type("txtPlayerName", "Smith")
        self.program.type("txtFinalPoints", "150")
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.accept_proposed_name("Smith_JS.THC")
        refusal = self.program.answer("OK")
        self.assertEqual(refusal["text"], "You are not allowed to save a New File \nwhen executing under DEMO Mode")
        self.assertEqual(self.program.files(), before)

    def test_leaving_it_keeps_what_was_changed_and_brings_the_default_field_back(self):
        install(self.program)
        self.open_selection(PROPHET)
        self.shows("lblRegion_18", "Indiana St.")
        self.program.click("lblRegion_4")
        self.shows("lblRegion_18", "Texas")
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.accept_proposed_name(PROPHET)
        self.program.wait(lambda: lines(self.program.read(PROPHET))[18] == "Texas", "the file being saved")
        changed = self.program.read(PROPHET)
        self.program.menu("mnuDemo", "mnuDemoReset")
        box = self.program.answer("OK", "STALLYHOOP DEMOSTRATION MODE")
        self.assertEqual(box["text"], "Select the OK Key to Continue Normal Operation of Program")
        kept = self.program.answer("OK", "STALLYHOOP DEMOSTRATION MODE")["text"]
        self.assertIn("The files that you changed in demo mode are kept.", kept)
        self.shows("lblRegion_0", "TEAM1")
        self.assertEqual(self.program.text("txtPlayerName"), "")
        self.assertFalse(self.program.visible("lblDemoMode"))
        self.assertFalse(self.program.action("mnuSaveSelection")["enabled"])
        backup, players = self.program.files()
        self.assertEqual(players, "PLAYERNAMES.CSV")
        self.assertTrue(backup.startswith("Backup "), backup)
        self.assertIn(self.program.path(backup), kept)
        self.assertEqual([file.name for file in (self.program.folder / backup).iterdir()], [PROPHET])
        self.assertEqual((self.program.folder / backup / PROPHET).read_bytes(), changed)
        self.assertEqual(self.program.errors(), "")

    def test_declining_leaves_the_default_field(self):
        self.program.start()
        self.program.answer("Cancel", "** DEMO MODE OPTION **")
        self.shows("lblRegion_0", "TEAM1")
        self.shows("lblRegion_108", "TEAM64")
        self.assertFalse(self.program.visible("lblDemoMode"))
        self.assertEqual(self.program.files(), ["PLAYERNAMES.CSV"])
        for entry in ("mnuNewSelection", "mnuOpenSelection", "mnuSaveSelection", "mnuScoreSelections", "mnuGameResults",
                      "mnuReports"):
            self.assertFalse(self.program.action(entry)["enabled"], entry)


class OnALargeDisplay(unittest.TestCase):
    def test_the_window_is_centred_and_the_first_question_over_it(self):
        with Program(size=(1920, 1080)) as program:
            program.start()
            question = centre(program.box("** DEMO MODE OPTION **")["rect"])
            [frame] = [window["rect"] for window in program.windows() if window["name"] == "frmPoolMIDI"]
            self.assertEqual(frame[2:], [1280, 860])
            for place, middle in ((centre(frame), (960, 540)), (question, centre(frame))):
                self.assertAlmostEqual(place[0], middle[0], delta=60)
                self.assertAlmostEqual(place[1], middle[1], delta=60)


class AnOwnPool(Story):
    def setUp(self):
        super().setUp()
        self.program.write("POOLSTART.THS", setup_file())
        self.program.start()
        self.shows("lblTitle", "Office Pool")
        self.assertEqual(self.program.modal(), {})

    def test_a_new_selection_is_clicked_and_dragged_and_saved_as_a_new_file(self):
        self.program.menu("mnuFile", "mnuNewSelection")
        self.program.click("lblRegion_2")
        self.shows("lblRegion_17", "Wisconsin")
        self.program.click("lblRegion_17")
        self.shows("lblRegion_24", "Wisconsin")
        self.program.drag("lblRegion_31", "lblRegion_126")
        self.shows("lblRegion_126", "Michigan St.")
        self.program.drag("lblRegion_66", "lblRegion_31")  # from another region: changes nothing
        self.program.click("lblRegion_33")
        self.shows("lblRegion_48", "Utah")
        self.program.right_click("lblRegion_48")
        self.shows("lblRegion_48", "")
        self.program.type("txtPlayerInitials", "js")
        self.program.type("txtPlayerName", "Smith")
        self.program.type("txtFinalPoints", "165")
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.accept_proposed_name("Smith_js.THC")
        self.program.wait(lambda: "Smith_js.THC" in self.program.files(), "the new file")
        path = dict.fromkeys([47, 55, 59, 61, 124, 126], "Michigan St.")
        expected = selection({17: "Wisconsin", 24: "Wisconsin", **path}, "JS", "Smith", "165")
        self.assertEqual(lines(self.program.read("Smith_js.THC")), expected)
        # The player list opens automatically, with name and file filled in.
        self.shows("txtName", "Smith,js")
        self.shows("txtFileName", "SMITH_JS.THC")
        self.program.type("txtEmail", "smith@example.org")
        self.program.click("cmdAdd")
        self.program.wait(lambda: self.program.visible("lblTitle"), "the board coming back")
        record = f'"{"Smith,js":25}","{"SMITH_JS.THC":33}","{"smith@example.org":43}","{"":14}"'
        self.assertEqual(lines(self.program.read("PLAYERNAMES.CSV"))[1:], [record])
        self.assertEqual(self.program.errors(), "")


if __name__ == "__main__":
    unittest.main()
