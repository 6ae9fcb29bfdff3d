"""Debian's Chromium without a window: pages as a person sees them, by touch, by mouse and by keyboard.

Nothing here waits a fixed time: every step waits until what it needs is there.
"""

import base64
import json
import os
import pathlib
import shutil
import tempfile

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.actions.action_builder import ActionBuilder
from selenium.webdriver.common.actions.interaction import POINTER_TOUCH
from selenium.webdriver.common.actions.pointer_input import PointerInput
from selenium.webdriver.support.wait import WebDriverWait

DRIVER = "/usr/bin/chromedriver"
AXE = pathlib.Path(os.environ.get("TALLYHOOP_AXE", "")) / "node_modules/axe-core/axe.min.js"
PATIENCE = float(os.environ.get("TALLYHOOP_PATIENCE", 60))  # seconds; only a failing test ever waits that long

TELEPHONE = 360, 740
SIDEWAYS = 740, 360
TABLET = 768, 1024
DESKTOP = 1366, 768


class Browser:
    """Use as a context manager. What a page keeps is kept in `home`: another browser with the same one finds it."""

    def __init__(self, size=DESKTOP, touch=False, dark=False, home=None):
        self._scratch = pathlib.Path(tempfile.mkdtemp(prefix="tallyhoop-pages-"))
        self.downloads = self._scratch / "downloads"
        self.downloads.mkdir()
        self.driver = webdriver.Chrome(options=self._options(home or self._scratch / "home"), service=Service(DRIVER))
        try:
            self._show(size, touch, dark)
        except BaseException:
            self.close()
            raise

    def _options(self, home):
        options = webdriver.ChromeOptions()
        options.add_argument("--headless=new")
        options.add_argument(f"--user-data-dir={home}")
        if os.geteuid() == 0:
            options.add_argument("--no-sandbox")  # which root cannot have
        options.add_experimental_option("prefs", {"download.default_directory": str(self.downloads)})
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        return options

    def _show(self, size, touch, dark):
        width, height = size
        self.command("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=touch)
        self.command("Emulation.setTouchEmulationEnabled", enabled=touch)
        self.command("Emulation.setEmulatedMedia",
                     features=[{"name": "prefers-color-scheme", "value": "dark" if dark else "light"}])

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self.driver.quit()
        shutil.rmtree(self._scratch, ignore_errors=True)

    def command(self, name, **arguments):
        """A command of the protocol of Chromium's own tools."""
        return self.driver.execute_cdp_cmd(name, arguments)

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def wait(self, condition, what):
        return WebDriverWait(self.driver, PATIENCE, 0.05).until(lambda _: condition(), f"There was no {what}")

    def tap(self, element):
        """Touches the middle of an element, after it was scrolled into view where that is needed."""
        self.run("arguments[0].scrollIntoView({block: 'nearest'})", element)
        box = self.run("const {x, y, width, height} = arguments[0].getBoundingClientRect(); "
                       "return [x + width / 2, y + height / 2]", element)
        finger = ActionBuilder(self.driver, mouse=PointerInput(POINTER_TOUCH, "finger"), duration=0)
        finger.pointer_action.move_to_location(*map(int, box)).pointer_down().pointer_up()
        finger.perform()

    def type(self, *keys):
        ActionChains(self.driver).send_keys(*keys).perform()

    def downloaded(self):
        """The one file that was downloaded, complete."""
        def complete():
            files = list(self.downloads.iterdir())
            return files if files and not any(file.suffix in (".crdownload", ".tmp") or file.name.startswith(".")
                                              for file in files) else None
        files = self.wait(complete, "file in the downloads")
        if len(files) != 1:
            raise AssertionError(f"More than one file: {files}")
        return files[0]

    def events(self, method):
        """The parameters of what happened in the browser since the last time, of one kind."""
        messages = [json.loads(entry["message"])["message"] for entry in self.driver.get_log("performance")]
        return [message["params"] for message in messages if message["method"] == method]

    def complaints(self):
        """What the browser's console says since the last time, without mere information."""
        return [entry["message"] for entry in self.driver.get_log("browser") if entry["level"] != "INFO"]

    def axe_findings(self):
        """What axe-core finds on the page, also what it leaves to people: rules with the elements."""
        self.run(AXE.read_text())
        found = self.driver.execute_async_script("axe.run().then(arguments[0])")
        if len(found["passes"]) <= 10:
            raise AssertionError("axe-core has looked at nothing")
        return [(rule["id"], [node["html"] for node in rule["nodes"]])
                for rule in found["violations"] + found["incomplete"]]

    def clipboard(self):
        return self.driver.execute_async_script("navigator.clipboard.readText().then(arguments[0], arguments[0])")

    def allow_clipboard(self):
        """Without the question that a person would be asked."""
        for name in "clipboard-read", "clipboard-write":
            self.command("Browser.setPermission", permission={"name": name}, setting="granted")

    def printed(self, width, height):
        """The page as printed on paper of a size in inches: a PDF."""
        pdf = self.command("Page.printToPDF", paperWidth=width, paperHeight=height, preferCSSPageSize=False)
        return base64.b64decode(pdf["data"])
