"""A pool with players and results, its page in a browser, and what the program itself says of it."""

import os
import pathlib
import random
import subprocess
import tempfile

from selenium.webdriver.common.by import By

from entry_form import CHAMPION, GAME_PLACES, HERE, TEAM_PLACES, bytes_of, feeders, pool_2000

MAKER = (pathlib.Path(os.environ.get("TALLYHOOP_BUILD", HERE.parents[1] / "build"))
         / "tests/pages/tallyhoop_pool_page_maker")

TABS = "standings", "brackets", "what-if", "picks", "road"
SURNAMES = "Adams Baker Clark Dunn Evans Frank Ghosh Hills Irwin Jones Klein Lopez Moore Nolan Owens Price".split()

# The games in the order in which they are played: all of a round, then the next.
PLAYED_ORDER = [31 * region + place for first, count in ((16, 8), (24, 4), (28, 2), (30, 1)) for region in range(4)
                for place in range(first, first + count)] + [124, 125, CHAMPION]


def row_of(place):
    """The row of the field that a place of the first round holds."""
    return 16 * (place // 31) + place % 31


def random_bracket(dice, upper=0.7):
    """For each place a row of the field; the upper team wins more often."""
    board = {place: row_of(place) for place in TEAM_PLACES}
    for game in GAME_PLACES:
        board[game] = board[feeders(game)[0 if dice.random() < upper else 1]]
    return board


class PagePool:
    """A folder with a field, results of so many games, and random brackets; always the same for the same numbers."""

    def __init__(self, players=12, played=48, field=None, names=None, without=(), seed=17, total="", predicted=None,
                 prizes=None):
        """total: of the final's points; predicted: the players' totals; prizes: the lines of their file."""
        dice = random.Random(seed)
        self._folder = tempfile.TemporaryDirectory(prefix="tallyhoop-pool-")
        self.folder = pathlib.Path(self._folder.name)
        lines = field or pool_2000.setup_file()
        self.teams = lines[1:65]
        self._write("POOLSTART.THS", lines)
        self.truth = self.truth_of(dice)
        self.entered = {game: self.truth[game] for game in PLAYED_ORDER[:played] if game not in without}
        self._write("TALLYHOOP.THS", self._selection(self.entered, "A", "FinalResults", total))
        self.names = names or [f"{SURNAMES[number % 16]} {number // 16 + 1}" for number in range(players)]
        self.brackets = self.brackets_of(dice)
        predicted = predicted or [str(100 + number % 90) for number in range(len(self.names))]
        for number, (name, bracket) in enumerate(zip(self.names, self.brackets, strict=True)):
            winners = {game: bracket[game] for game in GAME_PLACES if game in bracket}
            self._write(f"Player {number:04}.THC", self._selection(winners, "PL", name, predicted[number]))
        if prizes:
            self._write("PRIZES.CSV", prizes)
        page = self.folder / "POOL.HTML"
        page.write_bytes(self.made_page())
        self.size = page.stat().st_size
        self.page = page
        self.address = page.as_uri()

    def truth_of(self, dice):
        return random_bracket(dice)

    def brackets_of(self, dice):
        return [random_bracket(dice) for _ in self.names]

    def made_page(self):
        return self.run("page")

    def _selection(self, winners, initials, name, total):
        lines = [""] * 127
        for place in TEAM_PLACES:
            lines[place] = self.teams[row_of(place)]
        for game, row in winners.items():
            lines[game] = self.teams[row]
        return [*lines, initials, name, total, "*END*"]

    def _write(self, name, lines):
        (self.folder / name).write_bytes(bytes_of("".join(line + "\r\n" for line in lines)))

    def winner_of(self, place):
        """The row of the team on a place by the results as entered."""
        return self.entered[place] if place in self.entered else row_of(place)

    def run(self, command, given=""):
        return subprocess.run([MAKER, command, self.folder], input=given.encode(), capture_output=True, check=True).stdout

    def close(self):
        self._folder.cleanup()


class Page:
    """The page in a browser."""

    def __init__(self, browser, address):
        self.browser = browser
        browser.driver.get(address)

    def by_id(self, name):
        return self.browser.driver.find_element(By.ID, name)

    def all(self, selector):
        return self.browser.driver.find_elements(By.CSS_SELECTOR, selector)

    def show(self, tab):
        self.by_id(f"tab-{tab}").click()

    def choose(self, name, value):
        """Chooses from a list as a person does."""
        self.browser.run("const list = document.getElementById(arguments[0]); list.value = arguments[1]; "
                         "list.dispatchEvent(new Event('change'))", name, str(value))

    def rows(self, selector):
        """The texts of a table's cells, row by row."""
        return self.browser.run("return Array.from(document.querySelectorAll(arguments[0] + ' tbody tr'), (row) => "
                                "Array.from(row.children, (cell) => cell.textContent))", selector)
