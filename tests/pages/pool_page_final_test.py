"""The pool's page after the last game, as the program without windows makes it: places, prizes, and nothing but text."""

import os
import pathlib
import subprocess
import unittest

from browser import DESKTOP, TABLET, TELEPHONE, Browser
from look_test import A4, LETTER, text_of
from pool_page import CHAMPION, HERE, TABS, Page, PagePool, feeders, pool_2000
from safety_test import HOSTILE

CLI = pathlib.Path(os.environ.get("TALLYHOOP_BUILD", HERE.parents[1] / "build")) / "cli/tallyhoop-cli"

# 10.00 from each of five players are 50.00: 70 % of them 35.00, 30 % of them 15.00.
PRIZES = ["Item,Which,Value", "Entry fee,,10.00", "Prize,1,70 %", "Prize,2,30 %"]
SPLIT = ["Fees: 50.00 (5 players, 10.00 each)", "Prizes: 50.00"]

SHEET = "#final > .scroller"
TIES = "#final .ties"

LONG_NAME = "Bartholomew Featherstonehaugh-Cholmondeley"
ALL_RIGHT = 32 * 1 + 16 * 2 + 8 * 4 + 4 * 8 + 2 * 12 + 16
PREDICTED = "142", "147", "160", "155", "90"


class Settled(PagePool):
    """Three players have every game right, the fourth all but the champion, the fifth has nothing."""

    def __init__(self, names, total="150", played=63, prizes=PRIZES, predicted=PREDICTED, fault=False, **options):
        """fault: whether the program has something to say of it."""
        self.status = 1 if fault else 0
        super().__init__(names=names, played=played, total=total, predicted=predicted, prizes=prizes, **options)

    def brackets_of(self, dice):
        [loser] = {self.truth[place] for place in feeders(CHAMPION)} - {self.truth[CHAMPION]}
        return [self.truth, self.truth, self.truth, {**self.truth, CHAMPION: loser}, {}]

    def made_page(self):
        made = subprocess.run([CLI, "--folder", self.folder, "page"], capture_output=True)
        if made.returncode != self.status:
            raise AssertionError(made.stderr)
        return made.stdout


