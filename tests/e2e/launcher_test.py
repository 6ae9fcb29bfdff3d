"""What the package's menu entry does: an organiser's own program folder, made on the first start and renewed later."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest

LAUNCHER = pathlib.Path(__file__).parents[2] / "packaging/launcher.sh"


class Launcher(unittest.TestCase):
    def setUp(self):
        scratch = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.home = scratch / "my home"
        self.home.mkdir()
        self.folder = self.home / "Tallyhoop"
        self.installed = scratch / "usr/lib/tallyhoop"
        self.installed.mkdir(parents=True)
        self.command = scratch / "usr/bin/tallyhoop"
        self.command.parent.mkdir()
        shutil.copy2(LAUNCHER, self.command)
        self.install("tallyhoop", '#!/bin/sh\necho "first: $0 in $PWD"\n')
        for name in ("DEMOSET.EXE", "TALLYHOOP.HLP", "NCAALIST.THS"):
            self.install(name, "first")

    def install(self, name, content):
        (self.installed / name).write_text(content)
        (self.installed / name).chmod(0o755)

    def start(self):
        return subprocess.run([self.command], env={"HOME": str(self.home), "PATH": "/usr/bin:/bin"}, text=True,
                              capture_output=True)

    def names(self):
        return sorted(file.name for file in self.folder.iterdir())

    def test_the_first_start_makes_the_folder_and_starts_the_copy_there(self):
        self.assertEqual(self.start().stdout, f"first: ./tallyhoop in {self.folder}\n")
        self.assertEqual(self.names(), ["DEMOSET.EXE", "NCAALIST.THS", "TALLYHOOP.HLP", "tallyhoop"])

    def test_an_upgrade_renews_the_program_and_leaves_the_pool(self):
        self.start()
        (self.folder / "POOLSTART.THS").write_text("mine")
        (self.folder / "NCAALIST.THS").write_text("mine")
        self.install("tallyhoop", "#!/bin/sh\necho second\n")
        for name in ("DEMOSET.EXE", "TALLYHOOP.HLP", "NCAALIST.THS"):
            self.install(name, "second")
        self.assertEqual(self.start().stdout, "second\n")
        self.assertEqual((self.folder / "TALLYHOOP.HLP").read_text(), "second")
        self.assertEqual((self.folder / "DEMOSET.EXE").read_text(), "second")
        self.assertEqual((self.folder / "NCAALIST.THS").read_text(), "mine")
        self.assertEqual((self.folder / "POOLSTART.THS").read_text(), "mine")
        self.assertEqual(self.names(), ["DEMOSET.EXE", "NCAALIST.THS", "POOLSTART.THS", "TALLYHOOP.HLP", "tallyhoop"])

    def test_a_team_list_in_another_case_is_the_organisers_own(self):
        self.folder.mkdir()
        (self.folder / "ncaalist.ths").write_text("mine")
        self.start()
        self.assertNotIn("NCAALIST.THS", self.names())

    def test_a_folder_that_cannot_be_made_is_reported(self):
        self.folder.write_text("a file in its place")
        outcome = self.start()
        self.assertEqual(outcome.returncode, 1)
        self.assertIn(f"The folder {self.folder} could not be made.", outcome.stderr)


if __name__ == "__main__":
    unittest.main()
