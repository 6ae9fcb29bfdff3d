#!/usr/bin/env python3
"""Programs for Windows on a full disk: the old file stays, and the person is told.

A small disk is mounted that nobody else sees, as drive T: of a wine of its own: whoever opens files for its programs has
to see the disk, too. The unit tests fill it themselves.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import wine_programs
from wine_programs import NOTHING_TO_COMPARE, PATIENCE, RUN, SAVER, TESTS, WINDOWS, contents, put_contents

sys.path.insert(0, str(TESTS / "e2e"))

import small_disk  # noqa: E402: found there

PAGE = 4096  # bytes: what a file takes at least
SCREENS = WINDOWS / "tests/tallyhoop_screens_tests.exe"
FULL_DISK_TESTS = "*FullDisk*"
# What the saver itself puts there before the command, as far as there is room.
PREPARED = {"AnnotatedCopy": {"PLAYERNAMES.CSV"}, "ImportedPlayer": {"Evans_GH.THC"}}


def own_wine(scratch, disk):
    """A wine with the drives of the present one, and the disk as another."""
    present = pathlib.Path(os.environ.get("WINEPREFIX", pathlib.Path.home() / ".wine"))
    own = scratch / "wine"
    (own / "dosdevices").mkdir(parents=True)
    for file in [*present.glob("*.reg"), present / ".update-timestamp"]:
        shutil.copy2(file, own)
    (own / "drive_c").symlink_to(present / "drive_c")
    for drive, folder in ("c:", "../drive_c"), ("z:", "/"), ("t:", disk):
        (own / "dosdevices" / drive).symlink_to(folder)
    os.environ["WINEPREFIX"] = str(own)


class FullDisk(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory(prefix="tallyhoop-windows-disk-")))
        cls.disk = scratch / "disk"
        cls.disk.mkdir()
        small_disk.mount(cls.disk, 1)
        cls.addClassCleanup(small_disk.unmount, cls.disk)
        own_wine(scratch, cls.disk)
        wine_programs.keep_serving()
        cls.addClassCleanup(subprocess.run, ["wineserver", "-k"])

    def setUp(self):
        put_contents(self.disk, {})
        self.pool = wine_programs.Pool(self)

    def fill(self, pages_free):
        small_disk.fill(self.disk)
        film = self.disk / small_disk.FILLER
        os.truncate(film, film.stat().st_size - pages_free * PAGE)

    def left(self):
        return {name: content for name, content in contents(self.disk).items() if name != small_disk.FILLER}

    def with_room_for(self, pages, program, *words):
        put_contents(self.disk, self.pool.old)
        self.fill(pages)
        done = wine_programs.run("Windows", self.disk, program, *words)
        return done, self.left()

    def test_every_writer_at_every_level(self):
        """From no room at all, page by page, to what the save needs."""
        for name in wine_programs.writers(self):
            with self.subTest(name):
                self.pool.reset()
                wine_programs.run("Windows", self.pool.path, SAVER, ".", "save", name)
                new = self.pool.contents()
                own = {file for file in new if new[file] != self.pool.old.get(file)}
                own -= PREPARED.get(name, set())
                for pages in range(100):
                    _, left = self.with_room_for(pages, SAVER, ".", "save", name)
                    if all(left.get(file) == new[file] for file in own):
                        break
                    self.look(name, own, new, left, pages)
                self.assertTrue(1 <= pages < 99, "it fits at last, and does not fit at first")
                self.assertEqual(left.keys(), new.keys())
                print(f"  {name:22} saved with {pages} free pages of {PAGE} bytes, and not with fewer", flush=True)

    def look(self, name, own, new, left, pages):
        self.assertEqual(left.keys() - new.keys(), set(), f"nothing but files with {pages} free pages")
        if name == "Copy":
            self.assertEqual(left, self.pool.old, "a copy is whole")
        for file in own & left.keys():
            self.assertIn(left[file], [self.pool.old.get(file), new[file]], f"{file} with {pages} free pages")
        self.assertEqual({file for file in self.pool.old if file not in left}, set())

    def test_the_command_line_says_why(self):
        done, left = self.with_room_for(0, "cli/tallyhoop-cli", "--folder", ".", "report", "1", "--out", "RPTOPT1.TXT")
        self.assertEqual((done.returncode, left), (1, self.pool.old))
        self.assertIn(b"No space left on device", done.stderr)

    def test_the_demonstration_is_installed_whole_or_not_at_all(self):
        self.pool.old = {"DEMOSET.EXE": (WINDOWS / "DEMOSET.EXE").read_bytes()}
        for pages in range(100):
            done, left = self.with_room_for(pages, "./DEMOSET.EXE")
            if done.returncode == 0:
                break
            self.assertEqual(left.keys(), self.pool.old.keys())
            self.assertIn(b"No space left on device", done.stderr)
        self.assertEqual((len(left), 8 <= pages < 99), (9, True))

    def test_the_messages_of_the_screens(self):
        """The unit tests that want a small disk find it at their temporary folder."""
        done = subprocess.run([RUN, "cmd", "/c", f"set TMP=T:\\&& Z:{str(SCREENS).replace('/', chr(92))} "
                               f"--gtest_filter={FULL_DISK_TESTS}"], capture_output=True, timeout=3 * PATIENCE)
        said = done.stdout.decode(errors="replace")
        passed = re.search(r"\[  PASSED  \] (\d+) tests", said)
        self.assertTrue(done.returncode == 0 and passed, said[-4000:])
        self.assertNotIn("SKIPPED", said)
        self.assertGreater(int(passed[1]), 25)
        print(f"  {passed[1]} unit tests", flush=True)


if __name__ == "__main__":
    try:
        unittest.main(verbosity=2)
    except small_disk.NotHere as reason:
        print(f"no small disk can be mounted here: {reason}")
        sys.exit(NOTHING_TO_COMPARE)
