"""Fifty entries come in as files, mails and one long paste: reviewed, imported, scored - by mouse and by keyboard."""

import csv
import io
import pathlib
import unittest

from handed_in import form_text, mail, points_of, selection_bytes, some_winners
from pool_2000 import FIELD, selection, setup_file
from program import Program, centre
from without_mouse import WithoutMouse

GOOD = range(40)
PLAYED = {position: team for position, team in some_winners("results").items() if position < 109}  # no South


def name_of(number):
    return f"Player {number:02}"


def address_of(number):
    return f"p{number:02}@example.org"


def with_picks(winners, **changes):
    return {**winners, **{int(place.strip("_")): team for place, team in changes.items()}}


def text_of(number, **more):
    return form_text(name_of(number), "PL", str(100 + number), some_winners(number), address_of(number), **more)


def bytes_of(number):
    return selection_bytes(name_of(number), "PL", str(100 + number), some_winners(number))


def quoted(text):
    return "On Tuesday somebody wrote:\n" + "".join(f"> {line}\n" for line in text.splitlines())


def wrapped(text, width=72):
    """As a mail program breaks long lines, after blanks."""
    lines = []
    for line in text.splitlines():
        while len(line) > width and " " in line[:width]:
            cut = line.rindex(" ", 0, width) + 1
            lines.append(line[:cut])
            line = line[cut:]
        lines.append(line)
    return "\n".join(lines) + "\n"


def good_files():
    """Twelve selections, eight mails with the text, and eight with the selection attached."""
    files = {f"{number:02}.THC": bytes_of(number) for number in GOOD[:12]}
    for number in GOOD[12:20]:
        files[f"{number:02}.eml"] = mail(address_of(number), "Hello,\nhere is mine.\n\n" + wrapped(text_of(number)))
    for number in GOOD[20:28]:
        files[f"{number:02}.eml"] = mail(address_of(number), "See the file.",
                                         (f"{name_of(number)}_PL.THC", bytes_of(number)))
    return files


def long_paste():
    """Twelve good entries, some of them quoted or wrapped, and one that was changed on its way."""
    spoiled = text_of(45).replace("Champion: ", "Champion:  Not ")
    return "\n".join(quoted(text_of(number)) if number % 3 == 0 else wrapped(text_of(number))
                     for number in GOOD[28:]) + "\n-- \nThe office\n\n" + spoiled


def bad_files():
    """Each with its own fault; with the name that its row shows, and the words that say why."""
    lost = some_winners(41)
    first = FIELD[1] if lost[16] == FIELD[0] else FIELD[0]  # who lost the first game
    other_field = b"Alabama" + bytes_of(43).removeprefix(b"Arizona")
    return {
        "40.THC": (selection_bytes(name_of(40), "PL", "140", with_picks(some_winners(40), _126="Harvard")),
                   'Unknown team: "Harvard", picked in 1 game.'),
        "41.THC": (selection_bytes(name_of(41), "PL", "141", with_picks(lost, _24=first)),
                   f'"{first}" does not play in this game: West, round 2, game 1.'),
        "42.THC": (bytes_of(42).replace(b"*END*", b"one more\r\n*END*"), "lines"),
        "43.THC": (other_field, "It is for another field: 1 of 64 teams differ"),
        "44.THC": (selection_bytes("", "PL", "144", some_winners(44)), "The name is missing."),
        "46.txt": (b"x" * (1 << 20) + b"y", "The file is larger than 1 MB."),
        "47.THC": (selection_bytes(name_of(47), "PL", "49", some_winners(47)),
                   'The predicted total "49" is not a number from 50 to 250.'),
        "48.eml": (mail("late@example.org", "Sorry, I have no time this year."), "There is no entry in this mail."),
    }


INCOMPLETE = {"49.THC": selection_bytes(name_of(49), "PL", "149", with_picks(some_winners(49), _126=""))}


