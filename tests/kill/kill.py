#!/usr/bin/env python3
"""Kills the real program while it saves, and looks at what is left.

    TALLYHOOP_BUILD=build-debug tests/kill/kill.py --kills 1000 [WRITER ...]
    TALLYHOOP_BUILD=build-debug tests/kill/kill.py --every-call [WRITER ...]
    TALLYHOOP_BUILD=build-debug tests/kill/kill.py --kills 25 --start-each-time [WRITER ...]

With --kills the program is started, forks a child of itself for each kill, and the child saves over and over until a
random moment; with --start-each-time the program itself is started for each kill and dies. With --every-call the child
saves once and dies at its first, second, ... call about a file (in the middle of one that writes), until it survives.
"""

import argparse
import contextlib
import os
import random
import signal
import subprocess
import sys
import time

from saving_program import BUILD, Broken, Pool, SavingProgram
from writers import WRITERS, comparable


class Victim:
    """One writer, killed again and again in one pool."""

    def __init__(self, writer, chance):
        self.writer = writer
        self.chance = chance
        self.kills = self.replaced = self.interrupted = self.starts = 0
        self.broken = []
        self.pool = Pool(writer.finalized)
        self.pool.write("intact.csv", self.pool.read("PLAYERNAMES.CSV"))
        self.pool.pristine["intact.csv"] = self.pool.read("intact.csv")
        if writer.own_files:  # the installer must not outlive the kill by much
            self.pool.write("DEMOSET.EXE", b"#!/bin/sh\nprintf '1\\r\\n' > \"${0%/*}/TALLYHOOP.INI\"\n")
        self.whole = {}
        self.seen = {}  # temporary files of kills before
        self.duration = 0.0

    def program(self):
        self.starts += 1
        return SavingProgram(self.pool, self.writer.name, self.writer.boxes)

    def learn(self):
        """What a whole file looks like: from a save that nobody disturbs."""
        with self.program() as program:
            begin = time.monotonic()
            program.save(1)
            self.duration = time.monotonic() - begin
            if not self.writer.own_files:
                program.save(2)
                self.duration = time.monotonic() - begin
        for name in self.writer.files:
            self.whole[name] = comparable(self.writer, name, self.pool.read(name))
        self.pool.reset()

    # --- what is left after a kill ---

    def look(self):
        self.kills += 1
        if self.writer.own_files:
            self.look_for_own_files()
        for name in self.writer.files:
            self.look_at(name)
        self.pool.reset()  # a file that has changed would be asked about first, and that takes its time

    def look_at(self, name):
        path = self.pool.folder / name
        temporary = self.pool.folder / f".{name}.tmp~"
        if temporary.exists():
            seen = (temporary.stat().st_ino, temporary.stat().st_mtime_ns, temporary.stat().st_size)
            self.interrupted += self.seen.get(name) != seen  # one of an earlier kill may still be there
            self.seen[name] = seen
        old = self.pool.pristine.get(name)
        if not path.exists():
            if old is not None:
                self.broken.append(f"{name} is gone")
            return
        content = path.read_bytes()
        self.replaced += content != old
        if content != old and comparable(self.writer, name, content) != self.whole[name]:
            self.broken.append(f"{name} is neither old nor new, {len(content)} bytes: "
                         f"{content[:200]!r} ... {content[-200:]!r}")

    def look_for_own_files(self):
        backups = [entry for entry in self.pool.folder.iterdir() if entry.is_dir()]
        kept = [entry for entry in backups if entry.name.startswith("Backup ")]
        self.replaced += len(kept)
        self.interrupted += len(backups) - len(kept)
        for name in self.writer.own_files:
            own = self.pool.pristine[name]
            places = [self.pool.folder, *kept]
            if not any((place / name).exists() and (place / name).read_bytes() == own for place in places):
                self.broken.append(f"{name} is nowhere")
            for backup in kept:
                if (backup / name).read_bytes() != own:
                    self.broken.append(f"{backup.name} is not whole")

    def start_afresh(self):
        """The program starts on what is left, without complaint, and saves again."""
        if self.writer.name == "annotated":
            self.pool.write("PLAYERNAMES.CSV", self.pool.pristine["PLAYERNAMES.CSV"])
        with self.program() as program:
            if not self.writer.own_files:
                program.save(3)
        left = {f".{name}.tmp~" for name in self.writer.files} & self.pool.names()
        if left:
            raise Broken(f"{left} outlived the next save")

    # --- ways to kill ---

    @staticmethod
    def round_of(kill):
        """A round that no kill before has reached; its number differs from theirs in the points too."""
        return 10 + 1001 * kill

    def moment(self):
        time.sleep(self.chance.uniform(0, 1.2 * self.duration))

    def kill_child(self, program, number):
        only_once = self.writer.own_files  # demo mode is entered once
        child = program.child(f"forkone {number} 0" if only_once else f"fork {number}")
        self.moment()
        with contextlib.suppress(ProcessLookupError):
            os.kill(child, signal.SIGKILL)
        status = program.child_status()
        self.look()
        if status == 0 and only_once:
            self.kills -= 1  # it was faster
        elif status != signal.SIGKILL:
            raise Broken(f"the child ended by itself: {status}")

    def kill_often(self, kills):
        between_starts = 250
        for first in range(0, kills, between_starts):
            with self.program() as program:
                while self.kills < min(first + between_starts, kills):
                    self.kill_child(program, self.round_of(self.kills))
            self.start_afresh()

    def kill_program_often(self, kills):
        for number in range(kills):
            with self.program() as program:
                program.order(f"{'once' if self.writer.own_files else 'loop'} {self.round_of(number)}")
                self.moment()
                program.kill()
            self.look()
        self.start_afresh()

    def kill_at_every_call(self):
        call = 0
        with self.program() as program:
            status = signal.SIGKILL
            while status == signal.SIGKILL:
                call += 1
                program.child(f"forkone {10 + call} {call}")
                status = program.child_status()
                self.look()
        if status != 0:
            raise Broken(f"the child ended with {status}")
        self.kills -= 1  # the last one survived
        self.start_afresh()

    def report(self):
        return (f"{self.writer.name:10} {self.kills:5} kills  {self.replaced:5} files replaced  "
                f"{self.interrupted:5} kills amid writing  {len(self.broken)} files torn or lost  "
                f"{self.starts:3} starts without complaint")


