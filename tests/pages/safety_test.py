"""The entry form asks the network for nothing, and what a field says is never more than text."""

import functools
import http.server
import threading
import unittest

from browser import Browser
from entry_form import UPPER_TEAMS, Form, Pool, pool_2000

# Names that are markup, script, escapes, a place of the template, letters beyond ASCII and a byte without a character.
HOSTILE = [
    "</script><script>document.title='taken'</script>&\"'",
    "<img src=x onerror=\"document.title='taken'\">",
    "<!--<script>",
    "@FIELD@ @TITLE@",
    "\\u003cb\\u003e \\ \" \t",
    "Universit\u00e9 de Montr\u00e9al \u20ac \u2019",
    "\u0081 \u009d",
    "${team} `team`",
]


class Server:
    """A web server that remembers what it was asked for."""

    def __init__(self, folder):
        asked = self.asked = []

        class Handler(http.server.SimpleHTTPRequestHandler):
            def log_request(self, *_):
                asked.append(self.path)

            def log_message(self, *_):
                pass

        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0),
                                                       functools.partial(Handler, directory=folder))
        self.address = f"http://127.0.0.1:{self._server.server_address[1]}"
        threading.Thread(target=self._server.serve_forever).start()

    def close(self):
        self._server.shutdown()
        self._server.server_close()


class Safety(unittest.TestCase):
    def setUp(self):
        self.browser = Browser()
        self.addCleanup(self.browser.close)

    def pool(self, *arguments, **options):
        pool = Pool(*arguments, **options)
        self.addCleanup(pool.close)
        return pool

    def hand_in_every_way(self, form):
        form.press_at_once(UPPER_TEAMS)
        form.fill_in(name="Nora Lind", initials="NL", total="142", email="nora@example.org")
        for way in "save", "copy", "mail":
            form.by_id(way).click()
            self.browser.wait(lambda: form.text("outcome"), "word about how it went")
        self.browser.downloaded()

    def test_no_request_leaves_the_page(self):
        pool = self.pool()
        server = Server(pool.page.parent)
        self.addCleanup(server.close)
        page = f"{server.address}/{pool.page.name}"
        self.browser.events("Network.requestWillBeSent")  # those of the browser's own first page
        self.hand_in_every_way(Form(self.browser, page))

        asked = [event["request"]["url"] for event in self.browser.events("Network.requestWillBeSent")]
        self.assertEqual([one for one in asked if not one.startswith(("data:", "blob:", "mailto:"))], [page])
        self.assertEqual(server.asked, [f"/{pool.page.name}"])
        self.assertEqual(self.browser.complaints(), [])

    def test_the_policy_forbids_whatever_would_ask_the_network(self):
        pool = self.pool()
        server = Server(pool.page.parent)
        self.addCleanup(server.close)
        Form(self.browser, f"{server.address}/{pool.page.name}")

        refused = self.browser.driver.execute_async_script("""
            const address = arguments[0], done = arguments[1];
            const tags = {img: 'src', script: 'src', iframe: 'src', link: 'href', audio: 'src'};
            const refused = new Set();
            addEventListener('securitypolicyviolation', (event) => {
                refused.add(event.effectiveDirective);
                if (refused.size === 7) done([...refused].sort());
            });
            for (const [tag, attribute] of Object.entries(tags)) {
                const element = document.createElement(tag);
                if (tag === 'link') element.rel = 'stylesheet';
                element[attribute] = address;
                document.body.append(element);
            }
            fetch(address).catch(() => {});
            const form = document.createElement('form');
            form.action = address;
            document.body.append(form);
            form.submit();""", f"{server.address}/stolen")

        self.assertEqual(refused, ["connect-src", "form-action", "frame-src", "img-src", "media-src", "script-src-elem",
                                   "style-src-elem"])
        self.assertEqual(server.asked, [f"/{pool.page.name}"])

    def test_hostile_names_are_text(self):
        lines = pool_2000.setup_file(title=HOSTILE[0])
        lines[1:1 + len(HOSTILE)] = HOSTILE
        lines[66] = HOSTILE[1]  # the first region's title
        lines[92] = f"{HOSTILE[0]}|{HOSTILE[1]}"  # a comment of two lines
        pool = self.pool(lines, organiser="\"><script>document.title='taken'</script>")
        form = Form(self.browser, pool.address)

        self.assertEqual(form.teams()[:len(HOSTILE)], HOSTILE)
        self.assertEqual(self.browser.driver.title, HOSTILE[0])
        self.assertEqual(form.text("title"), HOSTILE[0])
        self.assertEqual(form.text("comment1"), f"{HOSTILE[0]}\n{HOSTILE[1]}")
        self.assertEqual(self.browser.run("return document.querySelectorAll('script').length"), 2)
        self.assertEqual(self.browser.run("return document.querySelectorAll('img').length"), 0)

        form.press_at_once(UPPER_TEAMS)
        form.fill_in(name="N", initials="L", total="142")
        form.by_id("save").click()
        self.assertEqual(self.browser.downloaded().read_bytes(), pool.file(UPPER_TEAMS, "N", "L", "142"))
        self.assertEqual(self.browser.complaints(), [])


if __name__ == "__main__":
    unittest.main()