class Final(unittest.TestCase):
    names = "Adams", "Baker", "Clark", "Dunn", "Evans"

    def open(self, pool=None, show=True, **options):
        if pool is None:
            pool = Settled(self.names)
            self.addCleanup(pool.close)
        self.browser = Browser(**options)
        self.addCleanup(self.browser.close)
        page = Page(self.browser, pool.address)
        if show:
            page.show("final")
        return page

    def pool(self, *arguments, **options):
        pool = Settled(*arguments, **options)
        self.addCleanup(pool.close)
        return pool

    def notes(self, page):
        return [note.text for note in page.all("#final > p")]

    def headings(self, page):
        return [heading.text for heading in page.all(f"{SHEET} thead th")]

    def test_the_total_tells_apart_who_has_the_same_points(self):
        page = self.open()
        # The total is 150: Baker is 3 off, Adams 8, Clark 10.
        self.assertEqual(page.rows(SHEET), [
            ["1", "PL, Baker", "35.00", str(ALL_RIGHT), "147", "-3"],
            ["2", "PL, Adams", "15.00", str(ALL_RIGHT), "142", "-8"],
            ["3", "PL, Clark", "", str(ALL_RIGHT), "160", "+10"],
            ["4", "PL, Dunn", "", str(ALL_RIGHT - 16), "155", "+5"],
            ["5", "PL, Evans (last)", "", "0", "90", "-60"]])
        self.assertEqual(self.notes(page), ["The tournament is over", "Total points of the final: 150",
                                            "Ties: the nearest prediction is ahead", *SPLIT])
        self.assertEqual(self.browser.complaints(), [])

    def test_without_the_total_places_are_shared(self):
        page = self.open(self.pool(self.names, total=""))
        # 35.00 + 15.00 + nothing for the third: 50.00 are three times 16.66, and 2 cents for the first two. Among equal
        # points the standings list the later name in the alphabet first.
        self.assertEqual([row[:3] for row in page.rows(SHEET)], [
            ["1=", "PL, Clark", "16.67"], ["1=", "PL, Baker", "16.67"], ["1=", "PL, Adams", "16.66"],
            ["4", "PL, Dunn", ""], ["5", "PL, Evans (last)", ""]])
        self.assertIn("Total points of the final: not entered, so equal points share a place", self.notes(page))
        self.assertIn("Shared prizes: odd cents go to those who are listed first", self.notes(page))

    def test_before_the_total_is_known_each_tie_has_the_total_at_which_it_turns(self):
        page = self.open(self.pool(self.names, total=""))
        # In the middle of 142 and 147 is 144.5, of 142 and 160 it is 151, of 147 and 160 it is 153.5.
        self.assertCountEqual(page.rows(TIES), [
            ["1", "PL, Adams (142)", "144", "", "PL, Baker (147)", "145"],
            ["1", "PL, Adams (142)", "150", "151", "PL, Clark (160)", "152"],
            ["1", "PL, Baker (147)", "153", "", "PL, Clark (160)", "154"]])
        self.assertEqual(page.all(f"{TIES} h3")[0].text, "Ties, by the total points of the final")
        self.assertEqual(self.headings(page), ["Place", "Player", "Prize", "Points", "Predicted"])  # nobody is off yet

    def test_there_are_no_ties_to_turn_once_the_total_is_known(self):
        page = self.open()
        self.assertEqual(page.all(TIES), [])

    def test_without_prizes_there_is_no_such_column(self):
        page = self.open(self.pool(self.names, prizes=None))
        self.assertEqual(self.headings(page), ["Place", "Player", "Points", "Predicted", "Off"])

    def test_a_sheet_that_cannot_be_made_leaves_its_reason_and_no_table(self):
        page = self.open(self.pool(self.names, predicted=("142", "147", "160", "155", "99999"), fault=True))
        self.assertEqual(self.notes(page)[0], "There is no final sheet.")
        self.assertIn("Player 0004.THC", self.notes(page)[1])
        self.assertEqual(page.all("#final table"), [])

    def test_every_name_leads_to_the_bracket(self):
        pool = self.pool(self.names, total="")
        for table, row, name in ((SHEET, 0, "Clark"), (SHEET, 4, "Evans"), (TIES, 0, "Adams")):
            page = self.open(pool)
            page.all(f"{table} tbody tr")[row].find_element("css selector", ".link").click()
            self.assertTrue(page.by_id("brackets").is_displayed())
            self.assertTrue(page.all(".summary")[0].text.startswith(f"PL, {name}: place "), name)
            self.browser.close()

    def test_it_is_sorted_by_its_headings(self):
        page = self.open(self.pool(self.names, total=""))
        for heading, once, twice in (
                (4, ["160", "155", "147", "142", "90"], ["90", "142", "147", "155", "160"]),  # predicted
                (0, ["1=", "1=", "1=", "4", "5"], ["5", "4", "1=", "1=", "1="]),
                (2, ["16.67", "16.67", "16.66", "", ""], ["16.66", "16.67", "16.67", "", ""])):  # prize
            for expected in once, twice:
                page.all(f"{SHEET} .heading")[heading].click()
                self.assertEqual([row[heading] for row in page.rows(SHEET)], expected)

    def test_from_the_last_four_on_it_says_what_would_be(self):
        page = self.open(self.pool(self.names, played=60))
        self.assertEqual(self.notes(page)[0], "If it ended like this: 3 games are open")
        # Regions alone: without the semi-finals' 24 and the final's 16.
        self.assertEqual(page.rows(SHEET)[0][3], str(ALL_RIGHT - 40))

    def test_before_the_last_four_there_is_no_such_tab(self):
        page = self.open(self.pool(self.names, played=59), show=False)
        self.assertEqual([tab.get_attribute("id") for tab in page.all("[role=tab]")], [f"tab-{tab}" for tab in TABS])

    def test_hostile_names_are_text(self):
        names = HOSTILE[:5]
        page = self.open(self.pool(names, field=pool_2000.setup_file(title=HOSTILE[0])))
        self.assertEqual([row[1] for row in page.rows(SHEET)],
                         [f"PL, {names[1]}", f"PL, {names[0]}", f"PL, {names[2]}", f"PL, {names[3]}",
                          f"PL, {names[4]} (last)"])
        self.assertEqual(self.browser.driver.title, HOSTILE[0])
        self.assertEqual(self.browser.run("return document.querySelectorAll('script').length"), 2)
        self.assertEqual(self.browser.run("return document.querySelectorAll('img, b, iframe').length"), 0)
        self.assertEqual(self.browser.complaints(), [])

    def test_axe_core_finds_nothing_at_any_size_in_light_and_dark(self):
        pools = [self.pool((LONG_NAME, *self.names[1:]), total=total) for total in ("150", "")]  # the second has ties
        for size in TELEPHONE, TABLET, DESKTOP:
            for dark in False, True:
                for pool in pools:
                    page = self.open(pool, size=size, dark=dark, touch=size != DESKTOP)
                    self.assertEqual(len(page.all(TIES)), pools.index(pool))
                    self.assertEqual(self.browser.axe_findings(), [], (size, dark))
                    self.assertEqual(self.browser.run("return [innerWidth, document.documentElement.scrollWidth]"),
                                     [size[0], size[0]])
                    self.browser.close()

    def test_a_telephone_shows_the_prizes_beside_long_names(self):
        page = self.open(self.pool((*self.names[:4], LONG_NAME)), size=TELEPHONE, touch=True)
        [prize] = [cell for cell in page.all("#final tbody tr:first-child > *") if cell.text == "35.00"]
        self.assertLessEqual(self.browser.run("return arguments[0].getBoundingClientRect().right", prize), TELEPHONE[0] - 10)

    def test_it_is_printed_whole(self):
        for size, dark in ((TELEPHONE, True), (DESKTOP, False)):
            self.open(size=size, dark=dark)
            for paper in A4, LETTER:
                [text] = text_of(self.browser.printed(*paper))
                for words in (*(f"PL, {name}" for name in self.names), "Final sheet", "35.00", "15.00", *SPLIT):
                    self.assertIn(words, text)
            self.browser.close()


if __name__ == "__main__":
    unittest.main()