class Installer(Victim):
    """DEMOSET.EXE, which starts, writes eight files and ends."""

    def learn(self):
        self.writer.files = [name for name in self.pool.pristine if name.endswith((".THC", ".CSV"))]
        self.writer.files += ["POOLSTART.THS", "TALLYHOOP.THS"]
        self.pool.pristine = {name: content for name, content in self.pool.pristine.items()
                              if name not in self.writer.files}
        self.pool.reset()
        begin = time.monotonic()
        subprocess.run([self.pool.folder / "DEMOSET.EXE"], check=True)
        self.duration = time.monotonic() - begin
        self.writer.files.append("TALLYHOOP.INI")
        self.whole = {name: self.pool.read(name) for name in self.writer.files}
        self.pool.reset()

    def install(self, call=0):
        environment = {"LD_PRELOAD": str(BUILD / "tests/kill/libtallyhoop_killer.so")}
        if call:
            environment["TALLYHOOP_KILL_AT_CALL"] = str(call)
        return subprocess.Popen([self.pool.folder / "DEMOSET.EXE"], env=environment)

    def look_and_clear(self):
        if "TALLYHOOP.INI" in self.pool.names():
            missing = set(self.writer.files) - self.pool.names()
            self.broken += [f"demo mode is on without {name}" for name in missing]
        self.look()
        for name in self.writer.files:
            (self.pool.folder / f".{name}.tmp~").unlink(missing_ok=True)
        self.seen.clear()

    def kill_often(self, kills):
        for _ in range(kills):
            installer = self.install()
            self.moment()
            installer.kill()
            installer.wait()
            self.look_and_clear()

    kill_program_often = kill_often

    def kill_at_every_call(self):
        call = 1
        while (status := self.install(call).wait()) == -signal.SIGKILL:
            self.look_and_clear()
            call += 1
        if status != 0:
            raise Broken(f"the installer ended with {status}")


def run(names, seed, act):
    """Acts on each writer; the reports, one line each."""
    for name in names or WRITERS:
        kind = Installer if name == "installer" else Victim
        victim = kind(WRITERS[name], random.Random(f"{seed} {name}"))
        try:
            victim.learn()
            act(victim)
            yield victim.report()
            if victim.broken:
                raise Broken("; ".join(victim.broken[:3]))
        except Broken as broken:
            raise Broken(f"{name}, after {victim.kills} kills (seed {seed}): {broken}") from broken
        finally:
            victim.pool.close()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--kills", type=int, default=1000)
    parser.add_argument("--every-call", action="store_true")
    parser.add_argument("--start-each-time", action="store_true")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("writers", nargs="*", metavar="WRITER", help=", ".join(WRITERS))
    options = parser.parse_args()
    if options.every_call:
        def act(victim): victim.kill_at_every_call()
    elif options.start_each_time:
        def act(victim): victim.kill_program_often(options.kills)
    else:
        def act(victim): victim.kill_often(options.kills)
    try:
        for line in run(options.writers, options.seed, act):
            print(line, flush=True)
    except Broken as broken:
        print(f"BROKEN: {broken}", flush=True)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