class Import(unittest.TestCase):
    def setUp(self):
        self.program = self.enterContext(Program())
        self.program.write("POOLSTART.THS", setup_file())
        self.inbox = pathlib.Path(self.program.folder).parent / "inbox"
        self.inbox.mkdir()
        files = {**good_files(), **{name: content for name, (content, _) in bad_files().items()}, **INCOMPLETE}
        for name, content in files.items():
            (self.inbox / name).write_bytes(content)
        self.program.start()

    def shows(self, name, text):
        self.program.wait(lambda: self.program.text(name) == text, f"{name} showing {text!r}")

    def column(self, heading):
        table = self.program.table("grdEntries")
        place = [one["text"] for one in table["headings"]].index(heading)
        return [row[place] for row in table["rows"]]

    def ticked(self):
        return [number for number, tick in enumerate(self.column("Import")) if tick == "ticked"]

    def the_review_is_right(self):
        self.shows("lblCounts", "50 entries: 41 new, 9 refused, 1 incomplete.")
        self.assertEqual(len(self.ticked()), 40)
        self.assertEqual([self.column("Name")[row] for row in self.ticked()], [name_of(number) for number in GOOD])
        self.assertEqual(self.column("Picks").count("63 of 63"), 47)  # but the incomplete one, and two in which nothing is legible
        self.assertEqual(self.column("Picks").count("62 of 63"), 1)
        self.assertEqual(self.column("Import").count(""), 9)
        self.assertEqual(self.program.files(), ["PLAYERNAMES.CSV", "POOLSTART.THS"])

    def the_import_is_right(self):
        self.program.wait(lambda: self.program.visible("txtSummary"), "the summary")
        summary = self.program.text("txtSummary")
        self.assertTrue(summary.startswith("40 of 50 entries imported.\n  40 new\n  1 not ticked\n\nRefused:\n"), summary)
        self.assertTrue(summary.endswith("\n\n40 players were added to the player list."), summary)
        for _, (_, reason) in bad_files().items():
            self.assertIn(reason, summary)
        for number in GOOD:
            self.assertEqual(self.program.read(f"{name_of(number)}_PL.THC"), bytes_of(number))
        self.assertEqual(len(self.program.files()), 42)
        self.assertEqual(len(self.column("Name")), 10)
        return summary

    def the_player_list_is_complete(self):
        """The form's text and the mails have addresses, the selections have none."""
        rows = csv.reader(io.StringIO(self.program.read("PLAYERNAMES.CSV").decode("cp1252")))
        players = {row[1].strip(): row[2].strip() for row in rows if len(row) > 2 and row[1].strip().endswith(".THC")}
        expected = {f"{name_of(number).upper()}_PL.THC": address_of(number) if number >= 12 else "" for number in GOOD}
        self.assertEqual(players, expected)

    def the_scores_are_right(self):
        scores = {row[0]: row[2] for row in self.program.rows("msgScoreDisplay")}
        self.assertEqual(scores, {f"{name_of(number)}_PL.THC": str(points_of(some_winners(number), PLAYED))
                                  for number in GOOD})


class ImportByMouse(Import):
    def test_fifty_entries(self):
        self.program.menu("mnuFile", "mnuImport")
        self.read_files()
        self.read_a_folder()
        self.read_a_paste()
        self.the_review_is_right()
        self.look_at_refused_entries()
        self.take_a_tick_away_and_set_it_again()
        self.program.click("cmdImport")
        summary = self.the_import_is_right()
        self.program.click("cmdCopy")
        self.program.wait(lambda: self.program.clipboard() == summary, "the summary on the clipboard")
        self.the_player_list_is_complete()
        self.program.click("cmdExit")
        self.score()

    def read_files(self):
        self.program.click("cmdChooseFiles")
        self.program.file_dialog(*(self.inbox / name for name in ("00.THC", "01.THC", "02.THC")))
        self.shows("lblCounts", "3 entries: 3 new.")
        for name in ("00.THC", "01.THC", "02.THC"):
            (self.inbox / name).unlink()

    def read_a_folder(self):
        self.program.click("cmdChooseFolder")
        self.program.file_dialog(self.inbox)
        self.shows("lblCounts", "37 entries: 29 new, 8 refused, 1 incomplete.")

    def read_a_paste(self):
        self.program.clipboard(long_paste())
        self.program.click("txtPasted")
        self.program.wait(lambda: self.program.widget("txtPasted")["focus"], "the box")
        self.program.key("Ctrl+V")
        self.program.wait(lambda: self.program.enabled("cmdReadText"), "a text to read")
        self.program.click("cmdReadText")
        self.shows("txtPasted", "")

    def press_row(self, row, heading):
        table = self.program.table("grdEntries")
        column = [one["text"] for one in table["headings"]].index(heading)
        self.program.click_at(centre(table["rects"][row][column]))

    def look_at_refused_entries(self):
        self.press_row(self.first_visible_refused(), "Name")
        self.program.wait(lambda: self.program.text("txtDetails").startswith("Refused:\n- "), "the reasons")

    def first_visible_refused(self):
        """Rows are scrolled to by the keyboard; those below the table have their rectangles there."""
        self.program.key("End")
        _, top, _, height = self.program.widget("grdEntries")["rect"]
        rects = self.program.table("grdEntries")["rects"]
        return next(row for row, tick in enumerate(self.column("Import"))
                    if not tick and top + 40 < rects[row][0][1] < top + height - 40)

    def take_a_tick_away_and_set_it_again(self):
        self.program.key("Home")
        self.program.key("Ctrl+Home")
        row = 2
        self.program.wait(lambda: self.program.table("grdEntries")["rects"][row][0][1] > 0, "the first rows")
        self.press_row(row, "Import")
        self.program.wait(lambda: row not in self.ticked(), "the tick going away")
        self.press_row(row, "Import")
        self.program.wait(lambda: row in self.ticked(), "the tick")

    def score(self):
        self.program.write("TALLYHOOP.THS", selection(PLAYED, "X", "FinalResults"))
        self.program.menu("mnuOptions", "mnuGameResults")
        self.shows("txtPlayerName", "FinalResults")
        self.program.menu("mnuOptions", "mnuScoreSelections")
        self.program.click("cmdOk")
        self.program.wait(lambda: len(self.program.rows("msgScoreDisplay")) == 40, "the scores")
        self.the_scores_are_right()

    def test_an_entry_that_is_open_on_the_board_with_unsaved_changes(self):
        self.program.write("Player 00_PL.THC", selection_bytes(name_of(0), "PL", "99", some_winners("before")))
        self.program.menu("mnuFile", "mnuOpenSelection")
        self.program.file_dialog("Player 00_PL.THC")
        self.shows("txtPlayerName", name_of(0))
        self.program.type("txtFinalPoints", "77")
        self.program.menu("mnuFile", "mnuImport")
        self.program.click("cmdChooseFiles")
        self.program.file_dialog(self.inbox / "00.THC")
        self.program.wait(lambda: "open on the board" in self.program.text("txtDetails"), "the warning")
        self.program.click("cmdImport")
        self.program.wait(lambda: "they are still there" in self.program.text("txtSummary"), "the summary")
        self.program.click("cmdExit")
        self.shows("txtFinalPoints", "77")
        self.program.menu("mnuFile", "mnuSaveSelection")
        self.program.file_dialog("Player 00_PL.THC")
        self.program.answer("No", "** FILE HAS BEEN CHANGED **")
        self.assertEqual(self.program.read("Player 00_PL.THC"), bytes_of(0))


