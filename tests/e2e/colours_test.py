"""The choice of colours: at once, after another start, and taken back."""

import unittest

from pool_2000 import setup_file
from program import Program
from target import TARGET

LIGHT_LETTERS = "#fcfcfc"
DARK_LETTERS = TARGET.LETTERS


class Colours(unittest.TestCase):
    def letters_are(self, program, colour):
        program.wait(lambda: program.colour("lblTitle") == colour, f"letters in {colour}")

    def test_the_choice_is_kept(self):
        with Program() as program:
            program.write("POOLSTART.THS", setup_file())
            program.start()
            self.letters_are(program, DARK_LETTERS)
            program.menu("mnuView", "mnuViewColoursDark")
            self.letters_are(program, LIGHT_LETTERS)
            files = program.files()
            program.close()
            program.start()
            self.letters_are(program, LIGHT_LETTERS)
            program.menu("mnuView", "mnuViewColoursDesktop")
            self.letters_are(program, DARK_LETTERS)
            self.assertEqual(program.files(), files)  # the pool's folder holds the pool, and not the choice
            program.close()


if __name__ == "__main__":
    unittest.main()
