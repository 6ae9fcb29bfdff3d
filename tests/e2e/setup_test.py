"""A whole field entered with the keyboard alone, in the real program."""

import unittest

from pool_2000 import FIELD, setup_file
from program import Program

QUESTION = [
    "ARE YOU FINISHED WITH ALL SETUP OPTIONS??",
    'You selected the "Finalize Tournament" option and then selected to save this SETUP File.',
    "",
    "If you complete this option, you will not be able to make any addtional Setup changes.",
    "THE SETUP FUNCTION FOR THE TOURNAMENT WILL BE CONSIDERED FINAL!",
    "",
    "If you ARE FINISHED with your setup, then this is fine.  Select OK and the file will be saved.",
    "",
    'Otherwise, select CANCEL and the "Finalize Tournament" option will be reset.',
]


class TheFieldOf2000(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())

    def focus_is_on(self, name):
        self.program.wait(lambda: self.program.has(name) and self.program.widget(name)["focus"],
                          f"{name} having the focus")

    def shows(self, name, text):
        self.program.wait(lambda: self.program.text(name) == text, f"{name} showing {text!r}")

    def test_it_is_typed_saved_and_finalized_without_the_mouse(self):
        self.open_the_setup_screen()
        self.type_the_teams()
        self.type_the_titles_and_a_comment()
        self.press_finalize_and_cancel_the_question()
        self.finalize()
        self.assertEqual(self.program.errors(), "")

    def open_the_setup_screen(self):
        self.program.start()
        self.program.box("** DEMO MODE OPTION **")
        self.program.key("Esc")
        self.program.wait(lambda: not self.program.modal(), "the offer going away")
        self.assertFalse(self.program.action("mnuNewSelection")["enabled"])
        self.program.key("Alt+S")
        self.program.wait(lambda: self.program.action("mnuSetupOptions")["rect"], "the Setup menu being open")
        self.program.key("P")
        self.focus_is_on("txtRegion_0")

    def type_the_teams(self):
        for box, team in enumerate(FIELD):
            self.program.type_text(team.lower())
            self.shows(f"txtRegion_{box}", team)
            if box < 63:
                self.program.key("Return")
                self.focus_is_on(f"txtRegion_{box + 1}")

    def type_the_titles_and_a_comment(self):
        self.program.key("Tab")
        for index, title in [(1, "West"), (2, "Midwest"), (3, "East"), (4, "South"), (0, "Office Pool")]:
            self.focus_is_on(f"TxtInfo_{index}")
            self.program.type_text(title)
            self.shows(f"TxtInfo_{index}", title)
            self.program.key("Tab")
        self.focus_is_on("txtComment1")
        self.program.type_text("Five dollars")
        self.program.key("Return")
        self.program.type_text("by Thursday noon")
        self.shows("txtComment1", "Five dollars\nby Thursday noon")
        for name in ("txtComment2", *(f"txtInfo6_{round}" for round in range(6)), "cmdFinalize"):
            self.program.key("Tab")
            self.focus_is_on(name)

    def press_finalize_and_cancel_the_question(self):
        self.program.key("Space")
        self.program.wait(lambda: not self.program.enabled("cmdFinalize"), "Finalize Tournament being pressed")
        self.program.key("Ctrl+S")
        question = self.program.box()
        self.assertEqual(question["text"].splitlines(), QUESTION)
        self.program.key("Esc")
        self.program.wait(lambda: self.program.enabled("cmdFinalize"), "Finalize Tournament being free again")
        self.assertNotIn("POOLSTART.THS", self.program.files())

    def finalize(self):
        self.focus_is_on("txtInfo6_5")
        self.program.key("Tab")
        self.focus_is_on("cmdFinalize")
        self.program.key("Space")
        self.program.wait(lambda: not self.program.enabled("cmdFinalize"), "Finalize Tournament being pressed")
        self.program.key("Ctrl+S")
        self.program.box()
        self.program.key("Return")
        self.program.wait(lambda: self.program.has("lblRegion_0"), "the board")
        self.shows("lblRegion_0", "Arizona")
        self.shows("lblRegion_108", "UNC Wilmington")
        self.shows("lblTitle", "Office Pool")
        expected = "".join(line + "\r\n" for line in setup_file("Office Pool", finalized=True))
        self.assertEqual(self.program.read("POOLSTART.THS"), expected.encode("cp1252"))
        self.assertTrue(self.program.action("mnuNewSelection")["enabled"])


if __name__ == "__main__":
    unittest.main()
