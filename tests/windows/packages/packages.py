"""The packages for Windows as CPack has made them, and wine to try them by."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time
import unittest
import zipfile

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "e2e"))

from display import ENDS_WITH_THE_TEST, Display

BUILD = pathlib.Path(os.environ.get("TALLYHOOP_BUILD", pathlib.Path(__file__).parents[3] / "build-windows"))
PATIENCE = float(os.environ.get("TALLYHOOP_PATIENCE", 180))  # seconds for one program; wine starts slowly on a busy machine

# What is in the program folder that is nobody's pool.
PROGRAMS = ["DEMOSET.EXE", "tallyhoop-cli.exe", "tallyhoop.exe"]
LIBRARIES = ["Qt6Core.dll", "Qt6Gui.dll", "Qt6PrintSupport.dll", "Qt6Widgets.dll", "libgcc_s_seh-1.dll", "libstdc++-6.dll",
             "libwinpthread-1.dll", "platforms/qwindows.dll", "styles/qwindowsvistastyle.dll"]
TEXTS = ["LICENSE.TXT", "NCAALIST.THS", "TALLYHOOP.HLP", "licences/CLI11.TXT", "licences/FMT.TXT", "licences/GCC.TXT",
         "licences/GPL-3.TXT", "licences/JSON.TXT", "licences/LGPL-3.TXT", "licences/LIBRARIES.TXT",
         "licences/MINGW-W64.TXT", "licences/NSIS.TXT", "licences/QT.TXT"]
DOCUMENTS = r"C:\users\somebody\Documents"
OWN_FILES = sorted(PROGRAMS + LIBRARIES + TEXTS)


def _only(folder, pattern):
    [file] = (BUILD / "packages" / folder).glob(pattern)
    return file


def setup():
    return _only("", "Tallyhoop-*-setup.exe")


def older_setup():
    return _only("older", "Tallyhoop-*-setup.exe")


def archive():
    return _only("", "Tallyhoop-*-windows.zip")


def unpack(folder):
    """The program folder of the archive, below the given one."""
    with zipfile.ZipFile(archive()) as file:
        file.extractall(folder)
    return folder / "Tallyhoop"


def files_below(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file())


@contextlib.contextmanager
def read_only(folder):
    """Makes that nobody writes into a folder meanwhile; from root, whom no rights stop, some file systems cannot keep that."""
    folders = [folder, *(path for path in folder.rglob("*") if path.is_dir())]
    protect, release = (["chattr", "+i"], ["chattr", "-i"]) if os.getuid() == 0 else (["chmod", "a-w"], ["chmod", "u+w"])
    done = subprocess.run([*protect, *map(str, folders)], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        if done.returncode != 0:
            raise unittest.SkipTest("This file system does not keep root from writing")
        yield
    finally:
        subprocess.run([*release, *map(str, folders)], stderr=subprocess.DEVNULL)


class Wine:
    """A person of their own on a Windows of their own, with nothing of Tallyhoop's build to be found. A context manager."""

    def __enter__(self):
        self.scratch = pathlib.Path(tempfile.mkdtemp(prefix="tallyhoop-windows-"))
        self.prefix = self.scratch / "wine"
        self.home = self.scratch / "home"
        self.documents = self.home / "Documents"
        self.documents.mkdir(parents=True)
        self.display = Display()
        self.environment = {
            **{name: value for name, value in os.environ.items() if name not in ("WINEPATH", "WAYLAND_DISPLAY")},
            "WINEPREFIX": str(self.prefix), "HOME": str(self.home), "DISPLAY": self.display.name, "LC_ALL": "C.UTF-8",
            "XDG_CONFIG_HOME": str(self.home / "config"), "XDG_DATA_HOME": str(self.home / "data"),
            "XDG_CACHE_HOME": str(self.home / "cache"), "USER": "somebody", "WINEDEBUG": "-all",
            "WINEDLLOVERRIDES": "mscoree,mshtml,winemenubuilder.exe="}
        try:
            self._do("wineboot", "--init")
            self.settle()
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def __exit__(self, kind, error, trace):
        evidence = BUILD / "e2e-failures"
        if error is not None:
            evidence.mkdir(exist_ok=True)
            self.display.screenshot(evidence / "windows-packages.png")
        place = self.prefix.stat() if self.prefix.exists() else None
        subprocess.run(["wineserver", "-k"], env=self.environment, timeout=PATIENCE, stderr=subprocess.DEVNULL)
        self.display.close()
        if place:  # the server's own folder is named after the prefix, which is never there again
            shutil.rmtree(f"/tmp/.wine-{os.getuid()}/server-{place.st_dev:x}-{place.st_ino:x}", ignore_errors=True)
        shutil.rmtree(self.scratch, ignore_errors=True)

    def _do(self, *words, folder=None):
        return subprocess.run([*map(str, words)], env=self.environment, cwd=folder or self.scratch, timeout=PATIENCE,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def run(self, program, *arguments):
        """Runs a program to its end; gives its exit status and the bytes of its output."""
        done = self._do("wine", program, *arguments)
        return done.returncode, done.stdout

    def start(self, program, *arguments):
        return subprocess.Popen([*ENDS_WITH_THE_TEST, "wine", str(program), *arguments], env=self.environment,
                                cwd=self.scratch, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def window_of(self, process, title):
        """Waits for a window by a part of its title; process: the program that shows it, if it was started here."""
        def is_there():
            if process and process.poll() is not None:
                raise AssertionError(f"no window {title}: the program has ended with {process.returncode}")
            return self._do("xdotool", "search", "--onlyvisible", "--name", title).stdout.split()
        self._wait_until(is_there, f"there is a window {title}")

    def press(self, key, until):
        """Presses a key in the window in front, again when it was lost while the focus changed windows."""
        def has_reacted():
            self._do("xdotool", "key", key)
            return until()
        self._wait_until(has_reacted, f"{key} was received")

    @staticmethod
    def _wait_until(condition, words):
        end = time.monotonic() + PATIENCE
        while not condition():
            if time.monotonic() > end:
                raise AssertionError(f"not within {PATIENCE} s: {words}")
            time.sleep(0.5)

    def settle(self):
        """Waits until no program is running any more, and the registry is in its files."""
        self._do("wineserver", "-w")

    @staticmethod
    def shown(path):
        """A path of this system's as Windows has it."""
        return "Z:" + str(path).replace("/", "\\")

    def registry_of(self, key):
        """The names and values of a key of the person's own registry; nothing when there is no such key."""
        status, output = self.run("reg", "query", "HKCU\\" + key)
        if status != 0:
            return {}
        words = [line.split(None, 2) for line in output.decode().splitlines() if line.startswith("    ")]
        return {name: value for name, _, value in words}
