"""The program under test: a program folder of its own, real windows, real mouse and key events.

Nothing here waits a fixed time: every step waits until what it needs is there, and fails with a report of what it saw instead.
"""

import contextlib
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

from build_folder import BUILD
from display import ENDS_WITH_THE_TEST, Display
from inspector import Ended, Inspector
from program_folder import ProgramFolder
from target import TARGET

PATIENCE = float(os.environ.get("TALLYHOOP_PATIENCE", 60))  # seconds; only a failing test ever waits that long

SANITIZERS = "AddressSanitizer", "LeakSanitizer", "runtime error:"  # the words in a sanitized program's complaints
NOBODY = 65534  # the number of the user without rights

LOST_KEY = PATIENCE / 6  # seconds after which a key that nobody received is pressed again
SOON = 0.5  # seconds after which a pointer that nobody has noticed is moved again


def plain(caption):
    """A caption without its mnemonic marks: "&Open" is "Open", "A && B" is "A & B"."""
    return caption.replace("&&", "\0").replace("&", "").replace("\0", "&")


def centre(rect):
    x, y, width, height = rect
    return x + width // 2, y + height // 2


def where_to_press(widget):
    """The middle of a widget; of a check box or option button its mark, as the widget is wider than what reacts."""
    x, y, _, height = widget["rect"]
    if widget["class"] in ("QCheckBox", "QRadioButton"):
        return x + 9, y + height // 2
    return centre(widget["rect"])


def _place_of(button, box):
    """The middle of a box's button that can be pressed; None when it has none of that text."""
    for candidate in box["buttons"]:
        if plain(candidate["text"]) == button and candidate["enabled"]:
            return centre(candidate["rect"])
    return None


class Failed(AssertionError):
    """A step of the story could not be taken."""


