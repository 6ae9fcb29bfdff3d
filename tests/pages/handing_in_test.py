"""What the entry form hands in: a file, a mail, a text on the clipboard; and what it says when something is missing."""

import unittest
import urllib.parse
import zlib

from browser import Browser
from entry_form import UPPER_TEAMS, Form, Pool, pool_2000

# The upper team wins every game but the last. A comma in a name is doubled in the text.
PRESSES = [*UPPER_TEAMS[:-1], 125]
FIELD = [team.replace("Miami (FL)", "Miami, FL") for team in pool_2000.FIELD]
TEXT = """\
Tallyhoop bracket: 2000 Office Pool

Name: Zo\u00e9 O\u2019Neil
Initials: zo
Total: 142
E-mail: zoe@example.org

Region 1: West
Round 1: Arizona, Wisconsin, Texas, LSU, Purdue, Oklahoma, Louisville, St. John's
Round 2: Arizona, Texas, Purdue, Louisville
Round 3: Arizona, Purdue
Round 4: Arizona
Region 2: Midwest
Round 1: Michigan St., Utah, Kentucky, Syracuse, UCLA, Maryland, Auburn, Iowa St.
Round 2: Michigan St., Kentucky, UCLA, Auburn
Round 3: Michigan St., UCLA
Round 4: Michigan St.
Region 3: East
Round 1: Duke, Kansas, Florida, Illinois, Indiana, Oklahoma St., Oregon, Temple
Round 2: Duke, Florida, Indiana, Oregon
Round 3: Duke, Indiana
Round 4: Duke
Region 4: South
Round 1: Stanford, North Carolina, Connecticut, Tennessee, Miami,, FL, Ohio St., Tulsa, Cincinnati
Round 2: Stanford, Connecticut, Miami,, FL, Tulsa
Round 3: Stanford, Miami,, FL
Round 4: Stanford
Semifinals: Arizona, Duke
Champion: Duke

Check: """

# What the check value is made of: the name with a plain apostrophe, initials, total, and the winners as above.
CHECKED = ["Zo\u00e9 O'Neil", "zo", "142",
           *FIELD[0:16:2], *FIELD[0:16:4], *FIELD[0:16:8], FIELD[0],
           *FIELD[16:32:2], *FIELD[16:32:4], *FIELD[16:32:8], FIELD[16],
           *FIELD[32:48:2], *FIELD[32:48:4], *FIELD[32:48:8], FIELD[32],
           *FIELD[48:64:2], *FIELD[48:64:4], *FIELD[48:64:8], FIELD[48],
           "Arizona", "Duke", "Duke"]
CHECK = f"{zlib.crc32(''.join(line + chr(10) for line in CHECKED).encode('cp1252')):08X}"


def setup(teams, title="2000 Office Pool"):
    lines = pool_2000.setup_file(title)
    return [lines[0], *teams, *lines[65:]]


