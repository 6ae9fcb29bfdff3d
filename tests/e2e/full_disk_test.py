"""The disk is full, or files may not grow, when a selection is saved in the real program: nothing is lost, and later it
works."""

import pathlib
import resource
import tempfile
import unittest

import small_disk
from pool_2000 import selection, setup_file
from program import Program

FILE = "Smith_JS.THC"
OLD = selection({16: "Arizona"}, "JS", "Smith", "150")
NEW = selection({16: "Arizona"}, "JS", "Smith", "177")
ROOM = 192  # megabytes: the program itself has to fit, also with sanitizers


class SaveInVain(unittest.TestCase):
    """A selection is changed, and cannot be saved until the trouble is over."""

    def a_selection_is_changed(self):
        self.program.write("POOLSTART.THS", setup_file())
        self.program.write(FILE, OLD)
        self.program.start()
        self.program.menu("mnuFile", "mnuOpenSelection")
        self.program.file_dialog(FILE)
        self.program.wait(lambda: self.program.text("txtPlayerName") == "Smith", "the selection being open")
        self.program.wait(lambda: not self.program.modal(), "the dialog being gone")
        self.program.type("txtFinalPoints", "177")

    def save(self):
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.program.file_dialog(FILE)

    def a_save_keeps_everything(self):
        old = self.program.read(FILE)
        files = self.program.files()
        self.save()
        box = self.program.answer("OK", "** ERROR IN WRITING FILE **")
        self.assertEqual(box["text"].splitlines(), [
            f"There is a problem writing file: {self.program.path(FILE)}", " Check your selection and retry."])
        self.assertEqual(self.program.read(FILE), old)
        self.assertEqual(self.program.files(), files)
        self.assertEqual(self.program.text("txtFinalPoints"), "177")

    def a_save_works_now(self):
        files = self.program.files()
        self.save()
        whole = "".join(line + "\r\n" for line in NEW).encode("cp1252")
        self.program.wait(lambda: self.program.read(FILE) == whole, "the new file")
        self.assertEqual(self.program.files(), files)
        self.assertEqual(self.program.errors(), "")


class ASaveOnAFullDisk(SaveInVain):
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

    def test_keeps_the_old_file_and_the_screen_and_works_once_there_is_room(self):
        self.a_selection_is_changed()
        small_disk.fill(self.program.folder)
        self.a_save_keeps_everything()
        small_disk.empty(self.program.folder)
        self.a_save_works_now()


class ASaveUnderALimitOnTheSizeOfFiles(SaveInVain):
    def setUp(self):
        self.program = self.enterContext(Program())

    def limit(self, size):
        """A limit as the system sets it for a user: it ends a program that does not handle it."""
        resource.prlimit(self.program.process_id(), resource.RLIMIT_FSIZE, (size, resource.RLIM_INFINITY))

    def test_keeps_the_old_file_and_the_screen_and_works_once_the_limit_is_gone(self):
        self.a_selection_is_changed()
        self.limit(100)
        self.a_save_keeps_everything()
        self.limit(resource.RLIM_INFINITY)
        self.a_save_works_now()


if __name__ == "__main__":
    unittest.main()
