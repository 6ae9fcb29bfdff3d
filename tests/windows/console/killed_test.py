#!/usr/bin/env python3
"""Programs for Windows are killed while they save: each file is the old or the new one, and the next save works.

    killed_test.py                                    25 kills of each writer at random moments, one at each call about a
                                                      file, and of DEMOSET.EXE
    killed_test.py --kills 300 [WRITER ...]           so many at random moments
    killed_test.py --kills 0 [WRITER ...]             only at each call

At random moments the program's process is killed from outside, while it saves over and over. At each call the program
ends itself as the task manager ends it, in the middle of a call that writes. A killed process is no power cut: what has
been handed to the system is not lost.
"""

import argparse
import random
import shutil
import subprocess
import sys
import time
import unittest

import wine_programs
from wine_programs import PATIENCE, SAVER, WINDOWS

KILLS = 25
ENDED_AT_CALL = 99
ASKS_THE_SECOND_TIME = {"NewSelection"}  # and nobody answers: what a kill has left stays until somebody does


def is_temporary(name):
    """What the next save overwrites, or nobody looks at: hidden by its name, and not like one of the pool's."""
    first = name.split("/")[0]
    return first.startswith(".") and (first.endswith(".tmp~") or first.startswith(".Backup."))


def once(files):
    """The player list and its annotated copy, to which each save adds the same lines once more, with those once."""
    return {name: b"".join(dict.fromkeys(content.splitlines(keepends=True))) if name.startswith("PLAYERNAMES.") else content
            for name, content in files.items()}


class Killed(unittest.TestCase):
    kills = KILLS
    names = []
    seed = random.randrange(1 << 32)

    def setUp(self):
        self.chance = random.Random(self.seed)

    def look(self, old, new, left):
        """@returns whether a save was met before its end, and whether something is new"""
        allowed = {*old, *new}
        for name, content in left.items():
            if not is_temporary(name):
                self.assertIn(name, allowed)
                self.assertIn(content, [all_files[name] for all_files in (old, new) if name in all_files],
                              f"{name} is neither old nor new")
        self.assertEqual(old.keys() - left.keys(), set(), "nothing is gone")
        copies = {name for name in left if name.startswith("Backup ")}
        self.assertIn(copies, [set(), {name for name in new if name.startswith("Backup ")}], "a copy is whole")
        return any(map(is_temporary, left)), any(left.get(name) != content for name, content in old.items())

    def look_and_save_again(self, name, rest, kills):
        """Each state that a kill can leave is one to go on from."""
        left = once(self.pool.contents())
        met, replaced = self.look(self.pool.old, self.new, left)
        state = frozenset((file, len(content or b"") if is_temporary(file) else content) for file, content in left.items())
        if state not in rest and (len(rest) < 40 or kills % 25 == 0):
            rest.add(state)
            self.save(name)
            saved = {file: content for file, content in once(self.pool.contents()).items()
                     if not is_temporary(file) or (name not in ASKS_THE_SECOND_TIME and not file.startswith(".Backup."))}
            self.assertEqual(saved, self.new, "the next save is as if nothing had been")
        self.pool.reset()
        return met, replaced or left.keys() - self.pool.old.keys() - {file for file in left if is_temporary(file)} != set()

    def save(self, name):
        done = wine_programs.run("Windows", self.pool.path, SAVER, ".", "save", name)
        self.assertEqual(done.returncode, 0, done.stderr)

    def kill_at_a_moment(self, name, duration):
        program = subprocess.Popen(wine_programs.command("Windows", SAVER, ".", "loop", name), cwd=self.pool.path,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        with program:
            try:
                self.assertEqual(program.stdout.readline().strip(), b"ready")
                time.sleep(self.chance.uniform(0, duration))
                self.assertIsNone(program.poll(), "it is still saving")
            finally:
                program.kill()
        self.assertEqual(program.returncode, -9)

    def kill_at_call(self, name, call):
        done = wine_programs.run("Windows", self.pool.path, SAVER, ".", "end", name, str(call))
        self.assertIn(done.returncode, (0, ENDED_AT_CALL), done.stderr)
        return done.returncode == ENDED_AT_CALL

    def kill_writer(self, name):
        self.pool.reset()
        self.save(name)
        self.new = once(self.pool.contents())
        self.assertNotEqual(self.new, self.pool.old)
        self.pool.reset()
        rest, met, replaced, kills = set(), 0, 0, 0
        for kills in range(1, self.kills + 1):
            self.kill_at_a_moment(name, 0.03)
            one_met, one_replaced = self.look_and_save_again(name, rest, kills)
            met, replaced = met + one_met, replaced + one_replaced
        calls = 0
        while self.kill_at_call(name, calls + 1):
            calls += 1
            one_met, one_replaced = self.look_and_save_again(name, rest, kills + calls)
            met, replaced = met + one_met, replaced + one_replaced
        self.pool.reset()
        self.assertGreater(calls, 5, "a save has more calls")
        self.assertTrue(met and replaced, "kills before and after the file was replaced")
        print(f"  {name:22} {kills:4} kills at random moments  {calls:3} at each call  {met:4} before the file was in place  "
              f"{replaced:4} after it  {len(rest):3} different states saved on", flush=True)

    def test_every_writer(self):
        self.pool = wine_programs.Pool(self)
        for name in self.names or wine_programs.writers(self):
            with self.subTest(name, seed=self.seed):
                self.kill_writer(name)

    def test_the_demonstrations_installer(self):
        if self.names:
            self.skipTest("not among those asked for")
        self.pool = wine_programs.Pool(self)
        shutil.copy2(WINDOWS / "DEMOSET.EXE", self.pool.path)
        self.pool.old = {"DEMOSET.EXE": self.pool.contents()["DEMOSET.EXE"]}
        self.pool.reset()

        def install(seconds):
            with subprocess.Popen(wine_programs.command("Windows", "./DEMOSET.EXE"), cwd=self.pool.path) as program:
                try:
                    return program.wait(seconds)
                except subprocess.TimeoutExpired:
                    program.kill()
            return program.returncode

        begin = time.monotonic()
        self.assertEqual(install(PATIENCE), 0)
        duration = time.monotonic() - begin
        self.new = self.pool.contents()
        met = 0
        for _ in range(self.kills):
            self.pool.reset()
            self.assertIn(install(self.chance.uniform(0.3, 1.1) * duration), (0, -9))
            left = self.pool.contents()
            self.look(self.pool.old, self.new, left)
            met += bool(left.keys() - self.pool.old.keys()) and "TALLYHOOP.INI" not in left
            if "TALLYHOOP.INI" in left:
                self.assertEqual(self.new.keys() - left.keys(), set(), "the demonstration is whole")
            self.assertEqual(install(PATIENCE), 0)
            self.assertEqual(self.pool.contents(), self.new)
        print(f"  DEMOSET.EXE {self.kills} kills, {met} between its first and its last file", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--kills", type=int, default=KILLS)
    parser.add_argument("--seed", type=int, default=Killed.seed)
    parser.add_argument("-v", action="store_true")
    parser.add_argument("writers", nargs="*", metavar="WRITER")
    options = parser.parse_args()
    Killed.kills, Killed.seed, Killed.names = options.kills, options.seed, options.writers
    wine_programs.keep_serving()
    unittest.main(argv=["killed_test"], verbosity=2)


if __name__ == "__main__":
    sys.exit(main())
