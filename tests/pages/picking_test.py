"""Picks on the entry form move and go as on the program's board; what is half filled in stays."""

import json
import pathlib
import random
import shutil
import tempfile
import unittest

from browser import Browser
from entry_form import CHAMPION, GAME_PLACES, TEAM_PLACES, UPPER_TEAMS, Form, Pool, pool_2000


class Picking(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pool = Pool()
        cls.addClassCleanup(cls.pool.close)
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)

    def setUp(self):
        self.form = Form(self.browser, self.pool.address)
        self.browser.run("localStorage.clear()")
        self.browser.driver.refresh()

    def game_of(self, position):
        return self.form.place(position).find_element("xpath", "..").get_attribute("aria-label")

    def test_a_pick_moves_forward(self):
        self.form.press([3, 17, 24])  # Fresno St. against Wisconsin, then the place's winner, and again

        self.assertEqual(self.form.teams()[17], "Fresno St.")
        self.assertEqual(self.form.teams()[24], "Fresno St.")
        self.assertEqual(self.form.teams()[28], "Fresno St.")
        self.assertEqual(self.form.text("count"), "3 of 63")
        self.assertEqual(self.form.place(3).get_attribute("aria-pressed"), "true")
        self.assertEqual(self.form.place(2).get_attribute("aria-pressed"), "false")

    def test_changing_an_early_pick_clears_what_no_longer_fits(self):
        self.form.press_at_once(UPPER_TEAMS)  # Arizona all the way
        self.form.press([1])  # Jackson St. beats Arizona

        teams = self.form.teams()
        self.assertEqual([teams[place] for place in (16, 24, 28, 30, 124, CHAMPION)], ["Jackson St.", "", "", "", "", ""])
        self.assertEqual(teams[125], "Duke")  # what another team has won stays
        self.assertEqual(self.form.text("count"), "58 of 63")

    def test_each_game_is_announced(self):
        self.assertEqual(self.game_of(2), "West, first round: 8 Wisconsin or 9 Fresno St.")
        self.assertEqual(self.game_of(17), "West, second round: a team not yet picked or a team not yet picked")

        self.form.press([0, 2])

        self.assertEqual(self.game_of(17), "West, second round: 1 Arizona or 8 Wisconsin")
        self.assertEqual(self.game_of(30), "Semi-final of West and Midwest: a team not yet picked or a team not yet picked")
        self.assertEqual(self.browser.run("return document.getElementById('news').textContent"),
                         "Wisconsin wins. West, first round. 2 of 63.")

    def test_every_place_is_a_button_once(self):
        positions = self.browser.run("return Array.from(document.querySelectorAll('button[data-position]'), "
                                     "(button) => Number(button.dataset.position))")
        self.assertEqual(sorted(positions), list(range(127)))

    def test_higher_seeds_leaves_the_finals_and_what_is_picked(self):
        self.form.press([1])  # Jackson St., a 16th seed
        self.form.by_id("seeds").click()

        teams = self.form.teams()
        # West: 16 8, 5 4, 6 3, 7 2: the better seeds are 8 and 4, 3 and 2; then 4 and 2; then 2.
        self.assertEqual(teams[16:24], ["Jackson St.", "Wisconsin", "Texas", "LSU", "Purdue", "Oklahoma", "Louisville",
                                        "St. John's"])
        self.assertEqual(teams[24:28], ["Wisconsin", "LSU", "Oklahoma", "St. John's"])
        self.assertEqual(teams[28:31], ["LSU", "St. John's", "St. John's"])
        self.assertEqual([teams[61], teams[92], teams[123]], ["Michigan St.", "Duke", "Stanford"])
        self.assertEqual(teams[124:], ["", "", ""])
        self.assertEqual(self.form.text("count"), "60 of 63")

    def test_starting_over_asks(self):
        self.form.press([0])
        self.form.by_id("restart").click()
        self.form.by_id("sure-no").click()
        self.assertEqual(self.form.text("count"), "1 of 63")

        self.form.by_id("restart").click()
        self.form.by_id("sure-yes").click()
        self.assertEqual(self.form.text("count"), "0 of 63")
        self.assertEqual([self.form.teams()[place] for place in GAME_PLACES], [""] * 63)

    def test_any_presses_are_those_on_the_board(self):
        dice = random.Random(16)
        for _ in range(10):
            # The later places are pressed as often as the teams: what is displaced there has come far.
            places = [dice.choice(dice.choice([TEAM_PLACES, GAME_PLACES[:-1]])) for _ in range(400)]
            self.browser.run("localStorage.clear()")
            self.browser.driver.refresh()
            self.form.press_at_once(places)
            board = self.pool.file(self.without_empty(places)).decode("cp1252").split("\r\n")[:127]
            self.assertEqual(self.form.teams(), board)
            self.assertGreater(sum(team != "" for team in board), 64 + 10)

    def without_empty(self, places):
        """The presses on a place with a team: there is no pressing the others on the form."""
        board = [position if position in TEAM_PLACES else None for position in range(127)]
        kept = []
        for place in places:
            if board[place] is None:
                continue
            kept.append(place)
            self.advance(board, place)
        return kept

    @staticmethod
    def advance(board, place):
        def after(position):
            if position >= 124:
                return CHAMPION if position < CHAMPION else None
            region, offset = divmod(position, 31)
            return 124 + region // 2 if offset == 30 else 31 * region + 16 + offset // 2
        to = after(place)
        displaced = board[to]
        position = to
        while displaced is not None and displaced != board[place] and position is not None:
            if board[position] == displaced:
                board[position] = None
            position = after(position)
        board[to] = board[place]


