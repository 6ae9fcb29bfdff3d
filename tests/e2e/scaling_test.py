"""The program enlarged as on displays with small pixels: everything is where it is shown, and takes presses and keys there."""

import pathlib
import subprocess
import tempfile
import unittest

from pool_2000 import setup_file
from program import Program


class Scaling(unittest.TestCase):
    WIDTH, HEIGHT = 1366, 768  # of the display, in the program's units

    def at(self, scale):
        program = self.enterContext(Program(size=(round(self.WIDTH * scale), round(self.HEIGHT * scale)), scale=scale))
        program.write("POOLSTART.THS", setup_file())
        program.start()
        self.everything_is_on_the_display(program)
        self.every_pixel_is_used(program, scale)
        program.click("lblRegion_2")
        program.wait(lambda: program.text("lblRegion_17") == "Wisconsin", "the pick")
        program.drag("lblRegion_31", "lblRegion_126")
        program.wait(lambda: program.text("lblRegion_126") == "Michigan St.", "the champion")
        program.type("txtPlayerInitials", "JS")
        program.type("txtPlayerName", "Smith")
        program.type("txtFinalPoints", "150")
        program.menu("mnuFile", "mnuSaveSelection")
        program.file_dialog("Smith_JS.THC")
        program.wait(lambda: "Smith_JS.THC" in program.files(), "the new file")
        self.assertEqual(program.read("Smith_JS.THC").split(b"\r\n")[17], b"Wisconsin")

    def everything_is_on_the_display(self, program):
        for name in ("frmPoolMIDI", "lblTitle", "txtPlayerName", *(f"lblRegion_{place}" for place in range(127))):
            x, y, width, height = program.widget(name)["rect"]
            rounded = 1  # both an edge and a size may be rounded up
            self.assertTrue(0 <= x and x + width <= self.WIDTH + rounded and 0 <= y and y + height <= self.HEIGHT + rounded,
                            f"{name}: {x, y, width, height}")

    def every_pixel_is_used(self, program, scale):
        """A widget is drawn in the pixels of the display, and not enlarged afterwards."""
        _, _, width, height = program.widget("frmPoolMIDI")["rect"]
        with tempfile.TemporaryDirectory() as folder:
            picture = pathlib.Path(folder) / "frame.png"
            program.grab("frmPoolMIDI", picture)
            size = subprocess.run(["identify", "-format", "%w %h", picture], check=True, capture_output=True).stdout
        for pixels, units in zip(map(int, size.split()), (width, height)):
            self.assertAlmostEqual(pixels, units * scale, delta=1)

    def test_not_at_all(self):
        self.at(1)

    def test_by_a_half(self):
        self.at(1.5)

    def test_to_twice_the_size(self):
        self.at(2)


if __name__ == "__main__":
    unittest.main()
