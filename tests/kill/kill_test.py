"""The kill tests of the suite: each writer killed 25 times at random moments, and once at each of its calls."""

import os
import unittest

from kill import run
from saving_program import BUILD, Broken
from writers import WRITERS

KILLS = 25
STARTS = 3  # kills of the program itself for each writer: a start takes much longer than a save


class Kills(unittest.TestCase):
    def assert_nothing_is_lost(self, act):
        self.assertTrue((BUILD / "tests/kill/libtallyhoop_killer.so").exists())
        for name in WRITERS:
            with self.subTest(writer=name):
                seed = int.from_bytes(os.urandom(4))
                try:
                    for line in run([name], seed, act):
                        print(line)
                except Broken as broken:
                    self.fail(str(broken))

    def test_at_random_moments_leave_each_file_old_or_new(self):
        self.assert_nothing_is_lost(lambda killed: killed.kill_often(KILLS))

    def test_at_every_call_leave_each_file_old_or_new(self):
        self.assert_nothing_is_lost(lambda killed: killed.kill_at_every_call())

    def test_of_the_whole_program_leave_each_file_old_or_new(self):
        self.assert_nothing_is_lost(lambda killed: killed.kill_program_often(STARTS))


if __name__ == "__main__":
    unittest.main()
