"""Every part of the pool's page, as a person uses it."""

import itertools
import unittest

from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

from browser import DESKTOP, TABLET, TELEPHONE, Browser
from entry_form import CHAMPION, GAME_PLACES
from pool_page import TABS, Page, PagePool

POINTS = 1, 2, 4, 8, 12, 16
TITLES = "Standings", "Brackets", "What if", "Picks", "The road"


def round_of(game):
    return 6 if game == CHAMPION else 5 if game > 123 else sum(game % 31 >= first for first in (16, 24, 28, 30))


class Tabs(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        totals = [str(number) for number in range(91, 109)]  # with two digits and with three
        cls.pool = PagePool(players=20, played=50, predicted=["", *totals, "many"])
        cls.addClassCleanup(cls.pool.close)

    def open(self, **options):
        self.browser = Browser(**options)
        self.addCleanup(self.browser.close)
        self.page = Page(self.browser, self.pool.address)
        return self.page

    def player(self, number):
        return f"PL, {self.pool.names[number]}"

    def losers(self):
        """The rows of the field that are out: another team has won the game that they came to."""
        out = set()
        for row in range(64):
            game = self.after(31 * (row // 16) + row % 16)
            while self.pool.entered.get(game) == row and game != CHAMPION:
                game = self.after(game)
            if self.pool.entered.get(game, row) != row:
                out.add(row)
        return out

    @staticmethod
    def after(place):
        if place > 123:
            return CHAMPION
        region, offset = divmod(place, 31)
        return 124 + region // 2 if offset == 30 else 31 * region + 16 + offset // 2

    def test_each_tab_shows_its_part_alone_at_every_size(self):
        for size in TELEPHONE, TABLET, DESKTOP:
            for dark in False, True:
                page = self.open(size=size, dark=dark)
                for tab, title in zip(TABS, TITLES, strict=True):
                    page.show(tab)
                    shown = [panel.get_attribute("id") for panel in page.all("[role=tabpanel]") if panel.is_displayed()]
                    self.assertEqual(shown, [tab])
                    self.assertEqual(page.by_id(tab).find_element(By.TAG_NAME, "h2").text, title)
                    self.assertEqual(page.by_id(f"tab-{tab}").get_attribute("aria-selected"), "true")
                self.assertEqual(self.browser.complaints(), [])
                self.browser.close()

    def focused(self):
        return self.browser.driver.switch_to.active_element.get_attribute("id")

    def test_the_tabs_by_keyboard(self):
        self.open()
        self.browser.type(Keys.TAB)
        self.assertEqual(self.focused(), "tab-standings")
        for key, tab in ((Keys.RIGHT, "brackets"), (Keys.END, "road"), (Keys.RIGHT, "standings"), (Keys.LEFT, "road"),
                         (Keys.HOME, "standings")):
            self.browser.type(key)
            self.assertEqual(self.focused(), f"tab-{tab}")
            self.assertTrue(self.page.by_id(tab).is_displayed())
        self.browser.type(Keys.TAB)
        self.assertEqual(self.focused(), "search")  # past the other tabs

    def test_the_standings_are_the_programs(self):
        self.open()
        figures = self.pool.run("engine", "\n").decode().split()[1:]
        engine = {self.player(number): figures[6 * number:6 * number + 5] for number in range(20)}

        for place, name, points, possible, _, ways, *_ in self.page.rows("#standings"):
            *three, alone, shared = engine[name]
            self.assertEqual([place, points, possible], three)
            self.assertEqual(int(ways), int(alone) + int(shared))

    def column(self, index):
        return [row[index] for row in self.page.rows("#standings")]

    def test_a_heading_sorts_and_sorts_back(self):
        self.open()
        heading = self.page.all("#standings .heading")[3]  # points possible
        heading.click()
        self.assertEqual(self.column(3), sorted(self.column(3), key=int, reverse=True))
        self.assertEqual(heading.find_element(By.XPATH, "..").get_attribute("aria-sort"), "descending")

        heading.click()
        self.assertEqual(heading.find_element(By.XPATH, "..").get_attribute("aria-sort"), "ascending")
        self.assertEqual(self.column(3), sorted(self.column(3), key=int))
        self.assertEqual(len(self.page.all("[aria-sort]")), 1)
        self.assertEqual(self.browser.run("return document.getElementById('news').textContent"),
                         "Sorted by Possible, reversed.")

    def test_totals_are_sorted_as_numbers_and_who_has_none_comes_last(self):
        self.open()
        heading = self.page.all("#standings .heading")[-1]
        for numbers in range(108, 90, -1), range(91, 109):
            heading.click()
            totals = self.column(-1)
            self.assertEqual(totals[:18], [str(number) for number in numbers])
            self.assertEqual(sorted(totals[18:]), ["", "many"])

    def test_the_search_finds_by_part_of_a_name(self):
        self.open()
        self.page.by_id("search").send_keys("ADAM")
        self.assertEqual(sorted(self.column(1)), ["PL, Adams 1", "PL, Adams 2"])
        self.assertEqual(self.page.by_id("search-count").text, "2 of 20 players")

        self.page.by_id("search").send_keys(Keys.BACKSPACE * 4)
        self.assertEqual(len(self.column(1)), 20)

    def test_a_row_leads_to_the_bracket(self):
        self.open()
        self.page.all('#standings [data-player="7"]')[0].click()

        self.assertTrue(self.page.by_id("brackets").is_displayed())
        self.assertTrue(self.page.all(".summary")[0].text.startswith(f"{self.player(7)}: place "))
        self.assertEqual(self.page.by_id("bracket-player").get_attribute("value"), "7")

    def expected_marks(self, number):
        """Mark by game, by the rule: right, wrong or a team that is out, or open."""
        bracket, losers = self.pool.brackets[number], self.losers()
        return {game: "=" if self.pool.entered.get(game) == bracket[game]
                else "X" if game in self.pool.entered or bracket[game] in losers else "" for game in GAME_PLACES}

    def test_a_bracket_has_its_marks(self):
        self.open()
        self.page.show("brackets")
        self.page.choose("bracket-player", 5)

        shown = self.browser.run("return Array.from(document.querySelectorAll('.part'), (part) => Array.from("
                                 "part.querySelectorAll('.pick:not(.team)'), (pick) => [pick.querySelector('.team').textContent,"
                                 " pick.querySelector('.mark > span').textContent]))")
        marks = self.expected_marks(5)
        for part in range(5):
            games = [game for game in GAME_PLACES if min(game // 31, 4) == part]
            self.assertEqual(shown[part], [[self.pool.teams[self.pool.brackets[5][game]], marks[game]] for game in games])
        self.assertEqual({"=", "X", ""}, set(marks.values()))

    def test_a_telephone_shows_one_region_at_a_time(self):
        page = self.open(size=TELEPHONE, touch=True)
        page.show("brackets")
        for part in range(5):
            self.browser.tap(page.all(".parts button")[part])
            shown = [index for index, one in enumerate(page.all(".part")) if one.is_displayed()]
            self.assertEqual(shown, [part])
            self.assertEqual(page.all(".parts [aria-pressed=true]")[0].get_attribute("data-part"), str(part))

    def gain(self, one, other):
        losers = self.losers()
        return sum(POINTS[round_of(game) - 1] for game in GAME_PLACES
                   if game not in self.pool.entered and one[game] != other[game] and one[game] not in losers)

    def test_two_players_side_by_side(self):
        page = self.open()
        page.show("brackets")
        page.choose("bracket-player", 3)
        page.choose("bracket-other", 11)
        mine, others = self.pool.brackets[3], self.pool.brackets[11]
        different = [game for game in GAME_PLACES if mine[game] != others[game]]
        open_games = [game for game in different if game not in self.pool.entered]

        summary = page.all(".summary")[0].text
        self.assertEqual(summary, f"They differ in {len(different)} games, {len(open_games)} of them open.")
        for fact, gain in zip(page.all("#brackets .facts dd"), (self.gain(mine, others), self.gain(others, mine)), strict=True):
            self.assertTrue(fact.text.endswith(f" points, can still gain {gain} on the other"), fact.text)
        rows = page.rows(".versus")
        self.assertEqual(len(rows), len(different))
        self.assertEqual(sum(int(row[5] or 0) for row in rows), self.gain(mine, others))
        self.assertEqual(sum(int(row[6] or 0) for row in rows), self.gain(others, mine))

        page.by_id("versus-all").click()
        self.assertEqual(len(page.rows(".versus")), 63)

    def test_picks_of_a_game(self):
        page = self.open()
        page.show("picks")
        for game in CHAMPION, 30, 16:
            page.choose("picks-game", game)
            picked = {}
            for number, bracket in enumerate(self.pool.brackets):
                picked.setdefault(self.pool.teams[bracket[game]], []).append(self.player(number))
            rows = page.rows('#picks [aria-label="Picks of the game"]')
            self.assertEqual(len(rows), len(picked))
            for team, count, percent, _, who in rows:
                players = next(players for name, players in picked.items() if name in team)
                self.assertEqual(count, str(len(players)))
                self.assertEqual(percent, f"{100 * len(players) / 20:.1f}")
                if len(players) <= 12:
                    self.assertEqual(who, ", ".join(sorted(players)))

    def test_the_closest_and_the_furthest_pair_are_named(self):
        page = self.open()
        page.show("picks")
        alike = {}
        for one, other in itertools.combinations(range(20), 2):
            count = sum(self.pool.brackets[one][game] == self.pool.brackets[other][game] for game in GAME_PLACES)
            alike.setdefault(count, set()).add(f"{self.player(one)} and {self.player(other)}: {count} games alike of 63")
        _, closest, furthest = [fact.text.split(";")[0] for fact in page.all("#picks .facts dd")]  # "; as many in 1 other pair"
        self.assertIn(closest, alike[max(alike)])
        self.assertIn(furthest, alike[min(alike)])

    def test_many_names_are_behind_a_button(self):
        page = self.open()
        page.show("picks")
        most = max(GAME_PLACES[:8], key=lambda game: sum(one[game] == self.pool.brackets[0][game] for one in self.pool.brackets))
        page.choose("picks-game", most)
        page.all("#picks summary")[0].click()
        details = page.all("#picks details")[0]
        self.browser.wait(lambda: details.find_elements(By.CLASS_NAME, "link"), "names")
        names = details.find_elements(By.CLASS_NAME, "link")
        self.assertEqual(len(names), sum(one[most] == self.pool.brackets[0][most] for one in self.pool.brackets))

    def test_the_road_has_the_chances_and_the_points(self):
        page = self.open()
        standings = {row[1]: row for row in page.rows("#standings")}
        page.show("road")
        self.assertEqual(len(page.all("#road-chart polyline")), 5)
        for row in page.rows("#road-table"):
            self.assertEqual(row[-1], standings[row[0]][7])  # the share now

        page.choose("road-kind", "points")
        for row in page.rows("#road-table"):
            rounds = [int(points) for points in standings[row[0]][11:17]]
            self.assertEqual([int(points) for points in row[1:]], [0, rounds[0], sum(rounds[:2]), sum(rounds[:3])])

    def test_players_come_and_go_on_the_road(self):
        page = self.open()
        page.show("road")
        page.all(".chip")[0].click()
        self.assertEqual(len(page.all("#road-chart polyline")), 4)
        shown = [row[0] for row in page.rows("#road-table")]
        other = next(number for number in range(20) if self.player(number) not in shown)
        page.choose("road-player", other)
        self.assertEqual([row[0] for row in page.rows("#road-table")], [*shown, self.player(other)])


class Odd(unittest.TestCase):
    """Pools that are not yet much of one."""

    def open(self, **options):
        pool = PagePool(**options)
        self.addCleanup(pool.close)
        browser = Browser()
        self.addCleanup(browser.close)
        return browser, Page(browser, pool.address)

    def test_without_players_there_are_the_standings_alone(self):
        browser, page = self.open(players=0)
        self.assertEqual([tab.text for tab in page.all("[role=tab]")], ["Standings"])
        self.assertEqual(browser.complaints(), [])

    def test_before_the_first_game_and_after_the_last_every_tab_opens(self):
        for players, played in (1, 0), (2, 0), (1, 63), (3, 63):
            browser, page = self.open(players=players, played=played)
            for tab in TABS:
                page.show(tab)
                self.assertTrue(page.by_id(tab).is_displayed())
            self.assertEqual(browser.complaints(), [], (players, played))
            browser.close()


if __name__ == "__main__":
    unittest.main()
