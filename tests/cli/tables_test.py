"""Tables for spreadsheets: the rows of the reports, as another program reads them."""

import collections
import csv
import io
import re
import unittest

from pools import APPROVED, Folder, messy_pool, sample_pool, small_pool


# A team in 29 columns, and how many send it into each round.
SUMMARY_ROW = "(.{29})" + r" *(\d+)" * 6


def picks_in(file):
    """Each round, 1 to 6, and the team that is picked as a winner there."""
    places = file.read_bytes().decode("cp1252").split("\r\n")[:127]
    rounds = [0] * 16 + [1] * 8 + [2] * 4 + [3] * 2 + [4]
    return [(round, team) for round, team in zip(rounds * 4 + [5, 5, 6], places) if round]


class Tables(unittest.TestCase):
    def setUp(self):
        self.folder = Folder(self)

    def rows(self, *words):
        done = self.folder.run("csv", *words)
        self.assertTrue(done.stdout.startswith(b"\xef\xbb\xbf"), "a byte order mark")
        self.assertTrue(done.stdout.endswith(b"\r\n"))
        return list(csv.reader(io.StringIO(done.stdout.decode("utf-8-sig"), newline="")))

    def report_rows(self, pool, name, pattern):
        text = (APPROVED / pool / name).read_bytes().decode("cp1252")
        return [match.groups() for line in text.split("\r\n") if (match := re.fullmatch(pattern, line))]

    def test_the_standings_are_the_rows_of_the_report(self):
        small_pool(self.folder)
        header, *rows = self.rows("standings")
        self.assertEqual(header, ["Points Earned", "Player Name", "File Name", "Poss. Score", "Good Picks", "Bad Picks",
                                  "Open Picks", "Tie Breaker", "Winner Picked"])
        # A name and a file, without two blanks in them; numbers of three digits.
        pattern = r" (\d+) +(\w+, \w+) +(\S+) +(\d+) +(\d+) +(\d+) +(\d+) +(\d+) +(.*)"
        expected = [[str(int(cell)) if cell.isdigit() else cell for cell in row]
                    for row in self.report_rows("small", "RPTOPT1.TXT", pattern)]
        self.assertEqual(len(expected), 4)
        self.assertEqual(rows, expected)

    def test_the_picks_are_the_rows_of_the_summary(self):
        small_pool(self.folder)
        header, *rows = self.rows("picks")
        self.assertEqual(header[0], "Team")
        expected = [[row[0].rstrip(), *(str(int(cell)) for cell in row[1:])]
                    for row in self.report_rows("small", "RPTOPT3.TXT", SUMMARY_ROW)]
        self.assertGreater(len(expected), 30)
        self.assertEqual(rows, expected)

    def test_the_picks_of_awkward_names_are_counted_whole(self):
        messy_pool(self.folder)
        rows = self.rows("picks")[1:]
        # The report has the same teams, but "Miami, Ohio" is "Miami" there, without the rounds after the comma; those
        # of players with a comma in their names are lost to the others, too.
        teams = [row[0].rstrip() for row in self.report_rows("messy", "RPTOPT3.TXT", SUMMARY_ROW)]
        self.assertEqual([row[0].removeprefix("'").rstrip() for row in rows],
                         ["Miami, Ohio" if team == "Miami" else team for team in teams])
        picked = collections.Counter()
        for file in self.folder.path.iterdir():
            if file.suffix.upper() == ".THC":
                picked.update((team, round) for round, team in picks_in(file) if team)
        counted = collections.Counter()  # teams that differ in case alone have several rows, as in the report
        for row in rows:
            team = row[0] if row[0] in {team for team, _ in picked} else row[0].removeprefix("'")
            counted.update({(team, round): int(cell) for round, cell in enumerate(row[1:], 1) if cell != "0"})
        self.assertEqual(counted, picked)

    def test_the_picks_by_player_name_each_player(self):
        small_pool(self.folder)
        self.assertIn(["CEDAR RAPIDS", "Adams_AB", "1", "1", "1", "1", "1", "1"], self.rows("picks-by-player"))
        self.assertIn(["CEDAR RAPIDS", "Dunn_EF", "1", "1", "1", "1", "1", "0"], self.rows("picks-by-player"))

    def test_the_outlook_is_there_with_its_chances(self):
        sample_pool(self.folder)
        header, first, *_ = self.rows("outlook", "--weights", "seeds")
        self.assertEqual(header[:6], ["Now", "Player", "Points", "Possible", "First %", "Share %"])
        self.assertEqual(first, ["1", "DP, Demo Prophet", "80", "120", "100.0", "100.0", "0.00", "Clinched", "1", "1",
                                 ""])

    def test_names_that_hold_separators_stay_in_their_columns(self):
        small_pool(self.folder)
        selection = self.folder.read("Adams_AB.THC").replace(b"\r\nAdams\r\n", b'\r\nA;d"am,s\r\n')
        self.folder.write("Adams_AB.THC", selection)
        self.assertEqual(self.rows("standings")[1],
                         ["128", 'AB, A;d"am,s', "Adams_AB.THC", "168", "60", "0", "3", "150", "CEDAR RAPIDS"])
        self.assertIn(["CEDAR RAPIDS", 'A;d"am,s_AB', "1", "1", "1", "1", "1", "1"], self.rows("picks-by-player"))

    def test_formulas_are_texts(self):
        small_pool(self.folder)
        self.folder.write("Adams_AB.THC", self.folder.read("Adams_AB.THC").replace(b"\r\nAB\r\n", b"\r\n=1+1\r\n"))
        self.assertEqual(self.rows("standings")[1][1], "'=1+1, Adams")


if __name__ == "__main__":
    unittest.main()
