"""The entry form on every screen and on paper, for everybody."""

import pathlib
import subprocess
import unittest

from browser import DESKTOP, SIDEWAYS, TABLET, TELEPHONE, Browser
from entry_form import UPPER_TEAMS, Form, Pool, pool_2000, presses

A4 = 8.27, 11.69  # inches
LETTER = 8.5, 11
A4_WIDE = 1062  # pixels of A4 on its side, without its margins
TEAM_NAMES = pathlib.Path(__file__).parents[2] / "data/NCAALIST.THS"
LOWER_TEAMS = presses([1] * 63)
SHADOW = 12  # pixels below the counter


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
        # Of a text that the counter is in front of it says that people must look: another test does.
        self.browser.run("document.getElementById('status').style.position = 'static'")
        self.assertEqual(self.browser.axe_findings(), [], where)

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

    def test_the_counter_covers_neither_the_middle_nor_the_beginning_of_a_place(self):
        for size in TELEPHONE, SIDEWAYS, TABLET, (900, 600), DESKTOP:
            form = self.open(size=size)
            form.press_at_once(UPPER_TEAMS)
            covered = self.browser.run(
                "return Array.from(document.querySelectorAll('[data-position]:enabled')).filter((place) => {"
                "  place.scrollIntoView({block: 'end'});"
                "  const {x, y, width, height} = place.getBoundingClientRect();"
                "  return [x + 8, x + width / 2].some((at) => "
                "      !place.contains(document.elementFromPoint(at, y + height / 2)));"
                "}).map((place) => place.outerHTML)")
            self.assertEqual(covered, [], size)
            self.browser.close()

    def test_a_jump_to_the_fields_leaves_the_counter_behind(self):
        for size in TELEPHONE, SIDEWAYS, TABLET:
            form = self.open(size=size)
            form.by_id("to-hand-in").click()
            bottom = self.browser.run("return document.getElementById('status').getBoundingClientRect().bottom")
            self.assertLessEqual(bottom, -SHADOW, size)
            self.assertEqual(form.focused().get_attribute("id"), "hand-in-title")
            self.assertEqual(form.focused().value_of_css_property("outline-style"), "none")  # the screen would cut it
            self.browser.close()

    def open_another(self, lines, **options):
        pool = Pool(lines)
        self.addCleanup(pool.close)
        self.open(**options)
        return Form(self.browser, pool.address)

    # Payoffs as long as a heading of one line does not hold, a title that is blank, and one of two lines.
    ODD_TITLES = ["A most honourable regional of the western hemisphere and of some more of them, too", "Midwest Region",
                  "East", " "]

    def odd_lines(self, comments=("", "")):
        lines = pool_2000.setup_file()
        return [*lines[:66], *self.ODD_TITLES, "1", "2.5", "1000", "1000", *lines[74:92], *comments, *lines[94:]]

    def heights(self, places):
        return [self.browser.run("return arguments[0].getBoundingClientRect().top", self.form.place(place))
                for place in places]

    def test_headings_are_whole_and_move_no_games(self):
        for size in TELEPHONE, SIDEWAYS, TABLET, (1300, 800), DESKTOP:
            self.form = self.open_another(self.odd_lines(), size=size)
            self.assertEqual(self.browser.run(
                "return Array.from(document.querySelectorAll('h2, h3')).filter((one) => one.checkVisibility())"
                ".filter((one) => one.scrollWidth > one.clientWidth || one.textContent === '' ||"
                "  getComputedStyle(one).overflow !== 'visible').map((one) => one.textContent)"), [], size)
            if size != TELEPHONE:
                first, last, final = self.heights([0, 15, 28])  # the regional final is in the middle of its region
                self.assertAlmostEqual(final + self.form.place(28).size["height"], (first + last) / 2 +
                                       self.form.place(0).size["height"] / 2, delta=3, msg=size)
            if size in ((1300, 800), DESKTOP):
                west, midwest, east, south = self.heights([0, 31, 62, 93])
                self.assertAlmostEqual(west, east, delta=1)
                self.assertAlmostEqual(midwest, south, delta=1)
            self.browser.close()

    def test_a_long_title_has_its_beginning_in_the_bar_of_parts_and_a_blank_one_a_number(self):
        self.form = self.open_another(self.odd_lines(), size=TELEPHONE)
        links = self.browser.driver.find_elements("css selector", "nav a")
        self.assertEqual([link.text for link in links], [self.ODD_TITLES[0], "Midwest", "East", "Region 4", "Finals"])
        begins = self.browser.run(
            "return Array.from(document.querySelectorAll('nav a'), (link) => {"
            "  const range = document.createRange(); range.selectNodeContents(link);"
            "  return range.getBoundingClientRect().left >= link.getBoundingClientRect().left; })")
        self.assertEqual(begins, [True] * 5)
        self.assertEqual({link.value_of_css_property("text-overflow") for link in links}, {"ellipsis"})
        self.assertEqual(self.browser.run("return nameOfGame(arguments[0])", 109), "Region 4, first round")
        self.assertEqual(self.browser.run("return nameOfGame(125)"), "Semi-final of East and Region 4")

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
        for size in TELEPHONE, (700, 400), SIDEWAYS, TABLET, (900, 600), (1300, 800), DESKTOP, (1920, 1080):
            form = self.open_another([lines[0], *names, *lines[65:]], size=size)
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

    def test_many_lines_of_comments_and_long_headings_are_on_that_page(self):
        comments = [[f"{which} {line}" for line in range(1, 9)] for which in ("Lunch", "Prize")]
        self.form = self.open_another(self.odd_lines(["|".join(lines) for lines in comments]))
        for paper in A4, LETTER:
            pages = text_of(self.browser.printed(*paper))
            self.assertEqual(len(pages), 1)
            for words in *comments[0], *comments[1], "Regional final, 1000", "Region 4":
                self.assertIn(words, pages[0])
        self.browser.command("Emulation.setDeviceMetricsOverride", width=A4_WIDE, height=700, deviceScaleFactor=1,
                             mobile=False)
        self.browser.command("Emulation.setEmulatedMedia", media="print")
        self.assertEqual(self.browser.run(
            "return Array.from(document.querySelectorAll('.comment')).filter((one) => "
            "one.scrollHeight > one.clientHeight || one.scrollWidth > one.clientWidth).map((one) => one.id)"), [])

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
