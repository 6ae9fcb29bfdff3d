"""The entry form on every screen and on paper, for everybody."""

import os
import pathlib
import subprocess
import unittest

from browser import DESKTOP, TABLET, TELEPHONE, Browser
from entry_form import UPPER_TEAMS, Form, Pool, pool_2000, presses

AXE = pathlib.Path(os.environ["TALLYHOOP_AXE"]) / "node_modules/axe-core/axe.min.js"

A4 = 8.27, 11.69  # inches
LETTER = 8.5, 11
A4_WIDE = 1062  # pixels of A4 on its side, without its margins
TEAM_NAMES = pathlib.Path(__file__).parents[2] / "data/NCAALIST.THS"
LOWER_TEAMS = presses([1] * 63)


def text_of(pdf):
    """The text of a PDF, page by page."""
    text = subprocess.run(["pdftotext", "-layout", "-", "-"], input=pdf, capture_output=True, check=True).stdout
    return text.decode().split("\f")[:-1]


class Look(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pool = Pool()
        cls.addClassCleanup(cls.pool.close)

    def open(self, **options):
        self.browser = Browser(**options)
        self.addCleanup(self.browser.close)
        return Form(self.browser, self.pool.address)

    def check_with_axe(self, where):
        """Both what axe-core is sure of and what it leaves to people must be nothing."""
        self.browser.run(AXE.read_text())
        found = self.browser.driver.execute_async_script("axe.run().then(arguments[0])")
        self.assertGreater(len(found["passes"]), 10)
        self.assertEqual([(rule["id"], [node["html"] for node in rule["nodes"]])
                          for rule in found["violations"] + found["incomplete"]], [], where)

    def test_axe_core_finds_nothing(self):
        for size in TELEPHONE, TABLET, DESKTOP:
            for dark in False, True:
                form = self.open(size=size, dark=dark)
                self.check_with_axe((size, dark, "empty"))
                form.press_at_once(UPPER_TEAMS[:40])
                form.fill_in(total="12", email="nobody")
                form.by_id("save").click()
                self.check_with_axe((size, dark, "half filled in, with faults"))
                form.by_id("restart").click()
                self.check_with_axe((size, dark, "asked whether to start over"))
                form.by_id("sure-no").click()
                form.press_at_once(UPPER_TEAMS)
                form.fill_in(name="Nora", initials="N", total="100", email="")
                self.browser.run("copyText = async () => { byId('by-hand').hidden = false; return false; }")
                form.by_id("copy").click()
                self.check_with_axe((size, dark, "handed in"))
                self.browser.close()

    def test_axe_core_would_find_something(self):
        form = self.open()
        self.browser.run("arguments[0].textContent = ''", form.place(0))
        with self.assertRaisesRegex(AssertionError, "button-name"):
            self.check_with_axe("a button without a name")

    def test_nothing_is_wider_than_the_screen(self):
        for width in 320, 360, 412, 699, 700, 768, 1024, 1299, 1300, 1366, 1920:
            form = self.open(size=(width, 800))
            form.press_at_once(UPPER_TEAMS)
            wide, hidden = self.browser.run("return [innerWidth, document.documentElement.scrollWidth - "
                                           "document.documentElement.clientWidth]")
            self.assertEqual((wide, hidden), (width, 0))
            self.browser.close()

    def test_what_is_pressed_is_large_enough(self):
        for size, touch, least in ((TELEPHONE, True, 44), (TABLET, True, 44), (DESKTOP, True, 44), (DESKTOP, False, 24)):
            self.open(size=size, touch=touch)
            self.assertEqual(self.small_ones(least), [], (size, touch))
            self.browser.close()

    def small_ones(self, least):
        return self.browser.run(
            "return Array.from(document.querySelectorAll('button, input, nav a')).filter((one) => one.checkVisibility())"
            ".filter((one) => one.getBoundingClientRect().height < arguments[0] || "
            "one.getBoundingClientRect().width < arguments[0]).map((one) => one.outerHTML)", least)

    def test_the_counter_covers_the_middle_of_nothing(self):
        for size in TELEPHONE, TABLET, DESKTOP:
            form = self.open(size=size)
            form.press_at_once(UPPER_TEAMS)
            covered = self.browser.run(
                "return Array.from(document.querySelectorAll('[data-position]:enabled')).filter((place) => {"
                "  place.scrollIntoView({block: 'end'});"
                "  const {x, y, width, height} = place.getBoundingClientRect();"
                "  return !place.contains(document.elementFromPoint(x + width / 2, y + height / 2));"
                "}).map((place) => place.outerHTML)")
            self.assertEqual(covered, [], size)
            self.browser.close()

    CUT = """
        const isBroken = (team) => {  // a word of it is on two lines
            const text = team.firstChild, range = document.createRange();
            let end = 0;
            return text !== null && text.data.split(/(?<=[- ])/).some((word) => {
                range.setStart(text, end);
                range.setEnd(text, end + word.trimEnd().length);
                end += word.length;
                return new Set(Array.from(range.getClientRects(), (box) => box.top)).size > 1;
            });
        };
        const isCut = (team) => {
            const name = team.getBoundingClientRect(), place = team.parentElement.getBoundingClientRect();
            return team.scrollWidth > team.clientWidth || name.top < place.top || name.bottom > place.bottom;
        };
        return Array.from(document.querySelectorAll('.team')).filter((team) => isCut(team) || isBroken(team))
            .map((team) => team.parentElement.dataset.position + ' ' + team.textContent);"""

    def test_the_longest_names_are_whole(self):
        names = sorted(TEAM_NAMES.read_text("cp1252").split("\n"), key=len)[-64:]
        self.assertIn("UT Rio Grande Valley", names)
        lines = pool_2000.setup_file()
        pool = Pool([lines[0], *names, *lines[65:]])
        self.addCleanup(pool.close)
        for size in TELEPHONE, TABLET, (1300, 800), DESKTOP, (1920, 1080):
            self.open(size=size)
            form = Form(self.browser, pool.address)
            for picks in UPPER_TEAMS, LOWER_TEAMS:  # each in bold letters in every column
                form.press_at_once(picks)
                self.assertEqual(self.browser.run(self.CUT), [], size)
            if size == DESKTOP:
                self.browser.command("Emulation.setDeviceMetricsOverride", width=A4_WIDE, height=700, deviceScaleFactor=1,
                                     mobile=False)
                self.browser.command("Emulation.setEmulatedMedia", media="print")
                self.assertEqual(self.browser.run(self.CUT), [], "on paper")
            self.browser.close()

    def check_page(self, pages, dukes):
        """dukes: how often Duke is on paper, which wins the East and a semi-final."""
        self.assertEqual(len(pages), 1)
        for team in pool_2000.FIELD:
            self.assertIn(team, pages[0])
        self.assertEqual(pages[0].count("Duke"), dukes)
        for words in "Office Pool", "Right picks bring 1 2 4 8 12 16 points", "by Thursday noon", "Final, 16 points":
            self.assertIn(words, pages[0])
        self.assertNotIn("Start over", pages[0])

    def test_one_page_has_the_whole_bracket(self):
        for size in TELEPHONE, DESKTOP:
            form = self.open(size=size, dark=True)
            form.press_at_once(UPPER_TEAMS)
            form.fill_in(name="Nora Lind", initials="NL", total="142")
            for paper in A4, LETTER:
                pages = text_of(self.browser.printed(*paper))
                self.check_page(pages, 6)
                for words in "Nora Lind", "NL", "142":
                    self.assertIn(words, pages[0])
            self.browser.close()

    def test_a_blank_page_has_the_teams_and_nothing_else(self):
        form = self.open()
        form.press_at_once(UPPER_TEAMS)
        form.fill_in(name="Nora Lind", initials="NL", total="142")
        self.browser.run("print = () => { window.blankWhilePrinting = document.documentElement.className; }")
        form.by_id("printBlank").click()
        self.assertEqual(self.browser.run("return blankWhilePrinting"), "blank")
        self.check_page(text_of(self.browser.printed(*A4)), 1)

        self.browser.run("dispatchEvent(new Event('afterprint'))")
        self.check_page(text_of(self.browser.printed(*A4)), 6)


if __name__ == "__main__":
    unittest.main()
