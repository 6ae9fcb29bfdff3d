"""The archive on a Windows that has nothing of Tallyhoop: unpacked, it runs."""

import unittest

import packages

ABROAD = "Наш пул ☺"  # a folder with a blank, and characters outside Windows-1252


class Archive(unittest.TestCase):
    def setUp(self):
        self.wine = self.enterContext(packages.Wine())

    def test_runs_where_it_is_unpacked(self):
        folder = packages.unpack(self.wine.scratch / ABROAD)
        self.assertEqual(self.wine.run(folder / "DEMOSET.EXE")[0], 0)
        self.assertTrue((folder / "POOLSTART.THS").exists())
        status, standings = self.wine.run(folder / "tallyhoop-cli.exe", "standings")
        self.assertEqual(status, 0)
        self.assertIn(b"Prophet", standings)
        program = self.wine.start(folder / "tallyhoop.exe")
        self.wine.window_of(program, "Tallyhoop")
        program.terminate()
        program.wait(packages.PATIENCE)

    def test_offers_a_folder_in_the_documents_where_it_may_not_write(self):
        installed = packages.unpack(self.wine.scratch / "Program Files")
        self.enterContext(packages.read_only(installed))
        before = packages.files_below(installed)
        program = self.wine.start(installed / "tallyhoop.exe")
        self.wine.window_of(program, "A FOLDER FOR THE POOL")
        self.wine.press("Return", until=lambda: program.poll() is not None)
        self.assertEqual(program.returncode, 0)
        self.wine.window_of(None, "DEMO MODE OPTION")
        self.assertEqual(packages.files_below(installed), before)
        [folder] = self.wine.home.rglob("Tallyhoop")
        self.assertLessEqual(set(packages.OWN_FILES), set(packages.files_below(folder)))

    def test_without_one_of_its_libraries_it_does_not(self):
        """Or else wine would have found it elsewhere, and the test above would say nothing."""
        folder = packages.unpack(self.wine.scratch)
        for library in "Qt6Gui.dll", "libstdc++-6.dll":
            (folder / library).rename(folder / "elsewhere")
            self.assertNotEqual(self.wine.run(folder / "tallyhoop.exe")[0], 0, library)
            (folder / "elsewhere").rename(folder / library)


if __name__ == "__main__":
    unittest.main()
