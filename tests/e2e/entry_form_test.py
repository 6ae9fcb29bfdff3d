"""Brackets that need no clicks: 63 keys on the board, the form that players fill in, and the table for spreadsheets."""

import pathlib
import tempfile
import unittest

from mail_clients import CLIENT
from pool_2000 import FIELD, selection, setup_file
from program import Program

HEADER = '"Name                     ","FileName                         ","Email                                      ","Phone         "'
PLAYERS = [HEADER, *('"%-25s","%-33s","%-43s","%-14s"' % player for player in [
    ("Leader,QX", "LEADER_QX.THC", "leader@example.org", ""), ("Miller,M", "MILLER_M.THC", "m@example.org", "")])]

# 1 is the upper team, 2 the lower one: a region is eight games, four, two and one; then two semi-finals and the final.
KEYS = "121122121112212" "221211112122111" "112212221211212" "212122121221121" "212"
GAMES = [31 * region + place for region in range(4) for place in range(16, 31)] + [124, 125, 126]


def teams_that_meet(game):
    """The two places whose teams meet for a place, the upper first."""
    if game == 126:
        return 124, 125
    if game in (124, 125):
        region = 2 * (game - 124)
        return 31 * region + 30, 31 * region + 61
    first = game - game % 31
    return first + 2 * (game % 31 - 16), first + 2 * (game % 31 - 16) + 1


def winners():
    """Who wins each game by these keys."""
    bracket = {31 * region + row: FIELD[16 * region + row] for region in range(4) for row in range(16)}
    for game, key in zip(GAMES, KEYS):
        bracket[game] = bracket[teams_that_meet(game)[int(key) - 1]]
    return {game: bracket[game] for game in GAMES}


WINNERS = winners()
WHOLE = selection(WINNERS, "JS", "Smith", "142")


