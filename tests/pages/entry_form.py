"""The entry form in a browser, and what the program itself makes of the same bracket."""

import os
import pathlib
import subprocess
import sys
import tempfile

from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

HERE = pathlib.Path(__file__).parent
sys.path.insert(0, str(HERE.parent / "e2e"))
import pool_2000  # noqa: E402 - a field that the end-to-end tests have, too

MAKER = pathlib.Path(os.environ.get("TALLYHOOP_BUILD", HERE.parents[1] / "build")) / "tests/pages/tallyhoop_page_maker"

TEAM_PLACES = [31 * region + row for region in range(4) for row in range(16)]
GAME_PLACES = [place for place in range(127) if place not in TEAM_PLACES]
CHAMPION = 126


def feeders(game):
    """The two places whose teams meet for a place."""
    if game == CHAMPION:
        return 124, 125
    if game in (124, 125):
        return [(30, 61), (92, 123)][game - 124]
    region, offset = divmod(game, 31)
    upper = 31 * region + 2 * (offset - 16)
    return upper, upper + 1


def presses(choices):
    """The places to press for a whole bracket; choices: for each game 0, the upper team wins, or 1."""
    return [feeders(game)[choice] for game, choice in zip(GAME_PLACES, choices, strict=True)]


UPPER_TEAMS = presses([0] * 63)


def bytes_of(text):
    """In Windows-1252, whose five bytes without a character are the controls of the same number, as in the program."""
    return b"".join(bytes([ord(one)]) if one in "\x81\x8d\x8f\x90\x9d" else one.encode("cp1252") for one in text)


class Pool:
    """A field, its entry form, and the program's own files of brackets."""

    def __init__(self, lines=None, organiser="organiser@example.org"):
        self._folder = tempfile.TemporaryDirectory(prefix="tallyhoop-form-")
        folder = pathlib.Path(self._folder.name)
        self.field = folder / "POOLSTART.THS"
        self.field.write_bytes(bytes_of("".join(line + "\r\n" for line in lines or pool_2000.setup_file())))
        self.page = folder / "ENTRYFORM.HTML"
        self.page.write_bytes(make("page", self.field, organiser))
        self.address = self.page.as_uri()

    def close(self):
        self._folder.cleanup()

    def file(self, places, name="", initials="", total=""):
        """The bytes that the program saves after these places were pressed on its board."""
        return make("file", self.field, name, initials, total, given=" ".join(map(str, places)))

    def read(self, text):
        """What an import makes of a text or of a file: for each entry the reasons why it is refused, in lines, or a line
        with the e-mail address and then the bytes that are saved."""
        return make("read", self.field, given=text)

    @staticmethod
    def name(name, initials):
        """The name under which the program proposes to save it."""
        return make("name", name, initials).decode()


def make(*words, given=""):
    given = given.encode() if isinstance(given, str) else given
    return subprocess.run([MAKER, *map(str, words)], input=given, capture_output=True, check=True).stdout


class Form:
    """The page in a browser."""

    def __init__(self, browser, address):
        self.browser = browser
        browser.driver.get(address)

    def by_id(self, name):
        return self.browser.driver.find_element(By.ID, name)

    def place(self, position):
        return self.browser.driver.find_element(By.CSS_SELECTOR, f'[data-position="{position}"]')

    def press(self, places):
        for position in places:
            self.place(position).click()

    def press_at_once(self, places):
        """Without a pointer: for what comes after."""
        self.browser.run("for (const place of arguments[0]) "
                         "document.querySelector(`[data-position='${place}']`).click()", list(places))

    def teams(self):
        """The names on the 127 places."""
        return self.browser.run("return Array.from({length: 127}, (_, place) => "
                                "document.querySelector(`[data-position='${place}'] .team`).textContent)")

    def text(self, name):
        return self.by_id(name).text

    def fill_in(self, **fields):
        for name, text in fields.items():
            box = self.by_id(name)
            box.clear()
            box.send_keys(text, Keys.TAB)

    def focused(self):
        return self.browser.driver.switch_to.active_element
