"""The demo's installer fails after its start: the program shows the reason and continues without a sample pool."""

import unittest

from program import Program

DEMO = "STALLYHOOP DEMOSTRATION MODE"  # sic


class AnInstallerThatFails(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())
        self.installer = self.program.folder / "DEMOSET.EXE"
        self.installer.write_text("#!/bin/sh\necho 'The dog ate it' >&2\nexit 1\n")
        self.installer.chmod(0o755)

    def test_is_reported_at_once(self):
        self.program.start()
        self.program.answer("OK", "** DEMO MODE OPTION **")
        box = self.program.answer("OK", DEMO)
        self.assertEqual(box["text"], "Select the OK Key to Continue in Demonstration Mode")
        box = self.program.answer("OK", DEMO)
        self.assertEqual(box["text"].splitlines(), [
            "The sample pool could not be installed.", " ", str(self.installer), "The dog ate it"])
        self.program.wait(lambda: not self.program.modal(), "the box being gone")
        self.program.wait(lambda: self.program.visible("lblTitle"), "the board")
        self.assertFalse(self.program.visible("lblDemoMode"))
        self.assertEqual(self.program.files(), ["PLAYERNAMES.CSV"])
        self.assertEqual(self.program.errors(), "")


if __name__ == "__main__":
    unittest.main()
