"""The pool's page of four players whose figures are worked out by hand."""

import unittest

from browser import TELEPHONE, Browser
from entry_form import CHAMPION, GAME_PLACES, TEAM_PLACES, feeders
from pool_page import Page, PagePool, row_of

WEST_OR_MIDWEST, EAST_OR_SOUTH = 124, 125
ARIZONA, MICHIGAN_ST, DUKE, STANFORD = 0, 16, 32, 48  # rows of the field, the first one of each region


def upper_bracket(others):
    """The upper team wins every game, but for others by game; who loses in the first round loses to none who go on."""
    board = {place: row_of(place) for place in TEAM_PLACES}
    for game in GAME_PLACES:
        board[game] = others.get(game, board[feeders(game)[0]])
    return board


def finals(west_or_midwest, east_or_south, champion):
    return {WEST_OR_MIDWEST: west_or_midwest, EAST_OR_SOUTH: east_or_south, CHAMPION: champion}


# By game the row of the field that wins there. In the first round the game 17 is that of the rows 2 and 3, 19 that of 6
# and 7, 21 that of 10 and 11, 48 that of 18 and 19, and 50 that of 22 and 23.
OTHER_PICKS = {
    "Adams": {17: 3, 19: 7, **finals(ARIZONA, DUKE, ARIZONA)},
    "Baker": finals(MICHIGAN_ST, DUKE, MICHIGAN_ST),
    "Clark": {17: 3, **finals(MICHIGAN_ST, STANFORD, STANFORD)},
    "Dunn": {17: 3, 21: 11, 48: 19, 50: 23, **finals(MICHIGAN_ST, STANFORD, MICHIGAN_ST)},
}


class FourPlayers(PagePool):
    """The upper team has won every game; the semi-final of Duke and Stanford and the final are open."""

    def __init__(self, played=63, other_picks=None, **options):
        self._other_picks = other_picks or OTHER_PICKS
        super().__init__(names=list(self._other_picks), played=played,
                         without=() if other_picks else (EAST_OR_SOUTH, CHAMPION), **options)

    def truth_of(self, dice):
        return upper_bracket({})

    def brackets_of(self, dice):
        return [upper_bracket(others) for others in self._other_picks.values()]


