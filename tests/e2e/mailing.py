"""The way to a mail about the reports of the sample pool, whatever takes it then."""

import unittest

from program import Program
from sample_pool import install

ADDRESSES = ["favorite@example.org", "halfway@example.org", "longshot@example.org", "prophet@example.org"]


class Mailing(unittest.TestCase):
    def start(self, environment):
        self.program = self.enterContext(Program(environment=environment))
        install(self.program)

    def make_reports(self, destination):
        self.program.menu("mnuReports")
        for mark in ("chkOptions_0", "chkOptions_3", f"optDestination_{destination}"):
            self.tick(mark)
        self.program.click("cmdPrintSelections")
        self.program.wait(lambda: self.program.visible("frmPoolEMail"), "the e-mail dialog")

    def write_message(self):
        self.program.type("txtSubject", "It's round 5, 100% sure")
        self.program.type("txtMessage", "Hi all,")
        self.program.key("Return")  # a new line, not another recipient
        self.program.type_text("see the standings.")

    def choose_two_recipients(self):
        """One is found among the players, the other is typed whole."""
        self.assertEqual(self.recipients(), [])
        self.program.type_text("demo p")
        self.program.wait(lambda: self.program.text("txtEntry").startswith("Demo Prophet"), "the player found")
        self.program.key("Return")
        self.program.click("cmdFreeEntry")
        self.program.type_text("o'brien@example.org")
        self.program.key("Return")
        self.program.wait(lambda: len(self.recipients()) == 2, "two recipients")

    def tick(self, name):
        self.program.wait(lambda: self.program.visible(name), name)
        x, y, _, height = self.program.widget(name)["rect"]
        self.program.click_at((x + height // 2, y + height // 2))  # the widget is wider than what can be clicked
        self.program.wait(lambda: self.program.widget(name)["checked"], f"{name} being ticked")

    def recipients(self):
        return [row[0] if isinstance(row, list) else row for row in self.program.rows("lstTo")]

    def sends_nothing(self):
        self.make_reports(destination=3)
        self.program.key("Escape")
        self.program.wait(lambda: not self.program.has("frmPoolEMail"), "the dialog being closed")
        self.program.click("cmdExit")
        self.program.wait(lambda: self.program.visible("lblTitle"), "the board")
        self.assertIn("RPTOPT1.TXT", self.program.files())
