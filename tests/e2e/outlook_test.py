"""The pool outlook: who can still win, by mouse and by keyboard. Nothing that is supposed there reaches a file."""

import unittest

from pool_2000 import FIELD, selection, setup_file
from program import Program, centre
from without_mouse import WithoutMouse

WHAT_IF = "What if: nothing here is saved"
AS_ENTERED = "The results as entered"

# The winners of the four regions: every upper team has won. The first two meet, the last two, then their winners.
ARIZONA, MICHIGAN, DUKE, STANFORD = 30, 61, 92, 123
SEMIFINAL_A, SEMIFINAL_B, CHAMPION = 124, 125, 126


def regions_played():
    """128 points: 32 games of 1 point, 16 of 2, 8 of 4 and 4 of 8."""
    winners = {}
    for region in range(4):
        rows = FIELD[16 * region:16 * region + 16]
        places = iter(range(31 * region + 16, 31 * region + 31))
        for step in (2, 4, 8, 16):
            for row in range(0, 16, step):
                winners[next(places)] = rows[row]
    return winners


def without_picks(winners, place_in_region, count):
    """As if nobody had been picked in so many games of one round, counted from the first region."""
    places = [31 * region + place for region in range(4) for place in place_in_region][:count]
    return {place: team for place, team in winners.items() if place not in places}


FIRST_ROUND, SECOND_ROUND = range(16, 24), range(24, 28)
PLAYED = regions_played()
RESULTS = selection(PLAYED, "X", "FinalResults")

# Ann has 128 - 32 - 16 = 80 points and needs Arizona as the champion: with both of its games she gets 12 + 16 more, and
# passes Bob, who has 128 - 28 = 100 and picked Michigan St.; each has 12 more when Duke wins. So she is first in 2 of
# the 8 outcomes, and those are among the 4 in which Arizona beats Michigan St.
ANN = selection({**without_picks(without_picks(PLAYED, FIRST_ROUND, 32), SECOND_ROUND, 8),
                 SEMIFINAL_A: "Arizona", SEMIFINAL_B: "Duke", CHAMPION: "Arizona"}, "A", "Ann")
BOB = selection({**without_picks(PLAYED, SECOND_ROUND, 14),
                 SEMIFINAL_A: "Michigan St.", SEMIFINAL_B: "Duke", CHAMPION: "Michigan St."}, "B", "Bob")


class Outlook(unittest.TestCase):
    results = RESULTS

    def setUp(self):
        self.program = self.enterContext(Program())
        self.program.write("POOLSTART.THS", setup_file())
        self.program.write("TALLYHOOP.THS", self.results)
        self.program.write("Ann_A.THC", ANN)
        self.program.write("Bob_B.THC", BOB)
        self.program.start()
        self.before = self.contents()

    def contents(self):
        return {name: self.program.read(name) for name in self.program.files()}

    def shows(self, name, text):
        self.program.wait(lambda: self.program.text(name) == text, f"{name} showing {text!r}")

    def cells(self, *headings):
        """These columns of the table, row by row."""
        table = self.program.table("grdPlayers")
        columns = [[one["text"] for one in table["headings"]].index(heading) for heading in headings]
        return [[row[column] for column in columns] for row in table["rows"]]

    def players_are(self, headings, *rows):
        self.program.wait(lambda: self.cells(*headings) == [list(row) for row in rows], f"the rows {rows}")

    def row_of(self, name):
        [row] = [row for row, [cell] in enumerate(self.cells("Player")) if name in cell]
        return row

    def as_entered(self):
        self.shows("lblWhatIf", AS_ENTERED)
        self.players_are(("Player", "Points", "Possible", "Share", "Verdict"),
                         ("B, Bob", "100", "140", "75.0 %", "Alive"), ("A, Ann", "80", "120", "25.0 %", "Alive"))


    def choose(self, name):
        self.program.click_at(centre(self.program.table("grdPlayers")["rects"][self.row_of(name)][1]))


