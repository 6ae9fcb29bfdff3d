"""The same folder gives the same bytes on Linux and on Windows: every verb of tallyhoop-cli on every pool, its output,
its faults, its exit status and what it writes, and DEMOSET.EXE.

TALLYHOOP_LINUX_BUILD is a build for Linux, TALLYHOOP_WINDOWS_BUILD one for Windows; without the former there is nothing
to compare with. Dates are those of today: what was run on two days is run again. Only faults, which are for people, differ:
in line ends and in the separators of paths.
"""

import datetime
import os
import shutil
import sys
import unittest

import wine_programs
from wine_programs import LINUX, NOTHING_TO_COMPARE, SAVER, TESTS, WINDOWS, contents

os.environ["TALLYHOOP_BUILD"] = str(LINUX)
sys.path.insert(0, str(TESTS / "cli"))

import pools  # noqa: E402: found there

MAILS = TESTS / "fuzz/corpus/mails"
# Linux reads mails by a library that takes these, as nobody sends them, otherwise than the program's own reader.
READ_OTHERWISE = {"bomb_same_boundary", "broken_headers"}
CLI = "cli/tallyhoop-cli"

PRINTED = [
    ["standings"], ["standings", "--json"], ["standings", "--title", "B\u00fcro \u20ac \u017d"], ["scores"], ["scores", "--json"],
    *(["report", str(number)] for number in range(1, 8)),
    *(["outlook", "--weights", weights] for weights in ("alike", "seeds", "picks")), ["outlook", "--json"],
    ["page"], ["page", "--weights", "picks"],
    *(["csv", table] for table in ("standings", "picks", "picks-by-player", "outlook")),
    ["final"], ["final", "--json"], ["form"], ["form", "--mail-to", "pool@example.org"], ["check"]]
WRITTEN = [["report", "1", "--out", "report.txt"], ["page", "--out", "page.html"], ["csv", "picks", "--out", "picks.csv"],
           ["form", "--out", "form.html"], ["outlook", "--json", "--out", "outlook.json"],
           ["report", "2", "--out", "missing/report.txt"], ["report", "2", "--out", "TALLYHOOP.THS"]]


def faults(system, stream):
    """What is for people has the system's own line ends and separators of paths."""
    return stream.replace(b"\r\n", b"\n").replace(b"\\", b"/") if system == "Windows" else stream


def on_one_day(act):
    while True:
        today = datetime.date.today()
        outcome = act()
        if datetime.date.today() == today:
            return outcome


