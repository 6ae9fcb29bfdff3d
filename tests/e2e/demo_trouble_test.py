"""The demo's installer fails after its start: the program shows the reason and continues without a sample pool."""

import shutil
import unittest

from program import Program
from target import TARGET

DEMO = "STALLYHOOP DEMOSTRATION MODE"  # sic


class AnInstallerThatFails(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())
        shutil.copy2(TARGET.built("tests/e2e/tallyhoop_e2e_failing_installer"), self.program.folder / "DEMOSET.EXE")

    def test_is_reported_at_once(self):
        self.program.start()
        self.program.answer("OK", "** DEMO MODE OPTION **")
        box = self.program.answer("OK", DEMO)
        self.assertEqual(box["text"], "Select the OK Key to Continue in Demonstration Mode")
        box = self.program.answer("OK", DEMO)
        self.assertEqual(box["text"].splitlines(), [
            "The sample pool could not be installed.", " ", self.program.path("DEMOSET.EXE"), "The dog ate it"])
        self.program.wait(lambda: not self.program.modal(), "the box being gone")
        self.program.wait(lambda: self.program.visible("lblTitle"), "the board")
        self.assertFalse(self.program.visible("lblDemoMode"))
        self.assertEqual(self.program.files(), ["PLAYERNAMES.CSV"])
        self.assertEqual(self.program.errors(), "")


if __name__ == "__main__":
    unittest.main()