# Bob is first in the six outcomes in which Ann is not, and the other of the two is second.
REPORT = [
    " ",
    " " * 32 + "Office Pool",
    " " * 32 + "Pool Outlook",
    " ",
    "Chances: all outcomes alike",
    "Counted: all 8 outcomes of 3 open games",
    " ",
    "  Now               Points  Poss.    First    Share   Best  Worst",
    "Place  Player Name  Earned  Score  Percent  Percent  Place  Place  Verdict",
    "-----  -----------  ------  -----  -------  -------  -----  -----  --------",
    "    1  B, Bob          100    140     75.0     75.0      1      2  Alive",
    "    2  A, Ann          080    120     25.0     25.0      1      2  Alive",
]

# Michigan St. brings Bob 12 points; Ann can still get 12, for Duke in its semifinal.
REPORT_SUPPOSED = [
    " ",
    " " * 36 + "Office Pool",
    " " * 36 + "Pool Outlook",
    " ",
    "What if: 1 supposed winner; these are not the results as entered",
    "Supposed: Michigan St. (round 5)",
    "Chances: all outcomes alike",
    "Counted: all 4 outcomes of 2 open games",
    " ",
    "  Now               Points  Poss.    First    Share   Share   Best  Worst",
    "Place  Player Name  Earned  Score  Percent  Percent  Change  Place  Place  Verdict",
    "-----  -----------  ------  -----  -------  -------  ------  -----  -----  --------",
    "    1  B, Bob          112    140    100.0    100.0   +25.0      1      1  Clinched",
    "    2  A, Ann          080    092      0.0      0.0   -25.0      2      2  Out",
]


class OutlookOnPaper(Outlook):
    def setUp(self):
        super().setUp()
        self.program.menu("mnuOptions", "mnuOutlook")
        self.as_entered()

    def saves(self, lines):
        self.program.click("cmdSaveReport")
        expected = "".join(line + "\r\n" for line in lines).encode("cp1252")
        self.program.wait(lambda: "OUTLOOK.TXT" in self.program.files(), "the report")
        self.program.wait(lambda: self.program.read("OUTLOOK.TXT").count(b"\r\n") == len(lines), "all of its lines")
        self.assertEqual(self.program.read("OUTLOOK.TXT").decode("cp1252"), expected.decode("cp1252"))

    def test_the_report_is_the_table_also_with_something_supposed(self):
        self.saves(REPORT)
        self.program.click(f"lblRegion_{MICHIGAN}")
        self.players_are(("Player", "Verdict", "Worst"), ("B, Bob", "Clinched", "1"), ("A, Ann", "Out", "2"))
        self.saves(REPORT_SUPPOSED)
        del (contents := self.contents())["OUTLOOK.TXT"]
        self.assertEqual(contents, self.before)

    def test_it_is_saved_as_a_pdf(self):
        self.program.click("cmdSavePdf")
        self.program.file_dialog("Outlook.PDF")
        self.program.wait(lambda: "Outlook.PDF" in self.program.files(), "the file")
        self.program.wait(lambda: not self.program.modal(), "the end of saving")
        self.assertEqual(self.program.read("Outlook.PDF")[:4], b"%PDF")


class OutlookBeforeTheFirstGame(Outlook):
    results = selection({}, "X", "FinalResults")

    def test_a_forecast_is_shown_and_can_be_stopped(self):
        self.program.menu("mnuOptions", "mnuOutlook")
        self.program.wait(lambda: self.program.text("lblOutcomes").startswith("All alike: forecast from "), "a forecast")
        self.program.wait(lambda: all(" % ±" in share for [share] in self.cells("Share")), "everybody's share")
        self.program.click("cmdStop")
        self.program.wait(lambda: not self.program.enabled("cmdStop"), "the end of the work")
        self.program.wait(lambda: self.program.text("lblOutcomes").startswith("Stopped. All alike: forecast from "),
                          "the word that it has stopped")
        self.assertEqual([len(self.cells("Share")), self.contents()], [2, self.before])