class EntryForm(unittest.TestCase):
    def setUp(self):
        desktop = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="tallyhoop-e2e-form-")))
        self.client = CLIENT(desktop)
        self.program = self.enterContext(Program(environment=self.client.environment))
        self.program.write("POOLSTART.THS", setup_file())
        self.program.write("PLAYERNAMES.CSV", PLAYERS)

    def shows(self, name, text):
        self.program.wait(lambda: self.program.text(name) == text, f"{name} showing {text!r}")

    def focused(self, name):
        self.program.wait(lambda: self.program.widget(name)["focus"], f"{name} having the focus")

    def tab_to(self, name):
        for _ in range(30):
            if self.program.widget(name)["focus"]:
                return
            self.program.key("Tab")
        self.fail(f"{name} is not reached by Tab")

    def content(self, name):
        """The lines of a file, once it is there."""
        self.program.wait(lambda: name in self.program.files(), name)
        return self.program.read(name).decode("cp1252").split("\r\n")[:-1]

    # --- the keys ---

    def test_a_bracket_is_sixty_three_keys(self):
        self.program.start()
        self.shows("lblTitle", "Office Pool")
        self.focused("txtPlayerInitials")
        self.program.type_text("JS")
        self.program.key("Return")
        self.program.type_text("Smith")
        self.program.key("Return")
        self.program.type_text("142")
        self.tab_to("lblRegion_0")
        self.fill_the_first_games()
        self.go_back()
        self.fill_the_rest()
        self.program.key("Ctrl+S")
        self.program.wait(lambda: self.program.modal().get("name") == "QFileDialog", "the save dialog")
        self.shows("fileNameEdit", "Smith_JS.THC")
        self.program.key("Return")
        self.assertEqual(self.content("Smith_JS.THC"), WHOLE)

    def fill_the_first_games(self):
        self.program.key("1")
        self.focused("lblRegion_17")
        self.shows("lblRegion_16", "Arizona")
        place = self.program.widget("lblRegion_17")
        self.assertEqual(place["accessibleName"], "West, winner of first round, game 2: no team")
        self.assertTrue(self.program.text("explanation").startswith("1 picks Wisconsin, 2 picks Fresno St., "))
        self.program.key("1")
        self.program.key("2")
        self.focused("lblRegion_19")
        self.shows("lblRegion_18", "Indiana St.")

    def go_back(self):
        """The second and the third game were not meant."""
        self.program.key("BackSpace")
        self.focused("lblRegion_18")
        self.program.key("BackSpace")
        self.focused("lblRegion_17")
        self.shows("lblRegion_17", "")
        self.shows("lblRegion_16", "Arizona")

    def fill_the_rest(self):
        for game, key in list(zip(GAMES, KEYS))[1:]:
            self.focused(f"lblRegion_{game}")
            self.program.key(key)
        self.shows("status", "63 of 63 picked")
        self.shows("explanation", "Every game has a winner.")
        self.focused("lblRegion_126")
        for game in GAMES:
            self.assertEqual(self.program.text(f"lblRegion_{game}"), WINNERS[game])

    # --- the form ---

    def test_the_form_is_saved_and_mailed_to_everybody(self):
        self.program.start()
        self.program.menu("mnuFile", "mnuEntryForm")
        self.program.wait(lambda: self.program.visible("txtOrganiser"), "the dialog")
        self.program.type("txtOrganiser", "org@example.org")
        self.program.click("cmdSave")
        self.program.wait(lambda: self.program.modal().get("name") == "QFileDialog", "the save dialog")
        self.shows("fileNameEdit", "ENTRYFORM.HTML")
        self.program.key("Return")
        self.program.wait(lambda: "ENTRYFORM.HTML" in self.program.files(), "the form")
        page = self.program.read("ENTRYFORM.HTML").decode("utf-8")
        self.assertIn('"organiser":"org@example.org"', page)
        self.assertIn('"SE Missouri St."', page)
        self.program.wait(lambda: self.program.text("explanation") == "Saved ENTRYFORM.HTML.", "the news")
        self.program.click("cmdMail")
        self.program.wait(lambda: self.program.visible("frmPoolEMail"), "the e-mail dialog")
        self.shows("txtSubject", "Your bracket: Office Pool")
        recipients = [row[0] if isinstance(row, list) else row for row in self.program.rows("lstTo")]
        self.assertEqual(recipients, ["leader@example.org", "m@example.org"])
        self.program.click("cmdSend")
        self.program.wait(self.client.has_all, "the mail client")
        self.assertTrue(self.client.was_given(recipients, self.program.folder / "ENTRYFORM.HTML"), self.client.lines())
        self.program.key("Escape")
        self.program.wait(lambda: not self.program.modal(), "the dialog going away")

    def test_the_form_from_the_player_list_by_keyboard(self):
        self.program.start()
        self.program.key("F8")
        self.program.wait(lambda: self.program.visible("cmdEntryForm"), "the player list")
        self.program.key("Alt+f")
        self.program.wait(lambda: self.program.visible("txtOrganiser"), "the dialog")
        self.program.box("Entry Form")
        self.focused("txtOrganiser")
        self.program.type_text("not an address")
        self.program.key("Return")
        self.program.answer("OK", "Entry Form")
        self.focused("txtOrganiser")
        self.assertEqual(self.program.files(), ["PLAYERNAMES.CSV", "POOLSTART.THS"])
        self.program.key("Ctrl+A")
        self.program.key("Delete")
        self.program.key("Alt+s")
        self.program.wait(lambda: self.program.modal().get("name") == "QFileDialog", "the save dialog")
        self.program.key("Return")
        self.program.wait(lambda: "ENTRYFORM.HTML" in self.program.files(), "the form")
        self.program.wait(lambda: self.program.text("explanation") == "Saved ENTRYFORM.HTML.", "the news")
        self.program.key("Alt+c")
        self.program.wait(lambda: not self.program.modal(), "the dialog going away")
        self.assertTrue(self.program.visible("cmdExit"))

    # --- the table ---

    def test_all_selections_become_a_table(self):
        self.program.write("Smith_JS.THC", WHOLE)
        self.program.write("Leader_QX.THC", selection({16: "Arizona"}, "QX", "Leader", "150"))
        self.program.start()
        self.program.menu("mnuFile", "mnuExportSelections")
        self.program.wait(lambda: self.program.modal().get("name") == "QFileDialog", "the save dialog")
        self.shows("fileNameEdit", "SELECTIONS.CSV")
        self.program.key("Return")
        self.program.wait(lambda: "SELECTIONS.CSV" in self.program.files(), "the table")
        header, leader, smith, end = self.program.read("SELECTIONS.CSV").decode("utf-8-sig").split("\r\n")
        self.assertTrue(header.startswith("Name,Initials,Total,"))
        self.assertEqual(leader, "Leader,QX,150,Arizona" + "," * 62 + ",Leader_QX.THC")
        self.assertEqual(smith, "Smith,JS,142," + ",".join(WINNERS[game] for game in GAMES) + ",Smith_JS.THC")
        self.assertEqual(end, "")
        self.shows("explanation", "Exported 2 selections to SELECTIONS.CSV.")


if __name__ == "__main__":
    unittest.main()
