"""The program in a folder of its own, and pools whose figures are known without it."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

TESTS = pathlib.Path(__file__).parents[1]
sys.path.insert(0, str(TESTS / "e2e"))

import office_pool  # noqa: E402: found there
from pool_2000 import selection, setup_file  # noqa: E402, F401

BUILD = pathlib.Path(os.environ.get("TALLYHOOP_BUILD", TESTS.parent / "build"))
APPROVED = TESTS / "approved"
SMALL_TITLE = "Office Pool 2001"
MESSY_TITLE = "B\u00fcro-Pool \u201eM\u00e4rz\u201c 2001"
# 10.01 from each player, 10 % kept back, and 60, 30 and 10 % of the rest for the first three places.
PRIZES = ["Item,Which,Value", "Entry fee,,10.01", "Kept back,,10 %", "Ties,,Nearest", "Prize,1,60 %", "Prize,2,30 %",
          "Prize,3,10 %"]
PATIENCE = 120  # seconds


class Folder:
    """A pool's folder, and the program that works on it."""

    def __init__(self, test):
        self.path = pathlib.Path(test.enterContext(tempfile.TemporaryDirectory(prefix="tallyhoop-cli-")))

    def write(self, name, content):
        """A file of bytes, or of lines in the program's own encoding."""
        if not isinstance(content, bytes):
            content = "".join(line + "\r\n" for line in content).encode("cp1252")
        (self.path / name).write_bytes(content)

    def read(self, name):
        return (self.path / name).read_bytes()

    def contents(self):
        return {file.name: file.read_bytes() for file in self.path.iterdir() if file.is_file()}

    def run(self, *words, **options):
        """What becomes of a call; its output and its faults are bytes."""
        return run("--folder", self.path, *words, **options)


def run(*words, stdout=subprocess.PIPE, program=BUILD / "cli/tallyhoop-cli", cwd=None):
    return subprocess.run([program, *map(str, words)], stdin=subprocess.DEVNULL, stdout=stdout, stderr=subprocess.PIPE,
                          timeout=PATIENCE, cwd=cwd)


def faults(done):
    """The lines of the error stream."""
    return done.stderr.decode("utf-8").splitlines()


def sample_pool(folder):
    """The pool of the demonstration, which is the help's example."""
    installer = folder.path / "DEMOSET.EXE"
    shutil.copy2(BUILD / "DEMOSET.EXE", installer)
    subprocess.run([installer], check=True, timeout=PATIENCE)


def messy_pool(folder):
    """The one with awkward names that tests/approved/messy has; it has no field of its own."""
    for file in (APPROVED / "messy").iterdir():
        if not file.name.startswith("RPTOPT"):
            shutil.copy2(file, folder.path)


def complete_pool(folder):
    """Twelve complete brackets, a final field and results up to the regional finals, without a fault."""
    office_pool.write(folder)


def _team(region, row):
    first = ["CEDAR RAPIDS", "OLD HARBOR", "PINE BLUFF", "SALT LAKE"]
    return first[region] if row == 1 else f"{'WMES'[region]}{row:02}"


def _four_players_bracket(first_winners, finals=("", "", "")):
    """first_winners: for each region the row that wins it, 1 or 2, or nothing for a region without picks."""
    places = []
    for region, winner in enumerate(first_winners):
        places += [_team(region, row) for row in range(1, 17)]
        for count in (8, 4, 2, 1):
            places += [_team(region, winner + 16 // count * game) if winner else "" for game in range(count)]
    return [*places, *finals]


def small_pool(folder):
    """The four players of tests/reports/four_players.h, whose reports are in tests/approved/small."""
    def put(file, bracket, initials, name, total):
        folder.write(file, [*bracket, initials, name, total, "*END*"])

    put("TALLYHOOP.THS", _four_players_bracket([1, 1, 1, 1]), "A", "FinalResults", "")
    put("Adams_AB.THC", _four_players_bracket([1, 1, 1, 1], ("CEDAR RAPIDS", "PINE BLUFF", "CEDAR RAPIDS")), "AB",
        "Adams", "150")
    put("Baker_C.THC", _four_players_bracket([2, 1, 1, 1], ("OLD HARBOR", "SALT LAKE", "SALT LAKE")), "C", "Baker",
        "99")
    put("Clark_D.THC", _four_players_bracket([0, 0, 0, 0]), "D", "Clark", "")
    put("Dunn_EF.THC", _four_players_bracket([1, 2, 1, 1], ("CEDAR RAPIDS", "PINE BLUFF", "PINE BLUFF")), "EF", "Dunn",
        "250")
    folder.write("PLAYERNAMES.CSV", [record("Name", "FileName", "Email", "Phone"),
                                     record("Adams", "Adams_AB.THC", "adams@example.org", "555-0101"),
                                     record("Baker", "Baker_C.THC", "", "555-0102"),
                                     record("Clark", "Clark_D.THC", "clark@example.org", ""),
                                     record("Dunn", "Dunn_EF.THC", "dunn@example.org", "555-0104")])


def small_field(title=SMALL_TITLE):
    """A field of the four players' teams."""
    lines = setup_file(title)
    lines[1:65] = [_team(region, row) for region in range(4) for row in range(1, 17)]
    return lines


def record(name, file, address, phone):
    return f'"{name:25}","{file:33}","{address:43}","{phone:14}"'