class OutlookByMouse(Outlook):
    def press_heading(self, text):
        [heading] = [one for one in self.program.table("grdPlayers")["headings"] if one["text"] == text]
        self.program.click_at(centre(heading["rect"]))

    def test_who_can_still_win_and_whom_to_root_for(self):
        self.program.menu("mnuOptions", "mnuOutlook")
        self.as_entered()
        self.choose("Ann")
        for place, swing in ((ARIZONA, "+50.0"), (MICHIGAN, "-50.0"), (DUKE, "0.0"), (STANFORD, "0.0")):
            self.shows(f"lblSwing_{place}", swing)
        self.speaks(ARIZONA, "Arizona, +50.0 ")
        self.speaks(MICHIGAN, "Michigan St., -50.0 ")
        self.speaks(DUKE, "Duke, does not matter")
        self.suppose_and_take_back()
        self.a_way_to_win()
        self.sorted_by_points()
        self.program.click("cmdExit")
        self.program.wait(lambda: not self.program.visible("grdPlayers"), "the board")
        self.assertEqual(self.contents(), self.before)

    def speaks(self, place, words):
        """The place with its swing, which is only drawn beside it."""
        self.assertIn(": " + words, self.program.widget(f"lblRegion_{place}")["accessibleName"])

    def suppose_and_take_back(self):
        self.program.click(f"lblRegion_{MICHIGAN}")
        self.shows(f"lblRegion_{SEMIFINAL_A}", "Michigan St.")
        self.shows("lblWhatIf", WHAT_IF)
        self.players_are(("Player", "Share", "Verdict", "Change"), ("B, Bob", "100.0 %", "Clinched", "+25.0"),
                         ("A, Ann", "0.0 %", "Out", "-25.0"))
        self.program.right_click(f"lblRegion_{SEMIFINAL_A}")
        self.shows(f"lblRegion_{SEMIFINAL_A}", "")
        self.as_entered()

    def a_way_to_win(self):
        self.program.click("cmdShowWay")
        self.shows(f"lblRegion_{CHAMPION}", "Arizona")
        self.players_are(("Player", "Share", "Verdict"), ("A, Ann", "100.0 %", "Clinched"), ("B, Bob", "0.0 %", "Out"))
        self.program.click("cmdAsEntered")
        self.as_entered()

    def sorted_by_points(self):
        self.press_heading("Points")
        self.players_are(("Player", "Points"), ("B, Bob", "100"), ("A, Ann", "80"))
        self.press_heading("Points")
        self.players_are(("Player", "Points"), ("A, Ann", "80"), ("B, Bob", "100"))


class OutlookByKeyboard(WithoutMouse, Outlook):
    def tab_to(self, is_there, what):
        for _ in range(40):
            if is_there():
                return
            self.program.key("Tab")
        self.fail(f"{what} is not reached by Tab")

    def place_with_focus(self):
        return next((place for place in range(127) if self.program.widget(f"lblRegion_{place}")["focus"]), None)

    def test_who_can_still_win_and_whom_to_root_for(self):
        self.program.key("F9")
        self.as_entered()
        self.choose_ann()
        self.suppose_and_undo()
        self.mnemonic("cmdShowWay")
        self.shows(f"lblRegion_{CHAMPION}", "Arizona")
        self.mnemonic("cmdAsEntered")
        self.as_entered()
        self.sort_by_name()
        self.program.key("Escape")
        self.program.wait(lambda: not self.program.visible("grdPlayers"), "the board")
        self.assertEqual(self.contents(), self.before)

    def choose_ann(self):
        self.tab_to(lambda: self.program.widget("grdPlayers")["focus"], "the table")
        self.program.key("Down")
        self.program.key("Down")
        self.program.key("Space")
        self.shows("lblPlayer", "Ann: Alive")
        self.shows(f"lblSwing_{ARIZONA}", "+50.0")

    def suppose_and_undo(self):
        self.tab_to(lambda: self.place_with_focus() is not None, "the bracket")
        while (place := self.place_with_focus()) != MICHIGAN:  # down the rows to the second region, then outwards
            self.program.key("Down" if place < 31 else "Right")
            self.program.wait(lambda old=place: self.place_with_focus() not in (old, None), "the next place")
        self.program.key("Space")
        self.shows(f"lblRegion_{SEMIFINAL_A}", "Michigan St.")
        self.players_are(("Player", "Verdict"), ("B, Bob", "Clinched"), ("A, Ann", "Out"))
        self.mnemonic("cmdUndo")
        self.shows(f"lblRegion_{SEMIFINAL_A}", "")
        self.as_entered()

    def sort_by_name(self):
        self.tab_to(lambda: self.program.widget("grdPlayers")["focus"], "the table")
        self.program.key("Home")
        self.program.key("Right")
        self.program.key("Ctrl+Return")
        self.players_are(("Player",), ("A, Ann",), ("B, Bob",))


if __name__ == "__main__":
    unittest.main()
