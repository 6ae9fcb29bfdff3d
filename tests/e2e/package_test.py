"""The Debian package: made, validated, installed into an empty root, used by an ordinary user, renewed and taken away.

With TALLYHOOP_CLEAN_ROOT naming the root of a whole system everything happens inside of it: see scripts/try_package.sh.
"""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

from program import NOBODY, Program
from program_folder import BUILD, CMAKE, OWN_FILES
from sample_pool import install

CLEAN_ROOT = os.environ.get("TALLYHOOP_CLEAN_ROOT", "")


def run(*words):
    done = subprocess.run([str(word) for word in words], text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode != 0:
        raise AssertionError(f"{words} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout


def make_package(folder):
    """Packs what is built; gives the package's file."""
    cpack = pathlib.Path(shutil.which(CMAKE)).with_name("cpack")
    run(cpack, "-G", "DEB", "--config", BUILD / "CPackConfig.cmake", "-B", folder,
        "-D", f"CPACK_OUTPUT_FILE_PREFIX={folder}")
    [package] = folder.glob("*.deb")
    return package


def make_newer(package, folder):
    """The package of a later version: another help, another list of team names."""
    tree = folder / "newer"
    run("dpkg-deb", "--raw-extract", package, tree)
    control = tree / "DEBIAN/control"
    control.write_text(control.read_text().replace("Version: 1.0.0", "Version: 1.0.1"))
    for name in ("TALLYHOOP.HLP", "NCAALIST.THS"):
        with open(tree / "usr/lib/tallyhoop" / name, "ab") as file:
            file.write(b"newer\r\n")
    newer = folder / "newer.deb"
    run("dpkg-deb", "--root-owner-group", "--build", tree, newer)
    return newer


class Root:
    """Where the package is installed: an empty folder, or a whole system to step into."""

    def __init__(self, folder):
        self.path = pathlib.Path(CLEAN_ROOT or folder / "root")
        if CLEAN_ROOT:
            self._dpkg = ["chroot", CLEAN_ROOT, "dpkg"]
            self.launcher = "/usr/bin/tallyhoop"
            self.as_user = ["chroot", f"--userspec={NOBODY}:{NOBODY}", "--groups=", CLEAN_ROOT]
            return
        (self.path / "var/lib/dpkg/info").mkdir(parents=True)
        (self.path / "var/lib/dpkg/updates").mkdir()
        (self.path / "var/lib/dpkg/status").touch()
        # The packages that it depends on are outside of this root.
        self._dpkg = ["dpkg", f"--root={self.path}", "--force-depends", "--force-bad-path",
                      f"--log={self.path}/dpkg.log"]
        self.launcher = self.path / "usr/bin/tallyhoop"
        self.as_user = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]

    def dpkg(self, *words):
        return run(*self._dpkg, *words)

    def files(self):
        """All files of ours in the root."""
        return sorted(str(file.relative_to(self.path)) for file in (self.path / "usr").rglob("*allyhoop*"))


def contents(folder):
    return {file.name: file.read_bytes() for file in folder.iterdir()}


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="tallyhoop-package-")))
        cls.scratch.chmod(0o755)
        cls.package = make_package(cls.scratch)

    def test_its_parts_pass_their_validators(self):
        tree = self.scratch / "parts"
        run("dpkg-deb", "--extract", self.package, tree)
        run("desktop-file-validate", tree / "usr/share/applications/tallyhoop.desktop")
        run("appstreamcli", "validate", "--no-net", tree / "usr/share/metainfo/org.tallyhoop.Tallyhoop.metainfo.xml")
        run("sh", "-n", tree / "usr/bin/tallyhoop")
        run("sh", "-n", tree / "usr/bin/tallyhoop-cli")
        run("bash", "-n", tree / "usr/share/bash-completion/completions/tallyhoop-cli")
        if shutil.which("lintian"):
            run("lintian", "--allow-root", "--fail-on", "error", self.package)

    def test_it_holds_the_program_and_nothing_of_a_pool(self):
        held = run("dpkg-deb", "--contents", self.package)
        self.assertEqual(sorted(line.split("/")[-1] for line in held.splitlines()
                                if "./usr/lib/tallyhoop/" in line and not line.endswith("/")), OWN_FILES)
        for line in held.splitlines():
            self.assertEqual(line.split()[1], "root/root", line)

    def test_it_depends_on_the_libraries_that_are_linked_and_on_the_one_that_is_not(self):
        depends = run("dpkg-deb", "--field", self.package, "Depends")
        for library in ("libqt6widgets6", "libgmime-3.0-0"):
            self.assertIn(library, depends)

    @unittest.skipUnless(os.geteuid() == 0, "only root installs packages")
    def test_a_pool_outlives_the_upgrade_and_the_removal_of_the_program(self):
        self.root = Root(self.scratch)
        self.home = self.scratch / "home"
        self.folder = self.home / "Tallyhoop"
        self.assertEqual(self.root.files(), [])
        self.root.dpkg("--install", self.package)
        self.assertIn("usr/bin/tallyhoop", self.root.files())
        self.an_ordinary_user_plays_the_demo()
        pool = contents(self.folder)
        self.an_upgrade_renews_the_program_only(pool)
        pool = contents(self.folder)
        self.root.dpkg("--remove", "tallyhoop")
        self.root.dpkg("--purge", "tallyhoop")
        self.assertEqual(self.root.files(), [])
        self.assertEqual(contents(self.folder), pool)

    def started(self):
        return Program(executable=self.root.launcher, home=self.home, as_user=self.root.as_user)

    def an_ordinary_user_plays_the_demo(self):
        with self.started() as program:
            install(program)
            for file in self.folder.iterdir():
                self.assertEqual(file.stat().st_uid, NOBODY, file)
            self.assertFalse((self.folder / "TALLYHOOP.HLP").is_symlink())
            self.score_the_prophet(program)
            program.click("cmdDefaultColors")
            program.close()
            self.assertEqual(program.errors(), "")

    def score_the_prophet(self, program):
        program.menu("mnuFile", "mnuOpenSelection")
        program.file_dialog("Demo Prophet_DP.THC")
        program.wait(lambda: program.text("txtPlayerName") == "Demo Prophet", "the selection")
        program.menu("mnuOptions", "mnuScoreSelections")
        program.wait(lambda: program.text("txtPointScore") == "Points: 80 / 120", "the score")

    def an_upgrade_renews_the_program_only(self, before):
        self.root.dpkg("--install", make_newer(self.package, self.scratch))
        self.assertEqual(contents(self.folder), before, "dpkg keeps away from people's folders")
        with self.started() as program:
            program.start()
            program.wait(lambda: program.text("lblTitle") == "2000 NCAA Tournament", "the pool as it was")
            self.score_the_prophet(program)
        after = contents(self.folder)
        self.assertEqual(after.pop("TALLYHOOP.HLP"), before.pop("TALLYHOOP.HLP") + b"newer\r\n")
        self.assertEqual(after, before, "the list of team names and the pool are the organiser's own")


if __name__ == "__main__":
    unittest.main()
