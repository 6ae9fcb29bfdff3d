"""A whole bracket, by touch, by mouse and by keyboard: the file is the one that the program saves."""

import unittest

from selenium.webdriver.common.keys import Keys

from browser import DESKTOP, TELEPHONE, Browser
from entry_form import Form, Pool, presses

TOUCH = 44  # pixels: what a finger needs

# Some upsets in every round: the lower team wins every third game.
BRACKET = presses([1 if game % 3 == 1 else 0 for game in range(63)])
NORA = {"name": "Nora Lind", "initials": "nl", "total": "142", "email": "nora@example.org"}


class FillingIn(unittest.TestCase):
    def setUp(self):
        self.pool = Pool()
        self.addCleanup(self.pool.close)

    def open(self, **options):
        self.browser = Browser(**options)
        self.addCleanup(self.browser.close)
        return Form(self.browser, self.pool.address)

    def check_file(self):
        file = self.browser.downloaded()
        self.assertEqual(file.name, self.pool.name(NORA["name"], NORA["initials"]))
        self.assertEqual(file.name, "Nora Lind_nl.THC")
        self.assertEqual(file.read_bytes(), self.pool.file(BRACKET, NORA["name"], NORA["initials"], NORA["total"]))

    def tap_all(self, form):
        for position in BRACKET:
            place = form.place(position)
            self.assertGreaterEqual(place.size["height"], TOUCH, f"place {position}")
            self.assertGreaterEqual(place.size["width"], TOUCH, f"place {position}")
            self.browser.tap(place)
        # From here on nothing scrolls: two quick taps at the same place would be one double tap.
        self.browser.tap(form.by_id("to-hand-in"))
        for name, text in NORA.items():
            self.browser.tap(form.by_id(name))
            self.browser.wait(lambda name=name: form.focused().get_attribute("id") == name, f"focus on {name}")
            self.browser.type(text)
        self.assertGreaterEqual(form.by_id("save").size["height"], TOUCH)
        self.browser.tap(form.by_id("save"))

    def test_by_touch_on_a_telephone(self):
        form = self.open(size=TELEPHONE, touch=True)
        self.tap_all(form)
        self.assertEqual(form.text("count"), "63 of 63")
        self.check_file()

    def test_by_touch_on_a_large_screen(self):
        form = self.open(size=DESKTOP, touch=True)
        self.tap_all(form)
        self.check_file()

    def test_by_mouse(self):
        for size in TELEPHONE, DESKTOP:
            with self.subTest(size):
                form = self.open(size=size)
                form.press(BRACKET)
                form.fill_in(**NORA)
                form.by_id("save").click()
                self.check_file()

    def walk(self, form):
        """Goes through the page with Tab, once; presses what is to be pressed."""
        left = set(BRACKET)
        for _ in range(300):
            self.browser.type(Keys.TAB)
            focused = form.focused()
            position, name = focused.get_attribute("data-position"), focused.get_attribute("id")
            if position and int(position) in left:
                left.remove(int(position))
                self.browser.type(Keys.SPACE if len(left) % 2 else Keys.ENTER)
            elif name in NORA:
                self.browser.type(NORA[name])
            elif name == "save":
                self.browser.type(Keys.ENTER)
                break
        self.assertEqual(left, set())

    def test_by_keyboard_on_a_telephone(self):
        self.walk(self.open(size=TELEPHONE))
        self.check_file()

    def test_by_keyboard_on_a_large_screen(self):
        self.walk(self.open(size=DESKTOP))
        self.check_file()


if __name__ == "__main__":
    unittest.main()
