"""The installer: for one person, over an older version with a pool in it, and taken away again."""

import unittest

import packages

UNINSTALL_KEY = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\Tallyhoop"
FOLDERS = ["Our pool", "Наш пул ☺"]  # two words, for which this installer knows no quotes; characters outside Windows-1252
POOL = [".THS", ".THC", ".CSV", ".INI"]


def contents_of(folder):
    return {name: (folder / name).read_bytes() for name in packages.files_below(folder)}


class Installer(unittest.TestCase):
    def setUp(self):
        self.wine = self.enterContext(packages.Wine())

    def install(self, package, folder=None):
        """Unseen; without a folder, where the installer itself proposes."""
        words = ("/D=" + self.wine.shown(folder)).split(" ") if folder else []  # wine would put quotes around blanks
        return self.wine.run(package, "/S", *words)[0]

    def uninstall(self, folder):
        self.assertEqual(self.wine.run(folder / "Uninstall.exe", "/S")[0], 0)
        self.wine.settle()  # it goes on in a copy of itself

    def make_pool(self, folder):
        """The sample pool, with a list of teams that somebody has edited; gives its contents."""
        self.assertEqual(self.wine.run(folder / "DEMOSET.EXE")[0], 0)
        with open(folder / "NCAALIST.THS", "ab") as teams:
            teams.write(b"OUR OWN TEAM\r\n")
        return {name: text for name, text in contents_of(folder).items() if name[-4:] in POOL}

    def pool_in(self, folder, names):
        return {name: text for name, text in contents_of(folder).items() if name in names}

    def registered(self):
        return self.wine.registry_of(UNINSTALL_KEY)

    def in_start_menu(self):
        return [path.name for path in self.wine.prefix.glob("drive_c/users/*/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/*.lnk")]

    def version_of(self, package):
        return package.name.split("-")[1]

    def test_keeps_the_pool_of_an_older_version_and_leaves_it_when_it_is_removed(self):
        for name in FOLDERS:
            with self.subTest(name):
                folder = self.wine.scratch / name
                self.assertEqual(self.install(packages.older_setup(), folder), 0)
                self.assertEqual(self.registered()["DisplayVersion"], self.version_of(packages.older_setup()))
                pool = self.make_pool(folder)
                self.assertEqual(len(pool), 9, "what the sample pool has, and the list of teams")
                (folder / "TALLYHOOP.HLP").write_bytes(b"an older help")

                self.assertEqual(self.install(packages.setup()), 0)  # finds the folder itself

                self.assertEqual(self.registered()["DisplayVersion"], self.version_of(packages.setup()))
                self.assertEqual(self.pool_in(folder, pool), pool)
                self.assertGreater((folder / "TALLYHOOP.HLP").stat().st_size, 50_000)
                status, standings = self.wine.run(folder / "tallyhoop-cli.exe", "standings")
                self.assertEqual(status, 0)
                self.assertIn(b"Prophet", standings)

                self.uninstall(folder)
                self.assertEqual(contents_of(folder), pool)

    def test_puts_the_program_into_the_documents_and_the_start_menu_and_nothing_anywhere_else(self):
        before = set(packages.files_below(self.wine.prefix / "drive_c"))
        self.assertEqual(self.install(packages.setup()), 0)
        self.wine.settle()
        [folder] = self.wine.home.rglob("Tallyhoop")
        self.assertEqual(packages.files_below(folder), sorted(packages.OWN_FILES + ["Uninstall.exe"]))
        self.assertEqual(packages.files_below(self.wine.home), [f"{folder.relative_to(self.wine.home)}/{name}"
                                                              for name in packages.files_below(folder)])
        new = set(packages.files_below(self.wine.prefix / "drive_c")) - before
        self.assertEqual({name.rpartition("/")[2] for name in new}, {"Tallyhoop.lnk"})
        self.assertEqual(self.in_start_menu(), ["Tallyhoop.lnk"])
        self.assertNotIn("Tallyhoop", (self.wine.prefix / "system.reg").read_text(errors="replace"), "what all persons share")
        self.assertEqual(self.registered()["InstallLocation"], packages.DOCUMENTS + "\\Tallyhoop")
        self.assertEqual(self.registered()["UninstallString"], f'"{packages.DOCUMENTS}\\Tallyhoop\\Uninstall.exe"')

        self.uninstall(folder)
        self.assertEqual(packages.files_below(folder), ["NCAALIST.THS"], "the organiser's own")
        self.assertEqual(self.in_start_menu(), [])
        self.assertEqual(self.registered(), {})
        self.assertNotIn("Tallyhoop", (self.wine.prefix / "user.reg").read_text(errors="replace").replace(
            self.wine.scratch.name, ""))

    def test_changes_nothing_while_the_program_is_running(self):
        folder = self.wine.scratch / "pool"
        self.assertEqual(self.install(packages.older_setup(), folder), 0)
        before = contents_of(folder)
        running = self.wine.start(folder / "tallyhoop.exe")
        self.wine.window_of(running, "Tallyhoop")
        self.assertEqual(self.install(packages.setup(), folder), 2)
        self.assertEqual(self.wine.run(folder / "Uninstall.exe", "/S", "_?=" + self.wine.shown(folder))[0], 2)
        running.terminate()
        running.wait(packages.PATIENCE)
        self.assertEqual({name: text for name, text in contents_of(folder).items() if name in before}, before)


if __name__ == "__main__":
    unittest.main()
