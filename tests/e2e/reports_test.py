"""The reports screen in the real program: all seven reports of the sample pool, to files and as PDF."""

import pathlib
import subprocess
import sys
import unittest

from program import Program, centre
from sample_pool import install

sys.path.append(str(pathlib.Path(__file__).parents[1] / "approved/messy"))
import reckon  # a second calculation of the reports, which shares nothing with the program

# The widths are 17, 20 and 12, so a line has 17 + 20 + 12 + 44 = 93 characters; the two titles have 20 each and
# follow 93 / 2 - 20 / 2 = 36.5 blanks, rounded to the even 36. Good and bad picks: 28 + 10 + 4 + 2 and 16; 29 + 7 + 2 + 1
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


def lines_of(program, name):
    return program.read(name).decode("cp1252").split("\r\n")[:-1]


def reckoned(program):
    """The bytes that the seven report files of a program folder must have, by number."""
    reckon.TITLE = "2000 NCAA Tournament"

    def numbered(name):  # lines are counted from 1
        return [""] + lines_of(program, name)

    players = sorted((name for name in program.files() if name.upper().endswith(".THC")), key=reckon.fold)
    pool = [(name, numbered(name)) for name in players]
    results = numbered("TALLYHOOP.THS")
    four = ["", *(results[winner] for winner in (31, 62, 93, 124))]
    reports = [reckon.standings(pool, results), reckon.listing(lines_of(program, "PLAYERNAMES.CSV")),
               reckon.summary(pool), reckon.detail(pool), reckon.player_detail(pool),
               reckon.by_player(pool, results, four), reckon.by_team(pool, results, four)]
    return {number: "".join(line + "\r\n" for line in lines).encode("cp1252")
            for number, lines in enumerate(reports, 1)}


def pages(text):
    """The non-empty lines of each page, without trailing blanks; pages without any are left out."""
    sheets = [[line.rstrip(" ") for line in sheet.splitlines() if line.strip(" ")] for sheet in text.split("\f")]
    return [sheet for sheet in sheets if sheet]