class ByHand(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pool = FourPlayers(predicted=("142", "147", "160", "155"))
        cls.addClassCleanup(cls.pool.close)

    def open(self, tab, pool=None, **options):
        self.browser = Browser(**options)
        self.addCleanup(self.browser.close)
        page = Page(self.browser, (pool or self.pool).address)
        page.show(tab)
        return page

    def table(self, page, selector):
        """Rows by heading, as they are seen."""
        headings = [heading.text for heading in page.all(f"{selector} thead th")]
        return [dict(zip(headings, row, strict=True)) for row in page.rows(selector)]

    def columns(self, page, selector, *names):
        return [tuple(row[name] for name in names) for row in self.table(page, selector)]

    def test_the_standings(self):
        page = self.open("standings")
        # 128 points for the regions, less one for each wrong pick of the first round: Baker 128, Clark 127, Adams 126,
        # Dunn 124. Then Adams alone gets the 12 of the semi-final and is first. Possible: Adams Duke and Arizona, 28;
        # Baker Duke, 12; Clark Stanford twice, 28; Dunn Stanford, 12.
        self.assertEqual(self.columns(page, "#standings", "Player", "Place", "Points", "Possible", "R1", "R5", "Total"), [
            ("PL, Adams", "1", "138", "166", "30", "12", "142"), ("PL, Baker", "2", "128", "140", "32", "0", "147"),
            ("PL, Clark", "3", "127", "155", "31", "0", "160"), ("PL, Dunn", "4", "124", "136", "28", "0", "155")])
        self.assertEqual(self.columns(page, "#standings", "Moved"),
                         [("\u25B2 2up 2",), ("\u25BC 1down 1",), ("\u25BC 1down 1",), ("=same place",)])

    def test_the_outlook_of_the_standings(self):
        page = self.open("standings")
        # Four outcomes, by the winner of the semi-final and the champion:
        #   Duke, Arizona      Adams 166, Baker 140, Clark 127, Dunn 124
        #   Duke, Duke         Adams 150, Baker 140, Clark 127, Dunn 124
        #   Stanford, Arizona  Adams 154, Clark 139, Dunn 136, Baker 128
        #   Stanford, Stanford Clark 155, Adams 138, Dunn 136, Baker 128
        self.assertEqual(
            self.columns(page, "#standings", "Player", "Ways", "First %", "Share %", "Verdict", "Best", "Worst"), [
                ("PL, Adams", "3", "75.0", "75.0", "Alive", "1", "2"),
                ("PL, Baker", "0", "0.0", "0.0", "Out", "2", "4"),
                ("PL, Clark", "1", "25.0", "25.0", "Alive", "1", "3"),
                ("PL, Dunn", "0", "0.0", "0.0", "Out", "3", "4")])

    def facts(self, page):
        return [(fact.find_element("tag name", "dt").text, fact.find_element("tag name", "dd").text)
                for fact in page.all(".facts > div")]

    def test_what_there_is_to_say_of_the_picks(self):
        page = self.open("picks")
        # Different picks: Adams and Baker 17, 19, 124, 126; Adams and Clark 19 and the finals; Adams and Dunn 19, 21, 48,
        # 50 and the finals; Baker and Clark 17, 125, 126; Baker and Dunn 17, 21, 48, 50, 125; Clark and Dunn 21, 48, 50, 126.
        self.assertEqual(self.facts(page), [
            ("Most-loved champion", "1 Michigan St.: 2 players of 4"),
            ("Closest pair", "PL, Baker and PL, Clark: 60 games alike of 63"),
            ("Furthest pair", "PL, Adams and PL, Dunn: 56 games alike of 63")])

    def test_equal_champions_and_pairs_are_not_passed_over(self):
        pool = FourPlayers(other_picks={name: {CHAMPION: champion} for name, champion in (
            ("Adams", DUKE), ("Baker", ARIZONA), ("Clark", DUKE), ("Dunn", ARIZONA))}, played=0)
        self.addCleanup(pool.close)
        page = self.open("picks", pool)
        # Alike in all: Adams and Clark, Baker and Dunn. The four other pairs differ in the champion.
        self.assertEqual(self.facts(page), [
            ("Most-loved champions", "1 Arizona, 1 Duke: 2 players of 4 each"),
            ("Closest pair", "PL, Adams and PL, Clark: 63 games alike of 63; as many in 1 other pair"),
            ("Furthest pair", "PL, Adams and PL, Baker: 62 games alike of 63; as many in 3 other pairs")])

    def test_the_sole_right_picks(self):
        page = self.open("picks")
        # 19 is wrong with Adams alone, 21, 48 and 50 with Dunn alone; 17 only Baker has right, and 124 only Adams.
        self.assertEqual(page.rows('[aria-label="Sole right picks"]'), [
            ["PL, Adams", "1 Arizona", "Semi-final of West and Midwest"], ["PL, Baker", "8 Wisconsin", "West, first round"]])

    def test_chalk(self):
        page = self.open("picks")
        # Baker has 8 + 1 + 2 + 1 of the 15 better seeds in each region; in the finals equal seeds meet: 48 of 60. With 17
        # and 48 the 9 is ahead of the 8 and one fewer; 19 and 50 let the 13 win, after which the 5 is the better seed in
        # the next game, and 21 the 14, after which the 6 is.
        self.assertEqual(page.rows('[aria-label="Chalk"]'), [
            ["PL, Baker", "80.0", "48 of 60"], ["PL, Adams", "78.3", "47 of 60"], ["PL, Clark", "78.3", "47 of 60"],
            ["PL, Dunn", "76.7", "46 of 60"]])

    def test_side_by_side_each_has_a_line_of_its_own(self):
        for size in TELEPHONE, (1366, 768):
            page = self.open("brackets", size=size)
            page.choose("bracket-player", 0)
            page.choose("bracket-other", 2)
            self.assertEqual(page.all(".summary")[0].text, "They differ in 4 games, 2 of them open.")
            # Adams: Duke for 12, Arizona for 16. Clark: Stanford for both.
            self.assertEqual(self.facts(page), [
                ("PL, Adams", "138 points, can still gain 28 on the other"),
                ("PL, Clark", "127 points, can still gain 28 on the other")])
            page.choose("bracket-other", 3)
            self.assertEqual(self.facts(page), [
                ("PL, Adams", "138 points, can still gain 28 on the other"),
                ("PL, Dunn", "124 points, can still gain 12 on the other")])
            self.browser.close()


if __name__ == "__main__":
    unittest.main()
