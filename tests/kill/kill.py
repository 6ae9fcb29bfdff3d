#!/usr/bin/env python3
"""Kills the real program while it saves, and checks what is left.

    scripts/kill.sh [WRITER ...]                               25 kills at random moments, one at each call about a
                                                               file, and 3 of the whole program
    scripts/kill.sh --kills 1000 [WRITER ...]                  so many at random moments
    scripts/kill.sh --kills 25 --start-each-time [WRITER ...]  so many of the whole program
    scripts/kill.sh --every-call [WRITER ...]                  one at each call about a file

scripts/kill.sh builds what is needed first; this file uses the build in TALLYHOOP_BUILD.

At random moments: the program is started, forks a child of itself for each kill, and the child saves over and over until
it is killed. With --start-each-time the program itself is started for each kill and dies. At each call: the child saves
once and dies at its first, second, ... call about a file (in the middle of one that writes), until it survives.
"""

import argparse
import os
import random
import sys

from saving_program import Broken, adopt_orphans
from killed_programs import Installer, KilledProgram
from writers import WRITERS

KILLS = 25
STARTS = 3  # kills of the program itself for each writer: a start takes much longer than a save


def run(names, seed, act):
    """Calls act for each writer; yields one line of report for each."""
    adopt_orphans()
    for name in names or WRITERS:
        kind = Installer if name == "installer" else KilledProgram
        killed = kind(WRITERS[name], random.Random(f"{seed} {name}"))
        try:
            killed.learn()
            act(killed)
            yield killed.report()
            if killed.broken:
                raise Broken("; ".join(killed.broken[:3]))
        except Broken as broken:
            raise Broken(f"{name}, after {killed.kills} kills (seed {seed}): {broken}") from broken
        finally:
            killed.pool.close()


def rounds(options):
    """What to do with each writer, with a heading for each."""
    at_each_call = "at each call about a file", lambda killed: killed.kill_at_every_call()
    kills = options.kills or KILLS
    at_random = "at random moments", lambda killed: killed.kill_often(kills)
    if options.every_call:
        return [at_each_call]
    if options.start_each_time:
        return [("of the whole program", lambda killed: killed.kill_program_often(kills))]
    if options.kills:
        return [at_random]
    return [at_random, at_each_call, ("of the whole program", lambda killed: killed.kill_program_often(STARTS))]


def main():
    parser = argparse.ArgumentParser(prog="kill.sh", description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--kills", type=int)
    parser.add_argument("--every-call", action="store_true")
    parser.add_argument("--start-each-time", action="store_true")
    parser.add_argument("--seed", type=int, default=int.from_bytes(os.urandom(4)), help="to repeat the moments of a run")
    parser.add_argument("writers", nargs="*", metavar="WRITER", help=", ".join(WRITERS))
    options = parser.parse_args()
    try:
        for heading, act in rounds(options):
            print(f"Kills {heading}", flush=True)
            for line in run(options.writers, options.seed, act):
                print(f"  {line}", flush=True)
    except Broken as broken:
        print(f"BROKEN: {broken}", flush=True)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
