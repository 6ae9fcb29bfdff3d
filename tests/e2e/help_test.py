"""The help, opened at the topic of the screen."""

import pathlib
import re
import unittest

from pool_2000 import selection, setup_file
from program import Program

SOURCE = pathlib.Path(__file__).parents[2]
HELP = SOURCE / "help/TALLYHOOP.HLP"


class Help(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())
        self.program.write("POOLSTART.THS", setup_file())
        self.program.write("TALLYHOOP.THS", selection({}, "A", "FinalResults"))
        self.program.start()

    def help_opens_at(self, heading):
        self.program.key("F1")
        self.program.wait(lambda: self.program.has("helpText") and
                          self.program.widget("helpText")["topLine"] == heading, f"the help at {heading!r}")
        self.program.wait(lambda: self.program.widget("helpText")["focus"], "the help having the focus")
        self.program.key("Escape")
        self.program.wait(lambda: not self.program.has("helpText"), "the help going away")

    def test_each_screen_has_its_topic(self):
        self.help_opens_at("Entering and saving selections")
        self.program.menu("mnuReports")
        self.program.wait(lambda: self.program.visible("chkOptions_0"), "the reports")
        self.help_opens_at("Reports")
        self.program.click("cmdExit")
        self.program.menu("mnuOptions", "mnuEditNames")
        self.program.wait(lambda: self.program.visible("lstNames"), "the player list")
        self.help_opens_at("The player list")
        self.program.click("cmdCancel")
        self.program.menu("mnuOptions", "mnuScoreSelections")
        self.program.wait(lambda: self.program.visible("cmdDefaultColors"), "the marks")
        self.help_opens_at("Scores, and what \N{LEFT DOUBLE QUOTATION MARK}possible\N{RIGHT DOUBLE QUOTATION MARK} means")
        self.program.menu("mnuOptions", "mnuGameResults")
        self.program.wait(lambda: self.program.text("txtPlayerName") == "FinalResults", "the results")
        self.help_opens_at("Entering the results")
        self.program.menu("mnuOptions", "mnuScoreSelections")
        self.program.wait(lambda: self.program.visible("msgScoreDisplay"), "the scores")
        self.help_opens_at("The list of all scores")

    def test_a_missing_help_file_is_reported(self):
        (self.program.folder / "TALLYHOOP.HLP").unlink()
        self.program.key("F1")
        box = self.program.answer("OK", "** Help File Problem **")
        self.assertEqual(box["text"].splitlines(), ["Trouble loading the help file, make sure that ",
                                                    "TALLYHOOP.HLP is present in the same directory ",
                                                    "as the application program."])


class HelpBeforeThereIsAPool(unittest.TestCase):
    help_opens_at = Help.help_opens_at

    def test_a_message_that_mentions_the_help_leads_there(self):
        self.program = self.enterContext(Program())
        self.program.start()
        self.program.box("** DEMO MODE OPTION **")
        self.help_opens_at("Demo mode")
        self.program.answer("Cancel", "** DEMO MODE OPTION **")
        self.program.wait(lambda: not self.program.modal(), "the board")
        self.help_opens_at("Getting started in five minutes")
        self.program.menu("mnuSetup", "mnuSetupOptions")
        self.program.wait(lambda: self.program.visible("cmdFinalize"), "the setup")
        self.help_opens_at("Setting up a pool")
        self.program.menu("mnuOptions", "mnuSeating")
        self.program.wait(lambda: self.program.visible("cmdComplete"), "the seeds")
        self.help_opens_at("Seeds")


class HelpFile(unittest.TestCase):
    def test_every_link_leads_somewhere(self):
        text = HELP.read_text(encoding="utf-8")
        anchors = re.findall(r'id="(\w+)"', text)
        self.assertEqual(len(anchors), len(set(anchors)))
        self.assertEqual(set(re.findall(r'href="#(\w+)"', text)) - set(anchors), set())

    def test_every_topic_that_the_program_asks_for_is_there(self):
        text = HELP.read_text(encoding="utf-8")
        topics = (SOURCE / "screens/help_topics.h").read_text(encoding="utf-8")
        asked = set(re.findall(r'char\* k\w+ = "(\w+)"', topics))
        self.assertGreaterEqual(len(asked), 12)
        self.assertEqual(asked - set(re.findall(r'id="(\w+)"', text)), set())

    def test_the_records_to_be_copied_have_the_right_columns(self):
        text = HELP.read_text(encoding="utf-8")
        records = [line for line in text.splitlines() if line.startswith('"') and line.endswith('"')]
        self.assertEqual(len(records), 3)
        for record in records:
            self.assertEqual(len(record), 126)
            self.assertEqual({column for column in range(1, 127) if record[column - 1] == '"'},
                             {1, 27, 29, 63, 65, 109, 111, 126})
            self.assertEqual([record[column - 1] for column in (28, 64, 110)], [",", ",", ","])


if __name__ == "__main__":
    unittest.main()
