"""A pool full of hostile names: they are shown, scored, reported and mailed as they are, and nothing else happens."""

import os
import pathlib
import tempfile
import unittest

from pool_2000 import FIELD, selection, setup_file
from program import Program

TITLE = "<b>Pool</b> & %s %n [*] \"Co\""
TEAMS = ["<b>bold</b>", "<img src=/etc/passwd>", "Texas A&M", "&amp;", "%s%n%00", "../outside", "C:\\autoexec",
         "$(touch owned)", "`touch owned`", "--help"]  # the first rows of the West
PLAYER = "../../x<i>&%s"
PLAYER_FILE = ".._.._x_i_&%s_-a.THC"  # characters that a file name cannot have have become "_"
OPTION_FILE = "--help $(touch owned).THC"
RECIPIENT = "-a@example.org"

CLIENT = """#!/bin/sh
printf '%s\\n' "$@" > "$RECORD.part"
mv "$RECORD.part" "$RECORD"
"""


def field(line):
    """A line of a file with the first ten teams of the field replaced."""
    return TEAMS[FIELD.index(line)] if line in FIELD[:len(TEAMS)] else line


class HostileNames(unittest.TestCase):
    def setUp(self):
        desktop = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="tallyhoop-e2e-mail-")))
        self.record = desktop / "record"
        for name, script in {"thunderbird": CLIENT, "xdg-mime": "#!/bin/sh\necho thunderbird.desktop\n"}.items():
            (desktop / name).write_text(script)
            (desktop / name).chmod(0o755)
        self.program = self.enterContext(Program(environment={
            "PATH": f"{desktop}:{os.environ.get('PATH', '/usr/bin:/bin')}", "RECORD": str(self.record)}))
        self.program.write("POOLSTART.THS", [field(line) for line in setup_file(TITLE)])
        winners = {16: TEAMS[0], 17: TEAMS[2], 18: TEAMS[4], 19: TEAMS[6], 24: TEAMS[0]}
        self.program.write("TALLYHOOP.THS", [field(line) for line in selection(winners, "A", "FinalResults")])
        self.program.write(OPTION_FILE, [
            field(line) for line in selection({**winners, 126: TEAMS[1]}, "-a", TEAMS[0], "150")])

    def shows(self, name, text):
        self.program.wait(lambda: self.program.text(name) == text, f"{name} showing {text!r}")

    def test_they_are_names_and_nothing_else(self):
        self.program.start()
        self.the_board_shows_them()
        self.a_player_of_such_a_name_is_saved_in_the_folder()
        self.both_players_are_scored()
        self.the_reports_hold_them_and_go_to_the_mail_program()
        self.nothing_else_has_happened()

    def the_board_shows_them(self):
        self.shows("lblTitle", TITLE)
        for row, team in enumerate(TEAMS):
            self.assertEqual(self.program.text(f"lblRegion_{row}"), team)

    def a_player_of_such_a_name_is_saved_in_the_folder(self):
        self.program.menu("mnuFile", "mnuNewSelection")
        self.shows("txtPlayerName", "")
        self.program.click("lblRegion_0")
        self.shows("lblRegion_16", TEAMS[0])
        self.program.type("txtPlayerInitials", "-a")
        self.program.type("txtPlayerName", PLAYER)
        self.program.type("txtFinalPoints", "150")
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.program.wait(lambda: self.program.modal().get("name") == "QFileDialog", "the save dialog")
        self.shows("fileNameEdit", PLAYER_FILE)
        self.program.wait(lambda: self.program.modal()["active"], "the save dialog having the focus")
        self.program.key("Return")
        self.program.wait(lambda: PLAYER_FILE in self.program.files(), "the file being saved")
        self.program.wait(lambda: self.program.visible("cmdAdd"), "the player names screen")
        self.program.click("cmdAdd")
        self.program.wait(lambda: self.program.visible("lblTitle"), "the board")

    def both_players_are_scored(self):
        self.program.menu("mnuOptions", "mnuGameResults")
        self.shows("txtPlayerName", "FinalResults")
        self.program.menu("mnuOptions", "mnuScoreSelections")
        self.program.wait(lambda: self.program.has("msgScoreDisplay"), "the score display")
        self.program.wait(lambda: any(window["active"] and window["name"] == "frmPoolMisc"
                                      for window in self.program.windows()), "the score display in front")
        self.program.click("cmdOk")
        # In the West four first games and one of the second round: 4 x 1 + 2, and the new player's one.
        self.program.wait(lambda: [row[:3] for row in self.program.rows("msgScoreDisplay")] == [
            [OPTION_FILE, f"-a, {TEAMS[0]}", "6"], [PLAYER_FILE, f"-A, {PLAYER}", "1"]], "the scores")
        self.program.key("Escape")
        self.program.wait(lambda: not self.program.has("msgScoreDisplay"), "the score display being closed")

    def the_reports_hold_them_and_go_to_the_mail_program(self):
        self.program.menu("mnuReports")
        for mark in ("chkOptions_0", "chkOptions_1", "chkOptions_2", "chkOptions_4", "optDestination_2"):
            self.program.wait(lambda mark=mark: self.program.visible(mark), mark)
            self.program.click(mark)
            self.program.wait(lambda mark=mark: self.program.widget(mark)["checked"], f"{mark} being ticked")
        self.program.click("cmdPrintSelections")
        self.program.wait(lambda: self.program.visible("frmPoolEMail"), "the e-mail dialog")
        self.program.click("cmdFreeEntry")
        self.program.type_text(RECIPIENT)
        self.program.key("Return")
        self.program.wait(lambda: self.program.rows("lstTo"), "the recipient")
        self.program.type("txtSubject", "',body=x,--help $(touch owned)")
        self.program.click("cmdSend")
        self.program.wait(self.record.exists, "the mail client")
        folder = self.program.folder.as_uri()
        reports = ",".join(f"{folder}/RPTOPT{number}.TXT" for number in (1, 2, 3, 5))
        self.assertEqual(self.record.read_text(encoding="utf-8").splitlines(), [
            "-compose", f"to='{RECIPIENT}',subject=%27%2Cbody%3Dx%2C--help%20%24%28touch%20owned%29,body=,format=text,"
                        f"attachment='{reports}'"])
        standings = self.program.read("RPTOPT1.TXT").decode("cp1252")
        self.assertIn(TITLE, standings)
        self.assertIn(f"-A, {PLAYER}", standings)
        self.assertIn(PLAYER, self.program.read("RPTOPT2.TXT").decode("cp1252"))
        for team in TEAMS[0], TEAMS[2], TEAMS[4], TEAMS[6]:
            self.assertIn(team, self.program.read("RPTOPT3.TXT").decode("cp1252"))

    def nothing_else_has_happened(self):
        self.assertEqual(self.program.errors(), "")
        self.assertEqual(self.program.files(), sorted([
            OPTION_FILE, PLAYER_FILE, "PLAYERNAMES.CSV", "POOLSTART.THS", "TALLYHOOP.THS", "TEMPPRT.TXT",
            "RPTOPT1.TXT", "RPTOPT2.TXT", "RPTOPT3.TXT", "RPTOPT5.TXT"]))
        beside = sorted(entry.name for entry in self.program.folder.parent.iterdir())
        self.assertEqual([name for name in beside if name in ("owned", "outside", "x")], [])


if __name__ == "__main__":
    unittest.main()
