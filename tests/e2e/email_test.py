"""Reports by e-mail in the sample pool, from ticking them to the mail client, which here only records its arguments."""

import os
import pathlib
import tempfile
import unittest

from program import Program

CLIENT = """#!/bin/sh
printf '%s\\n' "$@" > "$RECORD.part"
mv "$RECORD.part" "$RECORD"
"""
ADDRESSES = ["favorite@example.org", "halfway@example.org", "longshot@example.org", "prophet@example.org"]


class Email(unittest.TestCase):
    def setUp(self):
        desktop = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="tallyhoop-e2e-mail-")))
        self.desktop = desktop
        self.record = desktop / "record"
        for name, script in {"thunderbird": CLIENT, "xdg-mime": "#!/bin/sh\necho thunderbird.desktop\n"}.items():
            (desktop / name).write_text(script)
            (desktop / name).chmod(0o755)
        self.program = self.enterContext(Program(environment={
            "PATH": f"{desktop}:{os.environ.get('PATH', '/usr/bin:/bin')}", "RECORD": str(self.record)}))
        self.program.start()
        self.program.answer("OK", "** DEMO MODE OPTION **")
        self.program.wait(lambda: "TALLYHOOP.INI" in self.program.files(), "the sample pool")
        self.program.answer("OK", "STALLYHOOP DEMOSTRATION MODE")
        self.program.wait(lambda: self.program.text("lblTitle") == "2000 NCAA Tournament", "the sample pool on the board")

    def make_reports(self, destination):
        self.program.menu("mnuReports")
        for mark in ("chkOptions_0", "chkOptions_3", f"optDestination_{destination}"):
            self.tick(mark)
        self.program.click("cmdPrintSelections")
        self.program.wait(lambda: self.program.visible("frmPoolEMail"), "the e-mail dialog")

    def tick(self, name):
        self.program.wait(lambda: self.program.visible(name), name)
        x, y, _, height = self.program.widget(name)["rect"]
        self.program.click_at((x + height // 2, y + height // 2))  # the widget is wider than what can be clicked
        self.program.wait(lambda: self.program.widget(name)["checked"], f"{name} being ticked")

    def recipients(self):
        return [row[0] if isinstance(row, list) else row for row in self.program.rows("lstTo")]

    def composed(self):
        """The client's arguments, when it has recorded them."""
        self.program.wait(self.record.exists, "the mail client")
        return self.record.read_text(encoding="utf-8").splitlines()

    def attachments(self):
        folder = self.program.folder.as_uri()
        return f"attachment='{folder}/RPTOPT1.TXT,{folder}/RPTOPT4.TXT'"

    def test_all_participants_get_the_reports_that_were_made(self):
        self.make_reports(destination=3)
        self.assertEqual(self.recipients(), ADDRESSES)
        self.program.type("txtSubject", "It's round 5, 100% sure")
        self.program.type("txtMessage", "Hi all,")
        self.program.key("Return")  # a new line, not another recipient
        self.program.type_text("see the standings.")
        self.program.click("cmdSend")
        option, message = self.composed()
        self.assertEqual(option, "-compose")
        self.assertEqual(message, f"to='{','.join(ADDRESSES)}',subject=It%27s%20round%205%2C%20100%25%20sure,"
                                  "body=Hi%20all%2C%0D%0Asee%20the%20standings.,format=text," + self.attachments())
        self.assertIn(b"Demo Prophet", self.program.read("RPTOPT1.TXT"))
        self.assertEqual(self.program.modal(), {})

    def test_recipients_are_found_by_typing_and_entered_freely(self):
        self.make_reports(destination=2)
        self.assertEqual(self.recipients(), [])
        self.program.type_text("demo p")
        self.program.wait(lambda: self.program.text("txtEntry").startswith("Demo Prophet"), "the player found")
        self.program.key("Return")
        self.program.click("cmdFreeEntry")
        self.program.type_text("o'brien@example.org")
        self.program.key("Return")
        self.program.wait(lambda: len(self.recipients()) == 2, "two recipients")
        self.program.click("cmdSend")
        self.assertEqual(self.composed(), ["-compose", "to='prophet@example.org,o'brien@example.org',subject=,body=,"
                                                       "format=text," + self.attachments()])

    def test_a_browser_gets_no_message_but_a_file_is_opened_and_named(self):
        (self.desktop / "xdg-mime").write_text("#!/bin/sh\necho firefox-esr.desktop\n")
        (self.desktop / "gio").write_text(CLIENT)
        (self.desktop / "gio").chmod(0o755)
        self.make_reports(destination=3)
        self.program.type("txtSubject", "Standings")
        self.program.click("cmdSend")
        self.program.answer("No", "Tallyhoop - frmPoolReports, MailReports")
        self.assertEqual(self.composed(), ["open", str(self.program.folder / "TALLYHOOP.EML")])
        message = self.program.read("TALLYHOOP.EML")
        self.assertIn(b"X-Unsent: 1", message)
        self.assertIn(b"RPTOPT4.TXT", message)

    def test_the_library_for_message_files_is_no_part_of_the_start(self):
        libraries = pathlib.Path(f"/proc/{self.program.process_id()}/maps").read_text()
        self.assertIn("libQt6Widgets", libraries)
        self.assertNotIn("libgmime", libraries)

    def test_exit_sends_nothing(self):
        self.make_reports(destination=3)
        self.program.key("Escape")
        self.program.wait(lambda: not self.program.has("frmPoolEMail"), "the dialog being closed")
        self.program.click("cmdExit")
        self.program.wait(lambda: self.program.visible("lblTitle"), "the board")
        self.assertFalse(self.record.exists())
        self.assertIn("RPTOPT1.TXT", self.program.files())


if __name__ == "__main__":
    unittest.main()
