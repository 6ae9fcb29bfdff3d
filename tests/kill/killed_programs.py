"""A program that is killed again and again while it writes, and the checks afterwards."""

import contextlib
import os
import signal
import subprocess
import time

from saving_program import BUILD, Broken, Pool, SavingProgram
from writers import DEMO, FAULTY_LIST, OFFER, OPEN_ALREADY, comparable

BETWEEN_STARTS = 25  # after so many kills the program starts on what is left, even when nothing about it is new


class KilledProgram:
    """The program with one writer in one pool, killed again and again."""

    def __init__(self, writer, chance):
        self.writer = writer
        self.chance = chance
        self.kills = self.replaced = self.interrupted = self.starts = self.starts_on_rest = 0
        self.broken = []
        self.pool = Pool(writer.finalized)
        self.pool.write("intact.csv", self.pool.read("PLAYERNAMES.CSV"))
        self.pool.pristine["intact.csv"] = self.pool.read("intact.csv")
        if writer.own_files:  # some of them are the same as the demo's, some are not
            self.pool.pristine["TALLYHOOP.THS"] = self.pool.read("TALLYHOOP.THS").replace(b"*END*", b"123\r\n*END*")
            self.pool.reset()
        self.whole = {}
        self.states = set()  # those that kills have left and on which the program has started
        self.seen = {}  # temporary files of earlier kills
        self.duration = 0.0

    def program(self):
        self.starts += 1
        return SavingProgram(self.pool, self.writer.name, self.writer.boxes)

    def learn(self):
        """Learns what a whole file looks like, from a save that is not interrupted."""
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

    def look(self, is_open=False):
        """is_open: the program that was not killed itself still has the folder open, and the next one says so."""
        self.kills += 1
        if self.writer.own_files:
            self.look_for_own_files()
        for name in self.writer.files:
            self.look_at(name)
        state = self.state()
        if state not in self.states or self.kills % BETWEEN_STARTS == 0:
            self.states.add(state)
            self.start_on_rest({OPEN_ALREADY} if is_open else set())
        self.pool.reset()  # otherwise the program would first ask about the changed file, which takes time

    def state(self):
        """What a kill has left: which files exist, and which of them are old, new or the demo's."""
        def kind(file):
            if file.is_dir():
                return frozenset(entry.name for entry in file.iterdir())
            if file.name.endswith(".tmp~"):
                return "temporary"
            content = file.read_bytes()
            return content == self.pool.pristine.get(file.name), content == self.pool.demo.get(file.name)

        known = {*self.pool.pristine, *self.pool.demo, *self.writer.files}
        def name(file):
            """Without what is different every time."""
            return file.name[:file.name.index("Backup") + 6] if file.name.startswith(("Backup ", ".Backup.")) else file.name

        return frozenset((name(file), kind(file))
                         for file in self.pool.folder.iterdir()
                         if not self.pool.is_program(file) or file.is_dir()
                         if file.name in known or file.is_dir() or file.name.endswith(".tmp~"))

    def start_on_rest(self, boxes):
        """Starts the program on exactly what a kill has left; it must show these messages and no unexpected one."""
        lacks_field = not (self.pool.folder / "POOLSTART.THS").exists()
        if lacks_field:
            boxes |= {OFFER, DEMO}  # the offer is accepted
        players = "PLAYERNAMES.CSV"
        if self.writer.name == "annotated" and self.pool.read(players) != self.pool.pristine[players]:
            boxes.add(FAULTY_LIST)  # which is true: the list itself has been damaged
        with SavingProgram(self.pool, "nothing", starts_with=boxes):
            self.starts += 1
            self.starts_on_rest += 1
        if lacks_field:
            self.broken += [f"the demo came without {name}" for name, content in self.pool.demo.items()
                            if name not in self.pool.names() or self.pool.read(name) != content]
        self.broken += [f"{name} is in no folder after a start" for name in self.writer.own_files if not self.places(name)]
        for name in self.writer.files:
            self.check(name)

    def look_at(self, name):
        path = self.pool.folder / name
        temporary = self.pool.folder / f".{name}.tmp~"
        if temporary.exists():
            seen = (temporary.stat().st_ino, temporary.stat().st_mtime_ns, temporary.stat().st_size)
            self.interrupted += self.seen.get(name) != seen  # one of an earlier kill may still exist
            self.seen[name] = seen
        self.replaced += path.exists() and path.read_bytes() != self.pool.pristine.get(name)
        self.check(name)

    def check(self, name):
        path = self.pool.folder / name
        old = self.pool.pristine.get(name)
        if not path.exists():
            if old is not None:
                self.broken.append(f"{name} is gone")
            return
        content = path.read_bytes()
        if content != old and comparable(self.writer, name, content) != self.whole[name]:
            self.broken.append(f"{name} is neither old nor new, {len(content)} bytes: "
                               f"{content[:200]!r} ... {content[-200:]!r}")

    def backups(self):
        return [entry for entry in self.pool.folder.iterdir() if entry.name.startswith("Backup ")]

    def places(self, name):
        """The folders that hold one of the pool's own files unchanged."""
        own = self.pool.pristine[name]
        return [place for place in [self.pool.folder, *self.backups()]
                if (place / name).exists() and (place / name).read_bytes() == own]

    def look_for_own_files(self):
        backups = self.backups()
        self.replaced += len(backups)
        self.interrupted += sum(entry.is_dir() for entry in self.pool.folder.iterdir()) - len(backups)
        for name in self.writer.own_files:
            places = self.places(name)
            if not places:
                self.broken.append(f"{name} is in no folder")
            self.broken += [f"{backup.name} is not whole: {name}" for backup in backups if backup not in places]

    def start_afresh(self):
        """The program starts without a message on what is left, and saves again."""
        if self.writer.name == "annotated":
            self.pool.write("PLAYERNAMES.CSV", self.pool.pristine["PLAYERNAMES.CSV"])
        with self.program() as program:
            if not self.writer.own_files:
                program.save(3)
        left = {f".{name}.tmp~" for name in self.writer.files} & self.pool.names()
        if left:
            raise Broken(f"{left} still exists after the next save")
        self.pool.reset()

    # --- ways to kill ---

    @staticmethod
    def round_of(kill):
        """A round that no earlier kill has reached; its number gives other points too."""
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
        self.look(is_open=True)
        if status == 0 and only_once:
            self.kills -= 1  # it ended before the kill
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
                self.look(is_open=True)
        if status != 0:
            raise Broken(f"the child ended with {status}")
        self.kills -= 1  # the last one survived
        self.check_that_kills_met()
        self.start_afresh()

    def check_that_kills_met(self):
        if self.replaced == 0 or self.interrupted == 0:
            raise Broken("no kill hit a write")

    def report(self):
        return (f"{self.writer.name:10} {self.kills:5} kills  {self.replaced:5} files replaced  "
                f"{self.interrupted:5} kills during a write  {len(self.broken)} files torn or lost  "
                f"{self.starts:3} starts without a message, {self.starts_on_rest:3} on what a kill left, "
                f"{len(self.states)} different states")


class Installer(KilledProgram):
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
        self.check_that_kills_met()