class ImportByKeyboard(WithoutMouse, Import):
    def tab_to(self, name):
        for _ in range(30):
            if self.program.widget(name)["focus"]:
                return
            self.program.key("Tab")
        self.fail(f"{name} is not reached by Tab")

    def file_dialog(self, path):
        self.program.wait(lambda: self.program.modal().get("name") == "QFileDialog", "a file dialog")
        self.program.box()
        self.focused("fileNameEdit")
        self.program.key("Ctrl+A")
        self.program.type_text(self.program.path(path))
        self.shows("fileNameEdit", self.program.path(path))
        self.program.key("Return")
        self.program.wait(lambda: self.program.modal().get("name") != "QFileDialog", "the file dialog going away")

    def test_fifty_entries(self):
        self.program.key("Ctrl+I")
        self.focused("cmdChooseFiles")
        self.mnemonic("cmdChooseFolder")
        self.file_dialog(self.inbox)
        self.shows("lblCounts", "37 entries: 29 new, 8 refused, 1 incomplete.")
        # The entries are in the order of their files; the paste comes last.
        self.program.clipboard(long_paste())
        self.tab_to("txtPasted")
        self.program.key("Ctrl+V")
        self.program.wait(lambda: self.program.enabled("cmdReadText"), "a text to read")
        self.mnemonic("cmdReadText")
        self.the_review_is_right()
        self.look_at_every_refused_entry()
        self.untick_and_tick()
        self.mnemonic("cmdImport")
        self.focused("txtSummary")
        summary = self.the_import_is_right()
        self.mnemonic("cmdCopy")
        self.program.wait(lambda: self.program.clipboard() == summary, "the summary on the clipboard")
        self.the_player_list_is_complete()
        self.program.key("Escape")
        self.program.wait(lambda: not self.program.visible("grdEntries"), "the board")
        self.score()

    def look_at_every_refused_entry(self):
        """From the last row upwards; the reasons of each are shown when it is reached."""
        self.focused("grdEntries")
        reasons = [reason for _, reason in bad_files().values()]
        seen = []
        self.program.key("Ctrl+End")
        for row in reversed(range(50)):
            self.program.wait(lambda at=row: self.program.text("lblEntry").startswith(f"Row {at + 1}:"), f"row {row + 1}")
            details = self.program.text("txtDetails")
            if details.startswith("Refused:"):
                seen.append(details)
            self.program.key("Up")
        self.assertEqual(len(seen), 9)
        for reason in reasons:
            self.assertEqual(sum(reason in details for details in seen), 1, reason)

    def untick_and_tick(self):
        self.program.key("Ctrl+Home")
        self.program.key("Space")
        self.program.wait(lambda: 0 not in self.ticked(), "the tick going away")
        self.mnemonic("cmdUntickAll")
        self.program.wait(lambda: self.ticked() == [], "no tick")
        self.mnemonic("cmdTickAll")
        self.program.wait(lambda: len(self.ticked()) == 40, "all ticks")

    def score(self):
        self.program.write("TALLYHOOP.THS", selection(PLAYED, "X", "FinalResults"))
        self.program.key("F5")
        self.shows("txtPlayerName", "FinalResults")
        self.program.key("F6")
        self.focused("cmdOk")
        self.program.key("Return")
        self.program.wait(lambda: len(self.program.rows("msgScoreDisplay")) == 40, "the scores")
        self.the_scores_are_right()


if __name__ == "__main__":
    unittest.main()
