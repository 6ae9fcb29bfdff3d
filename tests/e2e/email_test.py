"""Reports by e-mail in the sample pool, from ticking them to the mail client, which here only records its arguments."""

import pathlib
import tempfile
import unittest

from mail_clients import Thunderbird, write_script
from mailing import ADDRESSES, Mailing


class Email(Mailing):
    def setUp(self):
        self.desktop = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="tallyhoop-e2e-mail-")))
        self.client = Thunderbird(self.desktop)
        self.start(self.client.environment)

    def composed(self):
        """The client's arguments, when it has recorded them."""
        self.program.wait(self.client.has_all, "the mail client")
        return self.client.lines()

    def attachments(self):
        folder = self.program.folder.as_uri()
        return f"attachment='{folder}/RPTOPT1.TXT,{folder}/RPTOPT4.TXT'"

    def test_all_participants_get_the_reports_that_were_made(self):
        self.make_reports(destination=3)
        self.assertEqual(self.recipients(), ADDRESSES)
        self.write_message()
        self.program.click("cmdSend")
        option, message = self.composed()
        self.assertEqual(option, "-compose")
        self.assertEqual(message, f"to='{','.join(ADDRESSES)}',subject=It%27s%20round%205%2C%20100%25%20sure,"
                                  "body=Hi%20all%2C%0D%0Asee%20the%20standings.,format=text," + self.attachments())
        self.assertIn(b"Demo Prophet", self.program.read("RPTOPT1.TXT"))
        self.assertEqual(self.program.modal(), {})

    def test_recipients_are_found_by_typing_and_entered_freely(self):
        self.make_reports(destination=2)
        self.choose_two_recipients()
        self.program.click("cmdSend")
        self.assertEqual(self.composed(), ["-compose", "to='prophet@example.org,o'brien@example.org',subject=,body=,"
                                                       "format=text," + self.attachments()])

    def test_a_browser_gets_no_message_but_a_file_is_opened_and_named(self):
        write_script(self.desktop / "xdg-mime", "echo firefox-esr.desktop\n")
        write_script(self.desktop / "gio", Thunderbird.COMMAND)
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
        self.sends_nothing()
        self.assertFalse(self.client.record.exists())


if __name__ == "__main__":
    unittest.main()