class SameBytes(unittest.TestCase):
    maxDiff = 2000
    compared = 0

    def setUp(self):
        self.folder = pools.Folder(self)
        self.inbox = pools.Folder(self)

    @classmethod
    def tearDownClass(cls):
        print(f"{cls.compared} runs compared", file=sys.stderr)

    def outcome(self, system, calls):
        """What one system makes of the folder, which is then as it was."""
        kept = pools.Folder(self)
        shutil.copytree(self.folder.path, kept.path, dirs_exist_ok=True)
        said = []
        for program, *words in calls:
            done = wine_programs.run(system, self.folder.path, program, *words)
            said.append((words, done.returncode, done.stdout, faults(system, done.stderr)))
        left = contents(self.folder.path)
        shutil.rmtree(self.folder.path)
        shutil.copytree(kept.path, self.folder.path)
        return said, left

    def compare(self, calls):
        linux, windows = on_one_day(lambda: [self.outcome(system, calls) for system in ("Linux", "Windows")])
        for there, here in zip(linux[0], windows[0], strict=True):
            with self.subTest(there[0]):
                self.assertEqual(here, there)
        self.assertEqual(windows[1].keys(), linux[1].keys())
        for name, bytes_there in linux[1].items():
            with self.subTest(name):
                self.assertEqual(windows[1][name], bytes_there)
        type(self).compared += len(calls)
        return linux

    def compare_all(self):
        said, _ = self.compare([[CLI, "--folder", ".", *words] for words in PRINTED + WRITTEN])
        silent = [words for words, status, out, _ in said if status == 0 and not out and "--out" not in words]
        self.assertEqual(silent, [], "there is something to compare")
        return {" ".join(words[2:]): status for words, status, _, _ in said}

    def hand_in(self):
        """Selections and mails, with a date each."""
        pools.office_pool.write(self.inbox)
        for file in self.inbox.path.glob("*.THS"):
            file.unlink()
        for mail in MAILS.iterdir():
            if mail.name not in READ_OTHERWISE:
                shutil.copyfile(mail, self.inbox.path / f"{mail.name}.eml")
        for number, file in enumerate(sorted(self.inbox.path.iterdir())):
            os.utime(file, (1_000_000_000 + 60 * number,) * 2)
        shutil.copytree(self.inbox.path, self.folder.path / "inbox")

    def test_the_pool_of_the_demonstration(self):
        pools.sample_pool(self.folder)
        (self.folder.path / "DEMOSET.EXE").unlink()
        self.folder.write("PRIZES.CSV", pools.PRIZES)
        statuses = self.compare_all()
        self.assertEqual((statuses["report 1"], statuses["check"]), (0, 1), "one selection is incomplete")

    def test_the_pool_of_four_players(self):
        pools.small_pool(self.folder)
        self.folder.write("POOLSTART.THS", pools.small_field())
        self.folder.write("PRIZES.CSV", pools.PRIZES)
        statuses = self.compare_all()
        self.assertEqual((statuses["report 1"], statuses["final"]), (0, 0))

    def test_the_pool_with_awkward_names(self):
        pools.messy_pool(self.folder)
        statuses = self.compare_all()
        self.assertEqual((statuses["report 2"], statuses["report 1"]), (0, 1))

    def test_a_complete_pool_with_its_prizes(self):
        pools.complete_pool(self.folder)
        self.folder.write("PRIZES.CSV", pools.PRIZES)
        self.assertEqual(self.compare_all()["page"], 0)

    def test_a_folder_without_a_pool(self):
        self.assertEqual(self.compare_all()["check"], 1)

    def test_damaged_files(self):
        pools.complete_pool(self.folder)
        for name, bytes_there in (("Aisha Khan_AK.THC", b""), ("Joe Brandt_JB.THC", b"\x00\xff\r\n" * 50),
                                  ("PLAYERNAMES.CSV", b"no record\r\n"), ("PRIZES.CSV", b"Prize,1\r\nlots,,"),
                                  ("NCAALIST.THS", b"*START*\r\n"), ("TALLYHOOP.INI", b"[x]\r\n")):
            self.folder.write(name, bytes_there)
        (self.folder.path / "Folder_F.THC").mkdir()
        self.assertEqual(self.compare_all()["check"], 1)

    def test_what_has_been_handed_in(self):
        self.folder.write("POOLSTART.THS", pools.setup_file("Pool"))
        self.hand_in()
        calls = ["import", "inbox"], ["import", "inbox"], ["check"], ["report", "5"]
        _, left = self.compare([[CLI, "--folder", ".", *words] for words in calls])
        self.assertGreaterEqual(sum(name.endswith(".THC") and "/" not in name for name in left), 12)

    def test_the_pool_that_the_installer_writes(self):
        def installed(system, build):
            shutil.copy2(build / "DEMOSET.EXE", self.folder.path)
            status = wine_programs.run(system, self.folder.path, "./DEMOSET.EXE").returncode
            left = contents(self.folder.path)
            del left["DEMOSET.EXE"]
            shutil.rmtree(self.folder.path)
            self.folder.path.mkdir()
            return status, left

        linux, windows = (installed(*system) for system in (("Linux", LINUX), ("Windows", WINDOWS)))
        self.assertEqual(windows, linux)
        self.assertEqual((linux[0], len(linux[1])), (0, 8), linux[1].keys())

    def test_what_every_writer_saves(self):
        """The commands that write a file, as the windows carry them out."""
        pool = wine_programs.Pool(self)
        for name in wine_programs.writers(self):
            with self.subTest(name):
                left = []
                for system in ("Linux", "Windows"):
                    pool.reset()
                    done = wine_programs.run(system, pool.path, SAVER, ".", "save", name)
                    self.assertEqual(done.returncode, 0, done.stderr)
                    left.append(pool.contents())
                self.assertEqual(left[1], left[0])
                self.assertNotEqual(left[0], pool.old)
                type(self).compared += 1


if __name__ == "__main__":
    if not (LINUX / CLI).is_file() or not (LINUX / SAVER).is_file():
        print("TALLYHOOP_LINUX_BUILD names no build to compare with")
        sys.exit(NOTHING_TO_COMPARE)
    wine_programs.keep_serving()
    unittest.main()
