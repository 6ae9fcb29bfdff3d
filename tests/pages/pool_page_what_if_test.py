"""What if: the page's own answers are those of the program, whatever is supposed."""

import random
import unittest

from browser import DESKTOP, SIDEWAYS, TELEPHONE, Browser
from entry_form import CHAMPION, GAME_PLACES, TEAM_PLACES, feeders
from pool_page import Page, PagePool, row_of

COUNTED = 15  # open games up to which ways are counted

# Everybody's figures by the page's rules, for the winners of arguments[0]: pairs of a place and a row of the field.
FIGURES = """
    let results = thePool.results;
    for (const [place, row] of arguments[0]) results = withWinner(results, thePool.results, place, thePool.teams[row]);
    const { rows, outcomes } = standingsIf(thePool, results);
    return { open: openGamesOf(results).games.length, outcomes, rows: rows.map(({ place, points, possible, first }) =>
        [place, points, possible, ...(first ? [first.alone, first.shared, first.share] : [])]) };
"""


def suppose(dice, entered, most):
    """Random winners of open games, each of which has two teams by then."""
    board = {place: row_of(place) for place in TEAM_PLACES} | entered
    pairs = []
    for game in GAME_PLACES:
        teams = [board.get(place) for place in feeders(game)]
        if game not in board and None not in teams and len(pairs) < most:
            board[game] = dice.choice(teams)
            pairs.append((game, board[game]))
    return pairs


def line_of(pairs):
    return " ".join(f"{place} {row}" for place, row in pairs)