class Closing(unittest.TestCase):
    def test_what_is_half_filled_in_survives_the_browser(self):
        pool = self.pool()
        home = pathlib.Path(tempfile.mkdtemp(prefix="tallyhoop-pages-home-"))
        self.addCleanup(shutil.rmtree, home, ignore_errors=True)
        with Browser(home=home) as browser:
            form = Form(browser, pool.address)
            form.press([1, 16])
            form.fill_in(name="Nora Lind", total="14")

        with Browser(home=home) as browser:
            form = Form(browser, pool.address)
            self.assertEqual(form.text("count"), "2 of 63")
            self.assertEqual(form.teams()[24], "Jackson St.")
            self.assertEqual(form.by_id("name").get_attribute("value"), "Nora Lind")
            self.assertEqual(form.by_id("total").get_attribute("value"), "14")

    def pool(self, *arguments, **options):
        pool = Pool(*arguments, **options)
        self.addCleanup(pool.close)
        return pool

    def test_other_teams_begin_empty(self):
        lines = pool_2000.setup_file()
        lines[64] = "Another team"
        pool, other = self.pool(), self.pool(lines)
        with Browser() as browser:
            Form(browser, pool.address).press([1])
            self.assertEqual(Form(browser, other.address).text("count"), "0 of 63")
            self.assertEqual(Form(browser, pool.address).text("count"), "1 of 63")

    def test_a_corrected_form_of_the_same_teams_goes_on(self):
        lines = pool_2000.setup_file(title="Corrected")
        lines[66], lines[92] = "Another region", "Another comment"
        pool, corrected = self.pool(), self.pool(lines, organiser="somebody.else@example.org")
        with Browser() as browser:
            Form(browser, pool.address).press([1])
            form = Form(browser, corrected.address)
            self.assertEqual(form.text("title"), "Corrected")
            self.assertEqual(form.text("count"), "1 of 63")

    def test_kept_nonsense_does_no_harm(self):
        pool = self.pool()
        with Browser() as browser:
            form = Form(browser, pool.address)
            for nonsense in ("{", "[]", "7", "null", '{"picks": 7, "name": 7}', '{"picks": [63, null, "x", {}], "email": null}',
                             '{"picks": {"length": 63, "0": 0}, "name": ["N"]}', '{"picks": [-1, 0.5, "0", true, 1e9]}'):
                browser.run("localStorage.setItem(STORE, arguments[0])", nonsense)
                browser.driver.refresh()
                self.assertEqual(form.text("count"), "0 of 63", nonsense)
                self.assertEqual(form.by_id("name").get_attribute("value"), "", nonsense)
            self.assertEqual(browser.complaints(), [])

    def test_kept_texts_are_looked_at_like_typed_ones(self):
        pool = self.pool()
        with Browser() as browser:
            form = Form(browser, pool.address)
            browser.run("localStorage.setItem(STORE, arguments[0])", json.dumps(
                {"name": "CON", "initials": "N" * 99, "total": "\u200b 0142 ", "email": "<b>nora</b>"}))
            browser.driver.refresh()

            self.assertIn("cannot be the name of a file", form.text("name-fault"))
            self.assertEqual(form.by_id("initials").get_attribute("value"), "N" * 10)
            self.assertEqual(form.by_id("total").get_attribute("value"), "142")
            self.assertEqual(form.text("total-fault"), "")
            self.assertIn('"<b>nora</b>" is no e-mail address', form.text("email-fault"))


if __name__ == "__main__":
    unittest.main()
