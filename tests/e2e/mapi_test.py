"""Reports by e-mail in the program for Windows, to a client of Simple MAPI that only writes down how it is called."""

import pathlib
import tempfile
import unittest

from mail_clients import SimpleMapi
from mailing import ADDRESSES, Mailing

# What a client may answer.
LOG_ON_FAILED, GIVEN_UP = "3", "1"


class EmailBySimpleMapi(Mailing):
    def begin(self, **answers):
        self.client = SimpleMapi(pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(prefix="tallyhoop-e2e-mapi-"))))
        self.start({**self.client.environment, **answers})

    def calls(self):
        """What the client was told until it was left."""
        self.program.wait(self.client.has_all, "the client")
        return self.client.lines()

    def told(self, subject, text, recipients, first_place):
        """The calls for a message; the files are at places of its text, one after the other."""
        return ["MAPILogon", "MAPISendMailW", f'subject "{subject}"', f'text "{text}"',
                "type none received none conversation none flags 0 reserved 0",
                *(self.client.recipient(address) for address in recipients),
                self.client.attachment(first_place, self.program.folder / "RPTOPT1.TXT"),
                self.client.attachment(first_place + 1, self.program.folder / "RPTOPT4.TXT"), "MAPILogoff"]

    def test_all_participants_get_the_reports_that_were_made(self):
        self.begin()
        self.make_reports(destination=3)
        self.assertEqual(self.recipients(), ADDRESSES)
        self.write_message()
        self.program.click("cmdSend")
        # 7 + 2 + 18 characters, and ten blanks in which the files are.
        self.assertEqual(self.calls(), self.told("It's round 5, 100% sure",
                                                 r"Hi all,\000D\000Asee the standings.          ", ADDRESSES, 29))
        self.assertIn(b"Demo Prophet", self.program.read("RPTOPT1.TXT"))
        self.assertEqual(self.program.modal(), {})
        self.assertEqual(self.program.errors(), "")

    def test_recipients_are_found_by_typing_and_entered_freely(self):
        self.begin()
        self.make_reports(destination=2)
        self.choose_two_recipients()
        self.program.click("cmdSend")
        self.assertEqual(self.calls(), self.told("", "          ", ["prophet@example.org", "o'brien@example.org"], 2))

    def test_a_message_that_is_given_up_in_the_client_is_no_trouble(self):
        self.begin(MAPI_SEND=GIVEN_UP)
        self.make_reports(destination=3)
        self.program.click("cmdSend")
        self.assertIn("MAPISendMailW", self.calls())
        self.assertEqual(self.program.modal(), {})
        self.assertNotIn("TALLYHOOP.EML", self.program.files())

    def test_without_a_client_a_file_is_written_and_named(self):
        self.begin(MAPI_LOGON=LOG_ON_FAILED)
        self.make_reports(destination=3)
        self.program.type("txtSubject", "Standings")
        self.program.click("cmdSend")
        box = self.program.answer("No", "Tallyhoop - frmPoolReports, MailReports")
        self.assertEqual(box["text"].splitlines()[:3], ["The message could not be handed to a mail program.",
                                                        "The mail program did not accept the log-on.",
                                                        "No program was found that opens message files."])
        self.assertIn(self.program.path(), box["text"].splitlines())
        message = self.program.read("TALLYHOOP.EML")
        self.assertIn(b"X-Unsent: 1", message)
        self.assertIn(b"RPTOPT4.TXT", message)

    def test_exit_sends_nothing(self):
        self.begin()
        self.sends_nothing()
        self.assertFalse(self.client.record.exists())


if __name__ == "__main__":
    unittest.main()
