"""The pool's page on every screen and on paper, for everybody."""

import sys
import unittest

from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys

from browser import DESKTOP, TABLET, TELEPHONE, Browser
from look_test import A4, LETTER, text_of
from pool_page import TABS, Page, PagePool

WIDTHS = 360, 412, 599, 600, 699, 700, 768, 999, 1000, 1199, 1200, 1366, 1920, 3840

# Words that no other part has.
WORDS_ON_PAPER = {
    "standings": ("Verdict", "Worst"),
    "brackets": ("Semi-finals", "right picks"),
    "side by side": ("They differ in", "Result"),
    "what-if": ("0 winners supposed", "West, regional final"),
    "supposed": ("1 winner supposed", "Share %"),
    "picks": ("Most-loved champion", "Game by game", "Chalk %"),
    "road": ("The road", "Start", "Round 2"),
}


class Look(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pool = PagePool(players=20, played=50)
        cls.addClassCleanup(cls.pool.close)

    def open(self, pool=None, **options):
        self.browser = Browser(**options)
        self.addCleanup(self.browser.close)
        return Page(self.browser, (pool or self.pool).address)

    def every_state(self, page):
        """Goes through the parts, with what they can show besides."""
        for tab in TABS:
            page.show(tab)
            yield tab
        page.show("brackets")
        page.choose("bracket-other", 3)
        yield "side by side"
        page.show("what-if")
        page.all(".side")[0].click()
        yield "supposed"

    def test_axe_core_finds_nothing(self):
        for size in TELEPHONE, TABLET, DESKTOP:
            for dark in False, True:
                page = self.open(size=size, dark=dark)
                for state in self.every_state(page):
                    self.assertEqual(self.browser.axe_findings(), [], (size, dark, state))
                self.browser.close()

    def test_axe_core_would_find_something(self):
        page = self.open()
        self.browser.run("arguments[0].textContent = ''", page.by_id("tab-picks"))
        self.assertIn("button-name", [rule for rule, _ in self.browser.axe_findings()])

    def test_nothing_is_wider_than_the_screen(self):
        page = self.open()
        for width in WIDTHS:
            self.browser.command("Emulation.setDeviceMetricsOverride", width=width, height=800, deviceScaleFactor=1,
                                 mobile=False)
            for state in self.every_state(page):
                wide, hidden = self.browser.run("return [innerWidth, document.documentElement.scrollWidth - "
                                                "document.documentElement.clientWidth]")
                self.assertEqual((wide, hidden), (width, 0), state)

    def test_the_rounds_of_a_bracket_begin_at_one_height(self):
        for size in TABLET, DESKTOP:
            page = self.open(size=size)
            page.show("brackets")
            tops = self.browser.run("return Array.from(document.querySelectorAll('.part-0 .picks'), (list) => "
                                    "Math.round(list.getBoundingClientRect().top))")
            self.assertEqual(len(tops), 5)
            self.assertEqual(len(set(tops)), 1, size)
            self.browser.close()

    def test_the_chart_follows_the_width(self):
        page = self.open()
        page.show("road")
        for width in 360, 1366, 700:
            self.browser.command("Emulation.setDeviceMetricsOverride", width=width, height=800, deviceScaleFactor=1,
                                 mobile=False)
            self.browser.wait(lambda: self.browser.run(
                "const chart = document.querySelector('.chart'); "
                "return Math.abs(chart.viewBox.baseVal.width - chart.getBoundingClientRect().width) < 1"), "chart as wide as its place")

    def test_what_is_pressed_is_large_enough(self):
        page = self.open(size=TELEPHONE, touch=True)
        for state in self.every_state(page):
            small = self.browser.run(
                "return Array.from(document.querySelectorAll('button, select, input, summary')).filter((one) => one.checkVisibility())"
                ".filter((one) => one.getBoundingClientRect().height < (one.matches('.link, input[type=checkbox]') ? 22 : 32))"
                ".map((one) => one.outerHTML)")
            self.assertEqual(small, [], state)

    def test_each_tab_can_be_reached_and_left_by_keyboard(self):
        page = self.open()
        for tab in TABS:
            page.show(tab)
            reached = []
            self.browser.type(Keys.TAB)
            for _ in range(2):
                reached.append(self.browser.run("return document.activeElement.closest('[role=tabpanel]')?.id"))
                self.browser.type(Keys.TAB)
            self.assertEqual(set(reached), {tab})
            self.leave(tab)

    def leave(self, tab):
        """By the first stop back to the tab's button, and past the last stop out of the part."""
        focused = "const one = document.activeElement; return [one.id, one.closest('[role=tabpanel]')?.id ?? '']"
        page_has = "return document.querySelectorAll('button, select, input, summary, [tabindex]').length"
        self.browser.run("document.getElementById(arguments[0]).focus()", f"tab-{tab}")
        self.browser.type(Keys.TAB)
        ActionChains(self.browser.driver).key_down(Keys.SHIFT).send_keys(Keys.TAB).key_up(Keys.SHIFT).perform()
        self.assertEqual(self.browser.run(focused), [f"tab-{tab}", ""])
        for stop in range(self.browser.run(page_has)):
            self.browser.type(Keys.TAB)
            if self.browser.run(focused)[1] != tab:
                self.assertGreater(stop, 1)
                return
        self.fail(f"{tab} cannot be left")

    def test_the_standings_on_paper(self):
        for size, dark in ((TELEPHONE, True), (DESKTOP, False)):
            self.open(size=size, dark=dark)
            for paper in A4, LETTER:
                text = "".join(text_of(self.browser.printed(*paper)))
                for name in self.pool.names:
                    self.assertIn(f"PL, {name}", text)
                for words in "Office Pool", "Possible", "Verdict", "Share %", "R6", "Total":
                    self.assertIn(words, text)
                self.assertNotIn("Search", text)
                self.assertNotIn("The road", text)
            self.browser.close()

    def test_a_bracket_on_one_page(self):
        for size in TELEPHONE, DESKTOP:
            page = self.open(size=size)
            page.show("brackets")
            page.choose("bracket-player", 2)
            for paper in A4, LETTER:
                pages = text_of(self.browser.printed(*paper))
                self.assertEqual(len(pages), 1, (size, paper))
                for team in self.pool.teams:
                    self.assertIn(team[:7], pages[0])  # a narrow column may cut a long name
                for region in "West", "Midwest", "East", "South", "Finals":
                    self.assertIn(region, pages[0])
            self.browser.close()

    def test_the_chart_on_paper_says_whose_each_line_is(self):
        page = self.open()
        page.show("road")
        self.browser.command("Emulation.setEmulatedMedia", media="print")
        # All at once: the chart, which follows the width, is made anew meanwhile.
        visible = "return Array.from(document.querySelectorAll(arguments[0]), (one) => one.checkVisibility())"
        self.assertEqual(self.browser.run(visible, ".chip .sample"), [True] * 5)
        self.assertEqual(self.browser.run(visible, ".chip span"), [False] * 5)

    def test_the_chart_on_paper_has_the_colours_of_the_light(self):
        page = self.open(dark=True)
        page.show("road")
        color_of = "return getComputedStyle(document.querySelector('.chip .line-0 polyline')).stroke"
        self.assertEqual(self.browser.run(color_of), "rgb(138, 184, 255)")
        self.browser.command("Emulation.setEmulatedMedia", media="print",
                             features=[{"name": "prefers-color-scheme", "value": "dark"}])
        self.assertEqual(self.browser.run(color_of), "rgb(16, 85, 181)")

    def test_every_part_on_paper(self):
        page = self.open()
        for state in self.every_state(page):
            text = "".join(text_of(self.browser.printed(*A4)))
            for words in ("Office Pool", *WORDS_ON_PAPER[state]):
                self.assertIn(words, text, state)


class Large(unittest.TestCase):
    """A thousand players."""

    @classmethod
    def setUpClass(cls):
        cls.pool = PagePool(players=1000, played=48)
        cls.addClassCleanup(cls.pool.close)

    def test_a_thousand_players_are_less_than_three_megabytes(self):
        self.assertLess(self.pool.size, 3_000_000)

    def work(self, browser):
        """Seconds of the page's own work since it was opened."""
        metrics = browser.command("Performance.getMetrics")["metrics"]
        return next(one["value"] for one in metrics if one["name"] == "TaskDuration")

    def test_it_opens_with_less_than_a_second_of_work(self):
        with Browser() as browser:
            browser.command("Performance.enable", timeDomain="threadTicks")  # work, however busy the machine is
            page = Page(browser, self.pool.address)
            self.assertEqual(len(page.rows("#standings")), 1000)
            work = self.work(browser)
            self.tell_times(browser, work)
            self.assertLess(work, 1)

    def tell_times(self, browser, work):
        """On the clock it takes as long as the machine lets it, which is no test; but it can be read here."""
        browser.wait(lambda: browser.run("return performance.getEntriesByName('first-contentful-paint').length"), "paint")
        built, seen = browser.run("const [page] = performance.getEntriesByType('navigation'); const [paint] = "
                                  "performance.getEntriesByName('first-contentful-paint'); "
                                  "return [page.loadEventEnd, paint.startTime]")
        print(f"1,000 players: built after {built:.0f} ms, seen after {seen:.0f} ms, work of {1000 * work:.0f} ms",
              file=sys.stderr)

    def test_every_part_opens(self):
        with Browser() as browser:
            page = Page(browser, self.pool.address)
            for tab in TABS:
                page.show(tab)
                self.assertTrue(page.by_id(tab).is_displayed())
            self.assertEqual(browser.complaints(), [])


if __name__ == "__main__":
    unittest.main()
