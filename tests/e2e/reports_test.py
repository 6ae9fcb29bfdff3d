"""The reports screen in the real program: all seven reports of the sample pool, to files."""

import unittest

from program import Program
from sample_pool import install

# The widths are 17, 20 and 12, so a line has 17 + 20 + 12 + 44 = 93 characters; the two titles have 20 each and stand
# behind 93 / 2 - 20 / 2 = 36.5 blanks, rounded to the even 36. Good and bad picks: 28 + 10 + 4 + 2 and 16; 29 + 7 + 2 + 1
# and 24 less the open semi-final; 27 + 6 + 2 + 1 and 27 less it; 19 + 4 + 1 and all others.
STANDINGS = [
    " ",
    " " * 36 + "2000 NCAA Tournament",
    " " * 36 + "Tournament Standings",
    " ",
    "Points" + " " * (17 + 20 + 6) + "Poss. Good   Bad  Open    Tie",
    "Earned Player Name" + " " * 9 + "File Name" + " " * 13 + "Score Picks Picks Picks Breaker Winner Picked",
    "------ -----------------   --------------------  ----- ----- ----- ----- ------- ------------",
    " 080   DP, Demo Prophet    Demo Prophet_DP.THC    120   044   016   003    160   Michigan St.",
    " 059   DF, Demo Favorite   Demo Favorite_DF.THC   071   039   023   001    152   Duke",
    " 055   DH, Demo Halfway    Demo Halfway_DH.THC    067   036   026   001    145   ",
    " 031   DL, Demo Longshot   Demo Longshot_DL.THC   031   024   039   000    131   Gonzaga",
]


class Reports(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())
        install(self.program)
        self.program.menu("mnuReports")

    def tick(self, *reports):
        for report in reports:
            self.program.click(f"chkOptions_{report}")
            self.program.wait(lambda box=f"chkOptions_{report}": self.program.widget(box)["checked"], "the tick")

    def lines(self, number):
        return self.program.read(f"RPTOPT{number}.TXT").decode("cp1252").split("\r\n")[:-1]

    def test_all_seven_go_to_their_files(self):
        self.tick(*range(7))
        self.program.click("optDestination_1")
        self.program.click("cmdPrintSelections")
        self.program.wait(lambda: "RPTOPT7.TXT" in self.program.files(), "the last report")
        self.program.wait(lambda: self.program.read("TEMPPRT.TXT") == self.program.read("RPTOPT7.TXT"), "its end")
        self.assertEqual(self.program.modal(), {})
        self.assertEqual(self.lines(1), STANDINGS)
        subtitles = ["Tournament Standings", "Player Listing", "Team Selection Summary", "Team Selection Detail",
                     "Player Selection Detail", "Projected Results by Player", "Projected Results by Team"]
        for number, subtitle in enumerate(subtitles, 1):
            self.assertIn(subtitle, [line.strip() for line in self.lines(number)])
        self.assertIn("Maximum Points = 120", "".join(self.lines(6)))

    def test_ticking_nothing_is_told_and_makes_nothing(self):
        self.program.click("optDestination_1")
        self.program.click("cmdPrintSelections")
        box = self.program.answer("OK", "Tallyhoop - frmPoolReports, PrintSelections_Click ")
        self.assertEqual(box["text"].splitlines(), ["You will need to select one of the Report Selections before",
                                                    'choosing the "Create Selected Reports" Command Button'])
        self.assertNotIn("TEMPPRT.TXT", self.program.files())


if __name__ == "__main__":
    unittest.main()
