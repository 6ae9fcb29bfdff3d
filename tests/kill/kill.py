#!/usr/bin/env python3
"""Kills the real program while it saves, and checks what is left.

    TALLYHOOP_BUILD=build-debug tests/kill/kill.py --kills 1000 [WRITER ...]
    TALLYHOOP_BUILD=build-debug tests/kill/kill.py --every-call [WRITER ...]
    TALLYHOOP_BUILD=build-debug tests/kill/kill.py --kills 25 --start-each-time [WRITER ...]

With --kills the program is started, forks a child of itself for each kill, and the child saves over and over until a
random moment; with --start-each-time the program itself is started for each kill and dies. With --every-call the child
saves once and dies at its first, second, ... call about a file (in the middle of one that writes), until it survives.
"""

import argparse
import random
import sys

from saving_program import Broken, adopt_orphans
from killed_programs import Installer, KilledProgram
from writers import WRITERS


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


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--kills", type=int, default=1000)
    parser.add_argument("--every-call", action="store_true")
    parser.add_argument("--start-each-time", action="store_true")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("writers", nargs="*", metavar="WRITER", help=", ".join(WRITERS))
    options = parser.parse_args()
    if options.every_call:
        def act(killed): killed.kill_at_every_call()
    elif options.start_each_time:
        def act(killed): killed.kill_program_often(options.kills)
    else:
        def act(killed): killed.kill_often(options.kills)
    try:
        for line in run(options.writers, options.seed, act):
            print(line, flush=True)
    except Broken as broken:
        print(f"BROKEN: {broken}", flush=True)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