class HandingIn(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = Browser()
        cls.addClassCleanup(cls.browser.close)
        cls.browser.allow_clipboard()

    def setUp(self):
        for file in self.browser.downloads.iterdir():
            file.unlink()

    def open(self, teams=FIELD, **options):
        pool = Pool(setup(teams), **options)
        self.addCleanup(pool.close)
        self.form = Form(self.browser, pool.address)
        self.browser.run("localStorage.clear()")
        self.browser.driver.refresh()
        return pool

    def fill_in(self, name="Zo\u00e9 O\u2019Neil", initials="zo", total="142", email="zoe@example.org"):
        self.form.press_at_once(PRESSES)
        self.form.fill_in(name=name, initials=initials, total=total, email=email)

    def press(self, button):
        self.form.by_id(button).click()

    def outcome(self):
        return self.browser.wait(lambda: self.form.text("outcome"), "word about how it went")

    def mailed(self):
        """The address of the mail that was last asked for, in its parts."""
        addresses = [event["url"] for event in self.browser.events("Page.frameRequestedNavigation")]
        parts = urllib.parse.urlsplit(addresses[-1])
        values = dict(part.split("=", 1) for part in parts.query.split("&"))
        return addresses[-1], parts.path, {key: urllib.parse.unquote(value, errors="strict")
                                           for key, value in values.items()}

    def test_the_file_has_capital_initials_and_the_name_as_typed(self):
        pool = self.open()
        self.fill_in()
        self.press("save")

        file = self.browser.downloaded()
        self.assertEqual(file.name, "Zo\u00e9 O\u2019Neil_zo.THC")
        lines = file.read_bytes().split(b"\r\n")
        self.assertEqual(len(lines), 132)
        self.assertEqual(lines[127:], [b"ZO", b"Zo\xe9 O\x92Neil", b"142", b"*END*", b""])
        self.assertEqual(lines[126], b"Duke")
        self.assertEqual(file.read_bytes(), pool.file(PRESSES, "Zo\u00e9 O\u2019Neil", "zo", "142"))
        self.assertIn("Zo\u00e9 O\u2019Neil_zo.THC", self.outcome())

    def test_the_check_value_is_that_of_the_example(self):
        self.assertEqual(CHECK, "6623D64A")

    def test_the_mail_is_to_the_organiser_and_can_be_read(self):
        self.open()
        self.fill_in()
        self.browser.events("Page.frameRequestedNavigation")
        self.press("mail")

        address, to, values = self.mailed()
        self.assertEqual(to, "organiser@example.org")
        self.assertEqual(values["subject"], "Bracket of Zo\u00e9 O\u2019Neil (zo)")
        self.assertEqual(values["body"].split("\r\n"), (TEXT + CHECK).split("\n"))
        self.assertLess(len(address), 2000)
        self.assertIn("when you send", self.outcome())

    def test_the_clipboard_has_the_same_text(self):
        self.open()
        self.fill_in()
        self.press("copy")

        self.assertIn("organiser@example.org", self.outcome())
        self.assertEqual(self.browser.clipboard(), TEXT + CHECK)

    def test_without_an_address_there_is_no_such_line(self):
        self.open(organiser="")
        self.fill_in(email="")
        self.press("copy")

        self.assertEqual(self.outcome(), "Copied. Paste it into a mail or a message to the organiser.")
        self.assertEqual(self.browser.clipboard(), TEXT.replace("E-mail: zoe@example.org\n", "") + CHECK)

    def test_a_browser_that_forbids_the_new_way_of_copying_is_asked_the_old_way(self):
        self.open()
        self.fill_in()
        self.browser.run("navigator.clipboard.writeText = () => Promise.reject(new Error('forbidden'))")
        self.press("copy")

        self.assertIn("Copied.", self.outcome())
        self.assertFalse(self.form.by_id("text").is_displayed())
        self.assertEqual(self.browser.clipboard(), TEXT + CHECK)

    def test_a_browser_that_forbids_all_copying_shows_the_text(self):
        self.open()
        self.fill_in()
        self.browser.run("navigator.clipboard.writeText = () => Promise.reject(new Error('forbidden'));"
                         "document.execCommand = () => false")
        self.press("copy")

        self.assertIn("yourself", self.outcome())
        self.assertTrue(self.form.by_id("text").is_displayed())
        self.assertEqual(self.form.by_id("text").get_attribute("value"), TEXT + CHECK)

    def test_a_bracket_too_long_for_a_mail_is_copied(self):
        self.open([f"A team with a rather long name, number {number}" for number in range(64)])
        self.fill_in()
        self.browser.events("Page.frameRequestedNavigation")
        self.press("mail")

        self.assertIn("too long", self.outcome())
        address, to, values = self.mailed()
        self.assertLess(len(address), 2000)
        self.assertEqual(values["body"], "Please paste here what the page has copied.")
        self.assertIn("Champion: A team with a rather long name,, number 32\n", self.browser.clipboard())

    def fault_after(self, field, text):
        self.form.fill_in(**{field: text})
        return self.form.text(f"{field}-fault")

    def test_what_is_wrong_is_said_beside_the_field(self):
        self.open()
        self.assertEqual(self.fault_after("total", "12"), "12 is too few: both teams together, 50 to 250.")
        self.assertEqual(self.fault_after("total", "49"), "49 is too few: both teams together, 50 to 250.")
        self.assertEqual(self.fault_after("total", "50"), "")
        self.assertEqual(self.fault_after("total", "250"), "")
        self.assertEqual(self.fault_after("total", "251"), "251 is too many: both teams together, 50 to 250.")
        self.assertEqual(self.fault_after("total", "100.5"), '"100.5" is no whole number: both teams together, 50 to 250.')
        self.assertEqual(self.fault_after("email", "nora at home"),
                         '"nora at home" is no e-mail address that the pool can use; the field may also stay empty.')
        self.assertEqual(self.fault_after("email", "n" * 31 + "@example.org"), "")  # 43
        self.assertEqual(self.fault_after("email", "n" * 32 + "@example.org"),
                         "This has 44 characters, and the pool's list has room for 43; the field may also stay empty.")
        self.assertEqual(self.fault_after("email", ""), "")
        self.assertEqual(self.fault_after("name", "\u0141ukasz"),
                         'The pool\'s files cannot hold "\u0141": please write it in other letters.')
        self.assertEqual(self.form.by_id("name").get_attribute("aria-invalid"), "true")
        self.assertEqual(self.fault_after("name", "Lukasz"), "")
        self.assertEqual(self.form.by_id("name").get_attribute("aria-invalid"), "false")

    def test_fields_are_tidied_as_they_will_be_handed_in(self):
        self.open()
        # A letter and its accent; a non-breaking blank; a character without width; zeros before the number.
        self.form.fill_in(name="  Zoe\u0301\u00a0  Lind\u200b ", total=" 0142 ")
        self.assertEqual(self.form.by_id("name").get_attribute("value"), "Zo\u00e9 Lind")
        self.assertEqual(self.form.by_id("total").get_attribute("value"), "142")

    def test_nothing_is_handed_in_with_something_missing(self):
        self.open()
        self.press("save")

        self.assertEqual(self.form.text("name-fault"), "Please give your name.")
        self.assertEqual(self.form.text("initials-fault"), "Please give your initials.")
        self.assertEqual(self.form.text("total-fault"),
                         "Please predict how many points both teams together score in the final, 50 to 250.")
        self.assertEqual(self.form.text("email-fault"), "")
        self.assertEqual(self.form.text("picks-fault"), "63 games are still open.")
        self.assertEqual(self.form.focused().get_attribute("id"), "name")
        self.assertEqual(list(self.browser.downloads.iterdir()), [])

    def test_an_open_game_is_named_and_can_be_gone_to(self):
        self.open()
        self.form.press_at_once(PRESSES[:-1])
        self.form.fill_in(name="Nora", initials="N", total="100")
        self.press("save")

        self.assertEqual(self.form.text("picks-fault"), "One game is still open.")
        self.assertEqual(self.form.text("next"), "Next open game: Final: 1 Arizona or 1 Duke")
        self.assertEqual(self.form.focused().get_attribute("id"), "next")
        self.press("next")
        self.assertEqual(self.form.focused().get_attribute("data-position"), "124")

        self.form.press([125])
        self.assertEqual(self.form.text("picks-fault"), "")
        self.press("save")
        self.assertEqual(self.browser.downloaded().name, "Nora_N.THC")

    def test_names_that_a_disk_refuses_are_changed_as_the_program_does(self):
        pool = self.open()
        for name, initials, proposed in (("A/B: C?", "x", "A_B_ C__x.THC"),
                                         ("Nora", "a.thc", "Nora_a.thc")):
            with self.subTest(name):
                self.assertEqual(self.browser.run("return fileName({name: arguments[0], initials: arguments[1]})", name,
                                                  initials), proposed)
                self.assertEqual(pool.name(name, initials), proposed)


if __name__ == "__main__":
    unittest.main()
