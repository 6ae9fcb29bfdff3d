"""The program as the package installs it: a launcher that finds the organiser's own pool."""

import os
import shutil
import subprocess
import unittest

from pools import BUILD, PATIENCE, TESTS, Folder, faults, small_pool

DONE, USED_WRONGLY = 0, 2


class Launcher(unittest.TestCase):
    def setUp(self):
        installed = Folder(self).path
        (installed / "bin").mkdir()
        (installed / "lib/tallyhoop").mkdir(parents=True)
        self.launcher = installed / "bin/tallyhoop-cli"
        shutil.copyfile(TESTS.parent / "packaging/cli-launcher.sh", self.launcher)
        self.launcher.chmod(0o755)
        shutil.copy2(BUILD / "cli/tallyhoop-cli", installed / "lib/tallyhoop/tallyhoop-cli")
        self.home = Folder(self)
        self.pool = Folder(self)
        small_pool(self.pool)

    def run_at_home(self, *words, **settings):
        environment = {"PATH": os.environ["PATH"], "HOME": self.home.path, **settings}
        return subprocess.run([self.launcher, *words], env=environment, capture_output=True, timeout=PATIENCE)

    def test_it_works_on_the_pool_at_home(self):
        self.pool.path.rename(self.home.path / "Tallyhoop")
        self.addCleanup((self.home.path / "Tallyhoop").rename, self.pool.path)
        done = self.run_at_home("standings")
        self.assertEqual((done.returncode, done.stderr), (DONE, b""))
        self.assertIn(b"AB, Adams", done.stdout)

    def test_without_a_pool_it_says_so(self):
        done = self.run_at_home("standings")
        self.assertEqual((done.returncode, done.stdout), (USED_WRONGLY, b""))
        self.assertEqual(faults(done), [f"There is no pool: the folder {self.home.path}/Tallyhoop is not there, and none "
                                        "is named with --folder."])
        done = self.run_at_home("standings", HOME="")
        self.assertEqual(done.returncode, USED_WRONGLY)
        self.assertEqual(faults(done), ["There is no pool: none is named with --folder."])

    def test_another_folder_needs_no_pool_at_home(self):
        for words in (["--folder", self.pool.path, "standings"], ["standings", f"--folder={self.pool.path}"]):
            with self.subTest(words):
                done = self.run_at_home(*words)
                self.assertEqual((done.returncode, done.stderr), (DONE, b""))
                self.assertIn(b"AB, Adams", done.stdout)

    def test_help_needs_no_pool(self):
        for words in (["--help"], ["-h"], ["--version"], ["csv", "--help"]):
            with self.subTest(words):
                self.assertEqual(self.run_at_home(*words).returncode, DONE)


if __name__ == "__main__":
    unittest.main()
