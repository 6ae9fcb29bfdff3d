"""The pool's page asks the network for nothing, and what a pool says is never more than text."""

import unittest

from browser import Browser
from pool_page import TABS, Page, PagePool, pool_2000
from safety_test import HOSTILE, Server


class Safety(unittest.TestCase):
    def setUp(self):
        self.browser = Browser()
        self.addCleanup(self.browser.close)

    def pool(self, **options):
        pool = PagePool(**options)
        self.addCleanup(pool.close)
        return pool

    def use_every_part(self, page):
        for tab in TABS:
            page.show(tab)
        page.choose("bracket-other", 1)
        page.show("what-if")
        page.all(".side")[0].click()
        page.show("picks")
        page.choose("picks-game", 16)
        page.show("road")
        page.choose("road-kind", "points")

    def test_no_request_leaves_the_page(self):
        pool = self.pool()
        server = Server(pool.folder)
        self.addCleanup(server.close)
        address = f"{server.address}/{pool.page.name}"
        self.browser.events("Network.requestWillBeSent")  # those of the browser's own first page
        self.use_every_part(Page(self.browser, address))

        asked = [event["request"]["url"] for event in self.browser.events("Network.requestWillBeSent")]
        self.assertEqual([one for one in asked if not one.startswith("data:")], [address])
        self.assertEqual(server.asked, [f"/{pool.page.name}"])
        self.assertEqual(self.browser.complaints(), [])

    def test_the_policy_forbids_requests_and_foreign_scripts(self):
        pool = self.pool()
        server = Server(pool.folder)
        self.addCleanup(server.close)
        Page(self.browser, f"{server.address}/{pool.page.name}")

        refused = self.browser.driver.execute_async_script("""
            const address = arguments[0], done = arguments[1];
            const refused = new Set();
            addEventListener('securitypolicyviolation', (event) => {
                refused.add(event.effectiveDirective);
                if (refused.size === 4) done([...refused].sort());
            });
            for (const [tag, attribute] of [['img', 'src'], ['script', 'src']]) {
                const element = document.createElement(tag);
                element[attribute] = address;
                document.body.append(element);
            }
            const style = document.createElement('style');
            style.textContent = 'body { color: red }';
            document.body.append(style);
            fetch(address).catch(() => {});""", f"{server.address}/stolen")

        self.assertEqual(refused, ["connect-src", "img-src", "script-src-elem", "style-src-elem"])
        self.assertEqual(server.asked, [f"/{pool.page.name}"])

    def texts(self, page, tab):
        page.show(tab)
        return self.browser.run("return document.getElementById(arguments[0]).textContent", tab)

    def test_hostile_names_are_text_in_every_part(self):
        lines = pool_2000.setup_file(title=HOSTILE[0])
        lines[1:1 + len(HOSTILE)] = HOSTILE
        lines[66] = HOSTILE[1]  # the first region's title
        lines[92] = f"{HOSTILE[0]}|{HOSTILE[1]}"  # a comment of two lines
        pool = self.pool(field=lines, names=HOSTILE, played=45)
        page = Page(self.browser, pool.address)

        self.assertEqual(self.browser.driver.title, HOSTILE[0])
        self.assertEqual(page.by_id("title").text, HOSTILE[0])
        for tab in "standings", "what-if", "picks":
            text = self.texts(page, tab)
            for name in HOSTILE:
                self.assertIn(name, text, tab)
        for number, name in enumerate(HOSTILE):
            page.show("brackets")
            page.choose("bracket-player", number)
            self.assertIn(name, page.all(".summary")[0].get_attribute("textContent"))
            for team in HOSTILE:
                self.assertIn(team, self.texts(page, "brackets"))
            page.choose("bracket-other", (number + 1) % len(HOSTILE))
            self.assertIn(name, self.texts(page, "brackets"))
            page.choose("bracket-other", "")
        self.use_every_part(page)

        self.assertEqual(self.browser.driver.title, HOSTILE[0])
        self.assertEqual(self.browser.run("return document.querySelectorAll('script').length"), 2)
        self.assertEqual(self.browser.run("return document.querySelectorAll('img, b, iframe').length"), 0)
        self.assertEqual(self.browser.complaints(), [])


if __name__ == "__main__":
    unittest.main()
