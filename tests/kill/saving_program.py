"""The real program in a folder of its own, which saves when it gets an order: see saver/saver.cpp."""

import contextlib
import ctypes
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import threading

BUILD = pathlib.Path(os.environ.get("TALLYHOOP_BUILD", pathlib.Path(__file__).parents[2] / "build")).resolve()
CMAKE = os.environ.get("TALLYHOOP_CMAKE", "cmake")
PATIENCE = float(os.environ.get("TALLYHOOP_PATIENCE", 300))  # seconds; only a failing test ever waits that long
OPENED = "Demo Prophet_DP.THC"  # a player of the sample pool


class Broken(AssertionError):
    """Something was lost, or the program complained."""


_started = set()  # process numbers of the programs that take orders
_PR_SET_CHILD_SUBREAPER = 36


def adopt_orphans():
    """Makes this process the parent of processes that a killed program had started."""
    if ctypes.CDLL(None, use_errno=True).prctl(_PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0) != 0:
        raise OSError(ctypes.get_errno(), "the orphans of killed programs cannot be waited for")


def children():
    found = set()
    for thread in pathlib.Path("/proc/self/task").iterdir():
        with contextlib.suppress(FileNotFoundError):  # it has just ended
            found.update(int(number) for number in (thread / "children").read_text().split())
    return found


def wait_for_orphans():
    """Returns when no process that a killed program had started (the demo installer) is running any more."""
    while orphans := children() - _started:
        for orphan in orphans:
            os.waitpid(orphan, 0)


class Pool:
    """A folder with the program and a pool of four players."""

    def __init__(self, finalized):
        self._scratch = tempfile.TemporaryDirectory(prefix="tallyhoop-kill-")
        self.scratch = pathlib.Path(self._scratch.name)
        self.folder = self.scratch / "pool"
        subprocess.run([CMAKE, "--install", BUILD, "--prefix", self.folder, "--component", "program"],
                       check=True, stdout=subprocess.DEVNULL)
        subprocess.run([self.folder / "DEMOSET.EXE"], check=True)
        self.demo = {file.name: file.read_bytes() for file in self.folder.iterdir() if not self.is_program(file)}
        (self.folder / "TALLYHOOP.INI").unlink()  # now it is a pool, not the demo
        if not finalized:
            field = self.read("POOLSTART.THS")
            self.write("POOLSTART.THS", re.sub(rb"1\r\n\*END\*\r\n$", b"0\r\n*END*\r\n", field))
        self.opener()
        self.pristine = {file.name: file.read_bytes() for file in self.folder.iterdir()}

    def opener(self):
        """Makes a desktop that has only a program that opens message files."""
        programs = self.scratch / "programs"
        programs.mkdir()
        gio = programs / "gio"
        gio.write_text("#!/bin/sh\nexit 0\n")
        gio.chmod(0o755)

    @staticmethod
    def is_program(file):
        return os.access(file, os.X_OK)

    def read(self, name):
        return (self.folder / name).read_bytes()

    def write(self, name, content):
        (self.folder / name).write_bytes(content)

    def names(self):
        return {file.name for file in self.folder.iterdir()}

    def reset(self):
        """Restores every data file; the programs, and the temporary files that kills have left, are not touched."""
        for entry in self.folder.iterdir():
            if entry.is_dir():
                shutil.rmtree(entry)
            elif entry.name not in self.pristine and not entry.name.endswith(".tmp~"):
                entry.unlink()
        for name, content in self.pristine.items():
            path = self.folder / name
            if not path.exists() or (not self.is_program(path) and path.read_bytes() != content):
                path.write_bytes(content)

    def close(self):
        self._scratch.cleanup()


class SavingProgram:
    """The program, started without a display and taking orders. Use as a context manager.

    It has to start with exactly the boxes starts_with (their titles); later it may show the allowed ones.
    """

    def __init__(self, pool, writer, allowed_boxes=(), starts_with=()):
        self._pool = pool
        self._writer = writer
        self._starts_with = set(starts_with)
        self._allowed = set(allowed_boxes) | self._starts_with
        self._process = None

    def __enter__(self):
        orders, self._order_end = os.pipe()
        reports_end, reports = os.pipe()
        environment = {
            "PATH": str(self._pool.scratch / "programs"), "LC_ALL": "C.UTF-8", "HOME": str(self._pool.scratch),
            "XDG_RUNTIME_DIR": str(self._pool.scratch), "QT_QPA_PLATFORM": "offscreen",
            "QT_PLUGIN_PATH": str(BUILD / "tests/kill/plugins"), "QT_QPA_GENERIC_PLUGINS": "tallyhoopsaver",
            "CUPS_SERVER": str(self._pool.scratch / "no-printers"),
            "LD_PRELOAD": str(BUILD / "tests/kill/libtallyhoop_killer.so"),
            "TALLYHOOP_SAVER": self._writer, "TALLYHOOP_SAVER_ORDERS": str(orders),
            "TALLYHOOP_SAVER_REPORTS": str(reports), "TALLYHOOP_SAVER_OPENS": str(self._pool.folder / OPENED)}
        self._errors = tempfile.TemporaryFile()
        self._process = subprocess.Popen([str(self._pool.folder / "tallyhoop")], env=environment,
                                         pass_fds=[orders, reports], stdin=subprocess.DEVNULL, stdout=self._errors,
                                         stderr=self._errors, cwd="/", start_new_session=True)
        _started.add(self._process.pid)
        os.close(orders)
        os.close(reports)
        self._reports = os.fdopen(reports_end, encoding="utf-8")
        try:
            boxes = self.wait_for("ready")[1]
            if boxes != self._starts_with:
                raise Broken(f"{self._writer}: the program started with {boxes or 'no box'}")
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def __exit__(self, kind, error, trace):
        os.close(self._order_end)
        self._reports.close()
        self.kill()
        self._errors.close()

    def order(self, text):
        os.write(self._order_end, (text + "\n").encode())

    def wait_for(self, word):
        """Returns what follows the word, and the titles of the boxes that came before it."""
        # The whole group, because a child that it has forked would keep the pipe open.
        patience = threading.Timer(PATIENCE, os.killpg, (self._process.pid, signal.SIGKILL))
        patience.start()
        try:
            return self._wait_for(word)
        finally:
            patience.cancel()

    def _wait_for(self, word):
        boxes = set()
        for line in self._reports:
            line = line.rstrip("\n")
            if line.startswith("box "):
                boxes.add(line[4:])
                if boxes - self._allowed:
                    raise Broken(f"{self._writer}: unexpected box {line[4:]!r}")
            elif line.split(" ")[0] == word:
                return line[len(word):].strip(), boxes
        self._errors.seek(0)
        raise Broken(f"{self._writer}: ended before {word!r}: {self._errors.read().decode(errors='replace')}")

    def save(self, number):
        self.order(f"once {number}")
        self.wait_for("saved")
        wait_for_orphans()

    def kill(self):
        """Kills the program itself, which cannot be used afterwards."""
        self._process.send_signal(signal.SIGKILL)
        self._process.wait()
        _started.discard(self._process.pid)
        wait_for_orphans()

    def child(self, order):
        """Lets the program fork a child that follows the order; returns its process number."""
        self.order(order)
        return int(self.wait_for("child")[0])

    def child_status(self):
        status = int(self.wait_for("gone")[0])
        wait_for_orphans()
        return status