class Reports(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())
        install(self.program)
        self.program.menu("mnuReports")

    def tick(self, *reports):
        for report in reports:
            self.program.click(f"chkOptions_{report}")
            self.program.wait(lambda box=f"chkOptions_{report}": self.program.widget(box)["checked"], "the tick")

    def create(self):
        self.program.click("optDestination_1")
        self.program.click("cmdPrintSelections")

    def test_all_seven_go_to_their_files(self):
        expected = reckoned(self.program)
        self.tick(*range(7))
        self.create()
        self.program.wait(lambda: "RPTOPT7.TXT" in self.program.files(), "the last report")
        self.program.wait(lambda: self.program.read("TEMPPRT.TXT") == self.program.read("RPTOPT7.TXT"), "its end")
        self.assertEqual(self.program.modal(), {})
        self.assertEqual(lines_of(self.program, "RPTOPT1.TXT"), STANDINGS)
        for number in range(1, 8):
            self.assertEqual(self.program.read(f"RPTOPT{number}.TXT"), expected[number], f"report {number}")
        self.assertEqual(self.program.errors(), "")

    def test_reports_saved_as_pdf_keep_their_columns_and_pages(self):
        expected = reckoned(self.program)
        self.tick(0, 3, 4)  # one page; four pages upright; the widest, a page for each player
        names = {1: "Tournament Standings.PDF", 4: "Team Selection Detail.PDF", 5: "Player Selection Detail.PDF"}
        self.program.click("cmdSavePdf")
        self.program.box("Save as PDF: choose the folder")
        self.program.file_dialog("")
        self.program.wait(lambda: set(names.values()) <= set(self.program.files()), "the files")
        self.program.wait(lambda: not self.program.modal(), "the end of saving")
        for number, name in names.items():
            text = expected[number].decode("cp1252").replace("\r\n", "\n")
            self.assertEqual(self.printed(name), pages(text), f"report {number}")
        self.assertNotIn("TEMPPRT.TXT", self.program.files())

    def test_the_web_page_is_the_one_of_the_command_line(self):
        self.program.key("F12")
        self.program.box("Save as Web Page")
        self.program.file_dialog("for everybody")
        self.program.wait(lambda: self.program.text("explanation") == "Saved for everybody.HTML.", "the page")
        made = self.program.on_command_line("page")
        self.assertEqual(self.program.read("for everybody.HTML"), made)
        self.assertIn(b"Demo Prophet", made)

    def test_the_web_page_is_mailed_with_a_report(self):
        self.tick(0)
        self.program.click("optDestination_2")
        self.program.click("chkWebPage")
        self.program.click("cmdPrintSelections")
        self.program.wait(lambda: self.program.visible("cmdSend"), "the mail")
        made = self.program.on_command_line("page")
        self.assertEqual(self.program.read("POOL.HTML"), made)
        self.assertIn("RPTOPT1.TXT", self.program.files())

    def printed(self, name):
        """What a PDF says, without its left margin."""
        text = subprocess.run(["pdftotext", "-layout", "-fixed", "6", self.program.folder / name, "-"],
                              capture_output=True, check=True, text=True).stdout
        sheets = pages(text)
        margin = min(len(line) - len(line.lstrip(" ")) for sheet in sheets for line in sheet)
        return [[line[margin:] for line in sheet] for sheet in sheets]

    def test_ticking_nothing_shows_a_message_and_makes_nothing(self):
        self.create()
        box = self.program.answer("OK", "Tallyhoop - frmPoolReports, PrintSelections_Click ")
        self.assertEqual(box["text"].splitlines(), ["You will need to select one of the Report Selections before",
                                                    'choosing the "Create Selected Reports" Command Button'])
        self.assertNotIn("TEMPPRT.TXT", self.program.files())

    def test_a_scored_selection_is_printed_by_the_board_once_everything_is_chosen(self):
        self.program.click("cmdSelectedPrintouts")
        box = self.program.answer("OK", "Tallyhoop - frmPoolReports, cmdSelectedPrintouts")
        self.assertEqual(box["text"].splitlines(), ["You need to make a selection from one of the two options",
                                                    "for selected printouts.  Please try again."])
        self.program.click("optSelected_0")
        self.program.click("cmdSelectedPrintouts")
        box = self.program.answer("OK", "Tallyhoop - frmPoolReports, cmdSelectedPrintouts")
        self.assertEqual(box["text"].splitlines(), ["You must select one of the entries from the list ",
                                                    "of File Names for display.", "",
                                                    "Make a selection and then retry."])
        self.assertTrue(self.program.visible("optSelected_0"))
        self.program.click_at(centre(self.program.table("filList")["rects"][3][0]))
        self.program.click("cmdSelectedPrintouts")
        self.program.cancel_printing()
        self.assertFalse(self.program.visible("optSelected_0"))
        self.assertEqual(self.program.text("txtPlayerName"), "Demo Prophet")
        self.assertEqual(self.program.text("txtPointScore"), "Points: 80 / 120")
        self.program.menu("mnuReports")
        self.program.wait(lambda: self.program.visible("optSelected_0"), "the reports coming back")
        self.assertFalse(self.program.widget("optSelected_0")["checked"])
        self.assertFalse(self.program.widget("optSelected_1")["checked"])

    def test_custom_reporting_opens_the_scores_in_front_of_the_results(self):
        self.program.click("cmdCustomReport")
        self.program.wait(lambda: self.program.visible("msgScoreDisplay"), "the scores")
        self.assertFalse(self.program.visible("cmdCustomReport"))
        self.assertEqual(self.program.text("txtPlayerName"), "FinalResults")
        self.program.wait(lambda: any(window["active"] and window["name"] == "frmPoolMisc"
                                      for window in self.program.windows()), "the scores in front")


if __name__ == "__main__":
    unittest.main()
