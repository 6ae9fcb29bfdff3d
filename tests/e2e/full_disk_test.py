"""The disk is full when a selection is saved, in the real program: nothing is lost, and later it works."""

import pathlib
import tempfile
import unittest

import small_disk
from pool_2000 import selection, setup_file
from program import Program

FILE = "Smith_JS.THC"
OLD = selection({16: "Arizona"}, "JS", "Smith", "150")
NEW = selection({16: "Arizona"}, "JS", "Smith", "177")
ROOM = 96  # megabytes: the program itself has to fit


class ASaveOnAFullDisk(unittest.TestCase):
    def setUp(self):
        scratch = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="tallyhoop-e2e-disk-")))
        folder = scratch / "pool"
        folder.mkdir()
        try:
            small_disk.mount(folder, ROOM)
        except small_disk.NotHere as reason:
            self.skipTest(f"no disk can be mounted here: {reason}")
        self.addCleanup(small_disk.unmount, folder)
        self.program = self.enterContext(Program(folder=folder))
        self.program.write("POOLSTART.THS", setup_file())
        self.program.write(FILE, OLD)

    def test_keeps_the_old_file_and_the_screen_and_works_once_there_is_room(self):
        self.a_selection_is_changed()
        old = self.program.read(FILE)
        small_disk.fill(self.program.folder)
        files = self.program.files()
        self.save()
        box = self.program.answer("OK", "** ERROR IN WRITING FILE **")
        self.assertEqual(box["text"].splitlines(), [
            f"There is a problem writing file: {self.program.folder / FILE}", " Check your selection and retry."])
        self.assertEqual(self.program.read(FILE), old)
        self.assertEqual(self.program.files(), files)
        self.assertEqual(self.program.text("txtFinalPoints"), "177")

        small_disk.empty(self.program.folder)
        self.save()
        whole = "".join(line + "\r\n" for line in NEW).encode("cp1252")
        self.program.wait(lambda: self.program.read(FILE) == whole, "the new file")
        self.assertEqual(self.program.files(), [name for name in files if name != small_disk.FILLER])
        self.assertEqual(self.program.errors(), "")

    def a_selection_is_changed(self):
        self.program.start()
        self.program.menu("mnuFile", "mnuOpenSelection")
        self.program.file_dialog(FILE)
        self.program.wait(lambda: self.program.text("txtPlayerName") == "Smith", "the selection being open")
        self.program.wait(lambda: not self.program.modal(), "the dialog being gone")
        self.program.type("txtFinalPoints", "177")

    def save(self):
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.program.file_dialog(FILE)


if __name__ == "__main__":
    unittest.main()