class Program(ProgramFolder):
    """One program folder and the program running in it. Use as a context manager."""

    def __init__(self, folder=None, executable=None, platform=TARGET.PLATFORM, environment=None, home=None, as_user=(),
                 size=(1366, 768), scale=1):
        """home: where an installed program makes its folder itself; as_user: the words that start a command as another
        user; scale: how many pixels of the display are one of the program's."""
        self._scratch = pathlib.Path(tempfile.mkdtemp(prefix="tallyhoop-e2e-"))
        self._home = pathlib.Path(home) if home else self._scratch / "home"
        super().__init__(self._home / "Tallyhoop" if home else folder or self._scratch / "pool")
        self._as_user = as_user
        self._executable = executable
        self._platform = platform
        self._more_environment = dict(environment or {})
        if scale != 1:
            self._more_environment["QT_SCALE_FACTOR"] = str(scale)
        self._display = Display(*size, scale) if platform == TARGET.PLATFORM else None
        self._environment = None
        self._process = None
        self._inspector = None
        self._errors = self._scratch / "errors.txt"
        if executable is None:
            self.lay_out()

    def __enter__(self):
        return self

    def __exit__(self, kind, error, trace):
        if error is not None:
            self._leave_evidence()
        self.stop()
        TARGET.clear(self._scratch)
        if self._display:
            self._display.close()
        errors = self.errors()
        shutil.rmtree(self._scratch, ignore_errors=True)
        if error is None and any(word in errors for word in SANITIZERS):
            raise Failed(errors)

    # --- starting and stopping ---

    def start(self):
        if self._inspector:
            self._inspector.close()  # of the run before
        port_file = self._scratch / "inspector"
        port_file.unlink(missing_ok=True)
        runtime = self._scratch / "runtime"
        plugins = self._scratch / "plugins"
        self._home.mkdir(exist_ok=True)
        runtime.mkdir(mode=0o700, exist_ok=True)
        # A copy, because not every user may read the folder of the build.
        shutil.copytree(BUILD / "tests/e2e/plugins", plugins, dirs_exist_ok=True)
        if self._as_user:
            for folder in (self._scratch, self._home, runtime):
                os.chown(folder, NOBODY, NOBODY)
        environment = {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"), "HOME": str(self._home),
            "XDG_RUNTIME_DIR": str(runtime), "QT_QPA_PLATFORM": self._platform,
            "QT_PLUGIN_PATH": TARGET.shown(plugins), "QT_QPA_GENERIC_PLUGINS": "tallyhoopinspector",
            "CUPS_SERVER": str(self._scratch / "no-printers"),  # no test may print on a printer of this machine
            "TALLYHOOP_INSPECTOR_PORT_FILE": TARGET.shown(port_file), **self._more_environment}
        # A session's message bus, where there is one; and which leaks are not the program's.
        for name in "DBUS_SESSION_BUS_ADDRESS", "LSAN_OPTIONS":
            if name in os.environ:
                environment.setdefault(name, os.environ[name])
        if self._display:
            environment["DISPLAY"] = self._display.name
        self._environment = self._environment or TARGET.prepare(self._scratch, environment)
        executable = self._executable or self.folder / TARGET.PROGRAM
        if self.folder.parent != self._home:
            self.folder.mkdir(parents=True, exist_ok=True)
        with open(self._errors, "ab") as errors:
            self._process = subprocess.Popen([*self._as_user, *ENDS_WITH_THE_TEST, *TARGET.command(executable)],
                                             cwd=self._scratch, env=self._environment, stdin=subprocess.DEVNULL, stdout=errors,
                                             stderr=errors)
        self._inspector = Inspector(port_file)
        self._inspector.connect(lambda: self._process.poll() is None, PATIENCE)
        self.wait(lambda: any(window["active"] for window in self.windows()), "a window with the focus")
        return self

    def is_running(self):
        return self._process is not None and self._process.poll() is None

    def process_id(self):
        return self._process.pid

    def wait_for_end(self):
        """Waits until the program has ended by itself; its exit code."""
        try:
            return self._process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise Failed("the program did not end") from None

    def close(self):
        """Closes the frame as the window manager's close button does, and waits for the end."""
        self.wait(lambda: any(window["active"] and not window["modal"] for window in self.windows()),
                  "the frame in front")
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            self._display.key("Alt+F4")
            with contextlib.suppress(subprocess.TimeoutExpired):  # the key was lost: once more
                return self._process.wait(LOST_KEY)
        return self.wait_for_end()

    def stop(self):
        """Ends the program without asking it; for the end of a test."""
        if self._inspector:
            self._inspector.close()
            self._inspector = None
        if self.is_running():
            self._process.send_signal(signal.SIGKILL)
            self._process.wait()

    def restart(self):
        if self.is_running():
            self.close()
        return self.start()

    def errors(self):
        """Everything the program wrote to its terminal."""
        return TARGET.of_program(self._errors.read_text(errors="replace")) if self._errors.exists() else ""

    # --- looking ---

    def wait(self, condition, what):
        """Calls condition() until its result is true, and returns that."""
        end = time.monotonic() + PATIENCE
        while True:
            answer = condition()
            if answer:
                return answer
            if not self.is_running():
                raise Failed(f"the program has ended (code {self._process.returncode}) before: {what}\n{self.errors()}")
            if time.monotonic() > end:
                raise Failed(f"did not happen: {what}; modal: {self.modal()}; windows: {self.windows()}")
            time.sleep(0.01)

    def windows(self):
        return self._inspector.ask("windows")["windows"]

    def modal(self):
        """The modal box in front, or an empty dictionary."""
        return self._inspector.ask("modal")

    def widget(self, name):
        """Everything the inspector knows of a widget; fails when there is none of that name."""
        known = self._inspector.ask("widget", name)
        if not known["found"]:
            raise Failed(f"there is no {name}")
        return known

    def has(self, name):
        return self._inspector.ask("widget", name)["found"]

    def reachable(self, name):
        """Whether a press on the widget would reach it."""
        known = self._inspector.ask("widget", name)
        return known["found"] and known["reachable"]

    def without_window_manager(self):
        """Within this context, new windows do not appear on the screen."""
        return self._display.without_manager()

    def visible(self, name):
        known = self._inspector.ask("widget", name)
        return known["found"] and known["visible"]

    def text(self, name):
        return self.widget(name)["text"]

    def caption(self, name):
        return plain(self.widget(name)["text"])

    def colour(self, name):
        return self.widget(name)["colour"]

    def enabled(self, name):
        return self.widget(name)["enabled"]

    def rows(self, name):
        """The cells of a list or table, row by row, in the order shown."""
        return self._inspector.ask("table", name)["rows"]

    def table(self, name):
        return self._inspector.ask("table", name)

    def action(self, name):
        """A menu entry: enabled, visible, text."""
        known = self._inspector.ask("action", name)
        if not known["found"]:
            raise Failed(f"there is no menu entry {name}")
        return known

    def grab(self, name, path):
        """A picture of one widget."""
        if not self._inspector.ask("grab", name, path=TARGET.shown(path))["found"]:
            raise Failed(f"no picture of {name}")

    def fill_display(self):
        """Makes the window in front as large as the display."""
        before = self.windows()
        self._display.fill()
        self.wait(lambda: self.windows() != before, "a larger window")

    def screenshot(self, path):
        """A picture of the whole display."""
        self._display.screenshot(str(path))

    def clipboard(self, text=None):
        """What is on the clipboard; with a text, that is put there first."""
        return self._inspector.ask("clipboard", **({} if text is None else {"text": text}))["text"]

    # --- acting ---

    def move(self, point):
        self._act("moves", lambda: self._display.move(*point), mouse="move", x=point[0], y=point[1])

    def press(self, where, button=1):
        """Presses at a point, or where a function says that it is now; gives the point."""
        point = self._point_at(where if callable(where) else lambda: where)
        self._act("presses", lambda: self._display.press(button), mouse="press", x=point[0], y=point[1], button=button)
        return point

    def release(self, point, button=1):
        self._act("releases", lambda: self._display.release(button),
                  mouse="release", x=point[0], y=point[1], button=button)

    def click_at(self, where, button=1):
        self.release(self.press(where, button), button)

    def click(self, name):
        self.click_at(lambda: where_to_press(self._reachable(name)))

    def right_click(self, name):
        self.click_at(lambda: where_to_press(self._reachable(name)), button=3)

    def drag(self, name, target):
        """Presses on one widget, moves in steps, lets go on another."""
        self.drag_between(where_to_press(self._reachable(name)), where_to_press(self._reachable(target)))

    def drag_between(self, start, end):
        self.press(start)
        steps = 6
        for step in range(1, steps + 1):
            self.move(tuple(a + (b - a) * step // steps for a, b in zip(start, end)))
        self.release(end)

    def key(self, key):
        self._listening()
        self._act("keys", lambda: self._display.key(key), key=key)

    def type_text(self, text):
        """Types wherever the focus is."""
        self._listening()
        if self._display:
            self._display.type(text)
        else:
            self._inspector.ask("inject", type=text)

    def type(self, name, text):
        """Replaces the text of an entry field by typing."""
        self.click(name)
        self.wait(lambda: self.widget(name)["focus"], f"{name} having the focus")
        self.key("Ctrl+A")
        self.key("Delete")
        self.wait(lambda: self.text(name) == "", f"{name} being empty")
        if text:
            self.type_text(text)
        self.wait(lambda: self.text(name) == text, f"{name} holding {text!r}")

    def menu(self, *path):
        """Clicks through menus by the names of their entries: menu("mnuFile", "mnuExit")."""
        for name in path:
            def clickable(entry=name):
                action = self.action(entry)
                return action["rect"] if action["rect"] and action["enabled"] else None
            self.click_at(lambda: centre(self.wait(clickable, f"the menu entry {name}, to be clicked")))

    def box(self, title=None, button=None):
        """Waits for a modal box, of that title and with that button if they are given."""
        def there():
            known = self.modal()
            if not known or not known["active"] or title not in (None, known["title"]):
                return None
            return known if button is None or _place_of(button, known) else None
        return self.wait(there, f"the box {title!r}" + (f" with the button {button!r}" if button else ""))

    def answer(self, button, title=None):
        """Waits for a modal box and presses one of its buttons; gives what the box showed."""
        known = None

        def place():
            nonlocal known
            known = self.box(title, button)  # a dialog may have the title of the box that it shows
            return _place_of(button, known)

        self.click_at(place)
        self.wait(lambda: self.modal() != known, f"the box {known['title']!r} going away")
        return known

    def file_dialog(self, *names):
        """Waits for a file dialog, types the paths (a bare name is in the program folder) and accepts them."""
        self.wait(lambda: self.modal().get("name") == "QFileDialog", "a file dialog")
        self.box()
        paths = [self.path(name) for name in names]
        self.type("fileNameEdit", paths[0] if len(paths) == 1 else " ".join(f'"{path}"' for path in paths))
        self.key("Return")

    def cancel_printing(self):
        """Cancels the choice of a printer; without printers there may be none, but a message."""
        if TARGET.OFFERS_PRINTERS:
            self.answer("Cancel", "Print")
        else:
            self.answer("OK", "Tallyhoop")

    def on_command_line(self, *words):
        """What the program without windows answers to these words."""
        return subprocess.run([*TARGET.command(self.folder / TARGET.CLI), *words], env=self._environment,
                              capture_output=True, check=True).stdout

    # --- inside ---

    def _reachable(self, name):
        def there():
            known = self._inspector.ask("widget", name)
            return known if known["found"] and known["reachable"] else None
        return self.wait(there, f"{name} being on the screen, to be pressed")

    def _listening(self):
        """Waits until a window gets the keys: a modal window that is not on the screen yet does not."""
        if self._display:
            self.wait(lambda: any(window["active"] and window["reachable"] for window in self.windows()),
                      "a window with the focus")

    def _point_at(self, where):
        """Moves the pointer, where the target needs it until the program has noticed it; gives the point."""
        if self._display and TARGET.SHOWS_LATE:
            return self.wait(lambda: self._noticed_at(where), "the pointer being noticed")
        point = where()
        if self._display:
            self._display.move(*point)
        return point

    def _noticed_at(self, where):
        """The point, if the program notices the pointer there soon, and what is there has not moved meanwhile."""
        point = where()
        before = self._inspector.ask("counts")["moves"]
        self._display.move(point[0] + 1, point[1])
        self._display.move(*point)
        soon = time.monotonic() + SOON
        while self._inspector.ask("counts")["moves"] == before:
            if time.monotonic() > soon:
                return None
            time.sleep(0.01)
        return point if where() == point else None

    def _act(self, counter, on_the_display, **inside):
        """Does one thing, and waits until the program has received it."""
        before = self._inspector.ask("counts")[counter]
        if self._display:
            on_the_display()
        else:
            self._inspector.ask("inject", **inside)

        again = time.monotonic() + LOST_KEY

        def received():
            nonlocal again
            try:
                if not self.is_running() or self._inspector.ask("counts")[counter] > before:
                    return True
            except Ended:
                return True  # the action ended the program
            # A key pressed while the focus changes from one window to the next reaches neither.
            if self._display and counter == "keys" and time.monotonic() > again:
                again = time.monotonic() + LOST_KEY
                on_the_display()
            return False

        self.wait(received, f"{counter} reaching the program")

    def _leave_evidence(self):
        if self._display and self.is_running():
            evidence = BUILD / "e2e-failures"
            evidence.mkdir(exist_ok=True)
            path = evidence / f"{int(time.time())}-{os.getpid()}.png"
            self._display.screenshot(str(path))
            print(f"what was on the screen: {path}")
        print(self.errors())
