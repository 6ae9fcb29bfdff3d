"""The programs for Windows as this system runs them, and a pool of which every writer writes something."""

import os
import pathlib
import shutil
import subprocess
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
TESTS = HERE.parents[1]
WINDOWS = pathlib.Path(os.environ["TALLYHOOP_WINDOWS_BUILD"])
LINUX = pathlib.Path(os.environ.get("TALLYHOOP_LINUX_BUILD", ""))
RUN = TESTS.parent / "packaging/windows/run.sh"
SAVER = "tests/windows/console/tallyhoop_console_saver"
PATIENCE = 300  # seconds; wine takes its time where everything is busy
NOTHING_TO_COMPARE = 77  # exit status: ctest skips the test


def command(system, program, *words):
    """A program of the build for a system; one in the folder where it is started is named with "./"."""
    folder = {"Linux": LINUX, "Windows": WINDOWS}[system]
    file = program if program.startswith("./") else str(folder / program)
    if system == "Linux":
        return [file, *words]
    return [RUN, file if file.endswith(".EXE") else file + ".exe", *words]


def keep_serving():
    """Has what serves all programs run on for a while: they start quickly then, and it does not keep the output of the
    first of them open."""
    for words in ["wineserver", "-p60"], [RUN, "cmd", "/c", "exit"]:
        subprocess.run(words, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                       timeout=PATIENCE)  # the first fails when it runs already


def run(system, folder, program, *words):
    return subprocess.run(command(system, program, *words), cwd=folder, stdin=subprocess.DEVNULL, capture_output=True,
                          timeout=PATIENCE)


def contents(folder):
    """Every file below the folder, with its bytes; a folder has none."""
    return {str(file.relative_to(folder)): file.read_bytes() if file.is_file() else None
            for file in sorted(folder.rglob("*"))}


def put_contents(folder, wanted):
    """Makes the folder hold exactly these files; those that are as they were are not touched."""
    for file in sorted(folder.rglob("*"), reverse=True):
        if str(file.relative_to(folder)) not in wanted:
            shutil.rmtree(file) if file.is_dir() else file.unlink()
    for name, content in wanted.items():
        file = folder / name
        if content is None:
            file.mkdir(exist_ok=True)
        elif not file.exists() or file.read_bytes() != content:
            file.write_bytes(content)


class Pool:
    """A folder with a pool in it, which can be made anew."""

    def __init__(self, test):
        self.path = pathlib.Path(test.enterContext(tempfile.TemporaryDirectory(prefix="tallyhoop-windows-")))
        done = run("Windows", self.path, SAVER, ".", "pool")
        test.assertEqual(done.returncode, 0, done.stderr)
        self.old = self.contents()

    def contents(self):
        return contents(self.path)

    def reset(self):
        put_contents(self.path, self.old)


def writers(test):
    """The names of all writers of the saver, and the file of each."""
    done = run("Windows", tempfile.gettempdir(), SAVER, ".", "list")
    test.assertEqual(done.returncode, 0, done.stderr)
    return dict(line.split("|") for line in done.stdout.decode().splitlines())
