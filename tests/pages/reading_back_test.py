"""What the entry form hands in is what an import reads, and what an import refuses is not handed in."""

import textwrap
import unittest

from browser import Browser
from entry_form import UPPER_TEAMS, Form, Pool, pool_2000

# Teams that look like keys of the text, like its lists or like quotation: rows 1 to 12.
TRAPS = ["Round 2: X", "Check: 00000000", "Total:", "Champion", "Miami, FL", ", comma", "Quoted >", "> Quoted", "Comma,",
         "Region 2 : Midwest", "Colon::", "Universit\u00e9 d\u2019Orl\u00e9ans"]

NAMES = [  # that the form takes
    ("Zo\u00e9 O\u2019Neil", "z\u00f6"),
    ("Bob Initials: X", "Total:"),
    ("Tallyhoop bracket: Name: Bob", "Check:"),
    ("E-mail: bob@example.org", "e"),
    ("Ann :: Smith:", "::"),
    ("A/B: C? \"D\" <E", "a|b"),
    ("Conrad", "Con"),
    ("Nora.Con", "prn"),
    ("\u20ac Lind, Nora", "l,n"),
]
REFUSED = [  # by an import
    ("CON", "x"),
    ("con.rad", "x"),
    ("Aux .", "x"),
    ("lpt1.x", "x"),
    ("Nora/../Lind", "x"),
    ("..\\Nora", "x"),
    ("/Nora", "x"),
    ("\\Nora", "x"),
    ("C:\\Nora", "x"),
    ("Nora", "../x"),
]


def field_of(teams):
    lines = pool_2000.setup_file()
    lines[1:1 + len(teams)] = teams
    return lines


class ReadingBack(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)
        cls.browser.allow_clipboard()
        cls.pool = Pool(field_of(TRAPS))
        cls.addClassCleanup(cls.pool.close)
        cls.form = Form(cls.browser, cls.pool.address)
        # Most of the traps win: after the upper teams those of rows 2, 4, 8, 10 and 12, the first of them to the end.
        cls.presses = [*UPPER_TEAMS, 1, 3, 7, 9, 11, 16, 20, 24, 26, 28, 30, 124]
        cls.form.press_at_once(cls.presses)

    def fill_in(self, name, initials="NL", total="142", email=""):
        self.form.fill_in(name=name, initials=initials, total=total, email=email)

    def copied(self):
        self.form.by_id("copy").click()
        self.assertIn("Copied.", self.browser.wait(lambda: self.form.text("outcome"), "word about how it went"))
        return self.browser.clipboard()

    def mailed(self):
        """The body of a mail, whether or not the form would let it go."""
        return self.browser.run("return textLines(typedEntry()).join('\\r\\n')")

    def expected(self, name, initials, email=""):
        return email.encode() + b"\n" + self.pool.file(self.presses, name, initials, "142")

    def test_the_copied_text_of_every_name_is_read_back(self):
        for name, initials in NAMES:
            with self.subTest(name):
                self.fill_in(name, initials)
                self.assertEqual(self.pool.read(self.copied()), self.expected(name, initials))

    def test_a_mail_is_read_back_however_it_is_wrapped_and_quoted(self):
        self.fill_in("Zo\u00e9 O\u2019Neil", "zo", email="zoe@example.org")
        lines = self.mailed().split("\r\n")
        wrapped = [part for line in lines for part in
                   textwrap.wrap(line, 76, break_long_words=False, break_on_hyphens=False) or [""]]
        self.assertGreater(len(wrapped), len(lines))
        expected = self.expected("Zo\u00e9 O\u2019Neil", "zo", "zoe@example.org")
        for what, text in (("as it is", "\r\n".join(lines)), ("wrapped", "\r\n".join(wrapped)),
                           ("quoted", "\n".join("> " + line for line in wrapped)),
                           ("joined", " > ".join(wrapped)),
                           ("as a reply", "On Monday, Zo\u00e9 wrote:\n>> " + "\n>> ".join(wrapped) + "\n\nThanks!\n")):
            with self.subTest(what):
                self.assertEqual(self.pool.read(text), expected)

    def test_a_changed_text_is_not_taken(self):
        self.fill_in("Nora Lind")
        text = self.copied()
        self.assertIn(b"does not match", self.pool.read(text.replace("Total: 142", "Total: 143")))

    def test_the_saved_file_is_read_back(self):
        for name, initials in NAMES:
            with self.subTest(name):
                self.fill_in(name, initials)
                saved = bytes(self.browser.run("return Array.from(selectionFile(typedEntry()))"))
                self.assertEqual(self.pool.read(saved), self.expected(name, initials))

    def test_what_an_import_refuses_the_form_refuses(self):
        for name, initials in REFUSED:
            with self.subTest(name=name, initials=initials):
                self.fill_in(name, initials)
                read = self.pool.read(self.mailed())
                self.assertTrue(read.endswith((b"leads to another folder.\n", b"is that of a device.\n")), read)
                self.form.by_id("copy").click()
                self.assertNotEqual(self.form.text("name-fault") + self.form.text("initials-fault"), "")
                self.assertEqual(self.form.text("outcome"), "")

    def test_what_a_text_cannot_hold_the_form_refuses(self):
        for name, words in (("Ann>", 'Mail programs quote with ">": please leave it out.'),
                            ("\u0141ukasz", 'The pool\'s files cannot hold "\u0141": please write it in other letters.'),
                            ("A\x7fnn", "There is a character in it that cannot be seen: please type it anew.")):
            with self.subTest(name):
                self.browser.run("byId('name').value = arguments[0]", name)
                self.form.by_id("copy").click()
                self.assertEqual(self.form.text("name-fault"), words)
                self.assertEqual(self.form.text("outcome"), "")


if __name__ == "__main__":
    unittest.main()