class WhatIf(unittest.TestCase):
    def open(self, pool, **options):
        self.addCleanup(pool.close)
        self.browser = Browser(**options)
        self.addCleanup(self.browser.close)
        return Page(self.browser, pool.address)

    def check_with_engine(self, pool, cases):
        engine = pool.run("engine", "".join(line_of(pairs) + "\n" for pairs in cases)).decode().splitlines()
        self.assertEqual(len(engine), len(cases))
        counted = 0
        for pairs, line in zip(cases, engine, strict=True):
            open_games, *figures = line.split()
            here = self.browser.run(FIGURES, pairs)
            self.assertEqual(here["open"], int(open_games), pairs)
            self.assertEqual(here["outcomes"], 2 ** int(open_games) if int(open_games) <= COUNTED else None, pairs)
            mine = [number for row in here["rows"] for number in row]
            self.assertEqual(len(mine), len(figures), pairs)
            for own, engines in zip(mine, figures, strict=True):
                self.assertAlmostEqual(own, float(engines), 6, pairs)
            counted += int(open_games) <= COUNTED
        return counted

    def test_200_random_choices_are_answered_as_by_the_program(self):
        pool = PagePool(players=25, played=40)  # 23 games are open
        self.open(pool)
        dice = random.Random(200)
        cases = [suppose(dice, pool.entered, dice.randint(0, 23)) for _ in range(200)]

        counted = self.check_with_engine(pool, cases)

        self.assertGreater(counted, 100)
        self.assertLess(counted, 200)

    def test_results_entered_out_of_order_are_answered_as_by_the_program(self):
        pool = PagePool(players=25, played=56, without=(16, 17, 24, 40, 50, 55, 79, 88, 110))
        self.open(pool)
        dice = random.Random(50)
        # The games left out are settled by later ones, or can be chosen.
        cases = [suppose(dice, pool.entered, dice.randint(0, 7)) for _ in range(50)]

        self.assertEqual(self.check_with_engine(pool, cases), 50)

    def rows(self, page):
        """Player, place, points, points possible and ways, as the table shows them."""
        return sorted((row[1], row[0], row[2], row[3], row[4]) for row in page.rows("#what-if-table"))

    def rows_of_engine(self, pool, pairs):
        figures = pool.run("engine", line_of(pairs) + "\n").decode().split()[1:]
        players = [figures[6 * number:6 * number + 6] for number in range(len(pool.names))]
        return sorted((f"PL, {name}", place, points, possible, str(int(alone) + int(shared)))
                      for name, (place, points, possible, alone, shared, _) in zip(pool.names, players, strict=True))

    def press(self, page, game, row):
        page.all(f'.side[data-game="{game}"]')[row].click()

    def test_pressing_teams_changes_the_standings_at_once(self):
        pool = PagePool(players=12, played=59)  # the West's winner of the South, and the last three games
        page = self.open(pool)
        page.show("what-if")
        (game,) = [game for game in (30, 61, 92, 123) if game not in pool.entered]
        self.assertEqual(self.rows(page), self.rows_of_engine(pool, []))

        lower = pool.winner_of(feeders(game)[1])
        self.press(page, game, 1)
        self.assertEqual(self.rows(page), self.rows_of_engine(pool, [(game, lower)]))
        self.assertIn("1 winner supposed; 3 games still open", page.by_id("what-if-words").text)

        final_four = [pool.winner_of(place) for place in (30, 61, 92)] + [lower]
        self.press(page, 124, 0)
        self.press(page, 125, 1)
        self.press(page, CHAMPION, 1)
        all_four = [(game, lower), (124, final_four[0]), (125, lower), (CHAMPION, lower)]
        self.assertEqual(self.rows(page), self.rows_of_engine(pool, all_four))

        self.press(page, game, 0)  # the lower team leaves the finals, too
        upper = pool.winner_of(feeders(game)[0])
        self.assertEqual(self.rows(page), self.rows_of_engine(pool, [(game, upper), (124, final_four[0])]))

        page.by_id("what-if-clear").click()
        self.assertEqual(self.rows(page), self.rows_of_engine(pool, []))

    def test_a_press_on_the_chosen_team_takes_it_back(self):
        pool = PagePool(players=5, played=60)
        page = self.open(pool)
        page.show("what-if")
        self.press(page, 124, 0)
        self.assertEqual(page.all('.side[data-game="124"]')[0].get_attribute("aria-pressed"), "true")

        self.press(page, 124, 0)

        self.assertEqual(page.all('.side[aria-pressed="true"]'), [])
        self.assertEqual(self.browser.run("return document.activeElement.dataset.game"), "124")  # the focus stays

    def test_a_players_picks_come_true_as_far_as_they_can(self):
        pool = PagePool(players=6, played=48)
        page = self.open(pool)
        page.show("what-if")

        page.choose("what-if-player", 2)
        page.by_id("what-if-picks").click()

        possible = {row[1]: row[3] for row in page.rows("#standings")}["PL, Clark 1"]
        points = {row[1]: row[2] for row in page.rows("#what-if-table")}["PL, Clark 1"]
        self.assertEqual(points, possible)

    def test_with_many_open_games_the_programs_shares_are_shown(self):
        pool = PagePool(players=6, played=20)
        page = self.open(pool, size=DESKTOP)
        shares = {row[1]: row[6] for row in page.rows("#standings")}
        page.show("what-if")
        self.press(page, 109, 0)  # a game of the first round

        self.assertEqual({row[1]: row[4] for row in page.rows("#what-if-table")}, shares)
        self.assertIn("Ways are counted once 15 are open or fewer", page.by_id("what-if-words").text)

    def test_it_is_said_what_moved_means_here(self):
        page = self.open(PagePool(players=3, played=62))
        page.show("what-if")
        self.assertIn("Moved: places that what is supposed makes, against the standings as entered.",
                      page.by_id("what-if").text)

    def first_players(self, page):
        """Place, name, points and movement of those in the short list, when all of it is in view and nothing covers it."""
        covered = self.browser.run(
            "return Array.from(document.querySelectorAll('#what-if-first li'), (line) => { "
            "const { left, width, top, height } = line.getBoundingClientRect(); "
            "return line.contains(document.elementFromPoint(left + 12, top + height / 2)) && left + width <= innerWidth; })")
        self.assertEqual(covered, [True] * 3)
        return [line.text for line in page.all("#what-if-first li")]

    def scroll_to(self, side):
        """Scrolls the page until the games begin at its top, and the games until a side is below their beginning."""
        self.browser.run("const games = document.getElementById('what-if-games'); "
                         "const top = (one) => one.getBoundingClientRect().top; "
                         "scrollBy(0, top(games)); games.scrollBy(0, top(arguments[0]) - top(games) - 110)", side)

    def test_on_a_telephone_the_first_places_stay_in_view(self):
        pool = PagePool(players=12, played=0)  # 32 games can be chosen
        self.addCleanup(pool.close)
        for size in TELEPHONE, SIDEWAYS:
            page = self.open(pool, size=size, touch=True)
            page.show("what-if")
            games = [game for game in GAME_PLACES if game % 31 in range(16, 24) and game < 124]
            for game in games[0], games[15], games[31]:
                [upper, _] = page.all(f'.side[data-game="{game}"]')
                self.scroll_to(upper)
                self.browser.tap(upper)
                rows = [row[1:3] for row in page.rows("#what-if-table")[:3]]
                shown = self.first_players(page)
                for (name, points), line in zip(rows, shown, strict=True):
                    self.assertEqual(line.split("\n")[1:3], [name, f"{points} point{'' if points == '1' else 's'}"])
                pressed = page.all(f'.side[data-game="{game}"]')[0]
                self.assertEqual(pressed.get_attribute("aria-pressed"), "true")
                self.assertTrue(self.browser.run("const { left, top, height } = arguments[0].getBoundingClientRect(); "
                                                 "return arguments[0].contains(document.elementFromPoint(left + 9, "
                                                 "top + height / 2))", pressed))  # and the game, too
            self.browser.close()

    def test_a_desktop_has_the_standings_beside_the_games(self):
        page = self.open(PagePool(players=3, played=62), size=DESKTOP)
        page.show("what-if")
        self.assertFalse(page.by_id("what-if-first").is_displayed())

    def test_there_is_nothing_to_choose_at_the_end(self):
        page = self.open(PagePool(players=3, played=63))
        page.show("what-if")

        self.assertEqual(page.by_id("what-if").text, "What if\nNo game is open.")


if __name__ == "__main__":
    unittest.main()
