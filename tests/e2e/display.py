"""A virtual display with a window manager, and its mouse and keyboard."""

import contextlib
import os
import shutil
import signal
import subprocess
import tempfile
import time


# Everything that a test starts ends with it, also when the test itself is killed.
ENDS_WITH_THE_TEST = ["setpriv", "--pdeathsig", "TERM"]

TITLE_BAR = 19  # pixels that openbox adds above a window


class Display:
    """One Xvfb with openbox, on a display number that the server picks itself.

    Positions are in the units of a program that enlarges everything by the scale.
    """

    def __init__(self, width=1366, height=768, scale=1):
        self._size = width, height
        self._scale = scale
        self._log = tempfile.TemporaryFile()
        number_end, report_end = os.pipe()
        # Without -noreset the server resets itself when its last client leaves, and disconnects new ones.
        self._server = subprocess.Popen(
            [*ENDS_WITH_THE_TEST, "Xvfb", "-displayfd", str(report_end), "-screen", "0", f"{width}x{height}x24",
             "-nolisten", "tcp", "-noreset"],
            pass_fds=[report_end], stdout=self._log, stderr=self._log)
        os.close(report_end)
        with os.fdopen(number_end) as number:
            answer = number.readline().strip()  # a number when the server is ready, empty when it has ended
        if not answer:
            raise RuntimeError("Xvfb did not start")
        self.name = ":" + answer
        self._manager = subprocess.Popen([*ENDS_WITH_THE_TEST, "openbox", "--sm-disable"], env=self.environment(),
                                         stdout=self._log, stderr=self._log)
        # A window that is opened before the window manager is ready never gets the keyboard.
        end = time.monotonic() + 30
        while subprocess.run(["xdotool", "get_desktop"], env=self.environment(), stdout=self._log,
                             stderr=self._log).returncode != 0:
            if time.monotonic() > end:
                self.close()
                raise RuntimeError("openbox did not start")
            time.sleep(0.02)

    def environment(self):
        return {**os.environ, "DISPLAY": self.name}

    def close(self):
        for process in (self._manager, self._server):
            process.terminate()
            process.wait()
        self._log.close()

    @contextlib.contextmanager
    def without_manager(self):
        """Stops the window manager: meanwhile no new window appears on the screen."""
        self._manager.send_signal(signal.SIGSTOP)
        try:
            yield
        finally:
            self._manager.send_signal(signal.SIGCONT)

    def _do(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.environment(), check=True)

    def move(self, x, y):
        self._do("mousemove", round(x * self._scale), round(y * self._scale))

    def press(self, button=1):
        self._do("mousedown", button)

    def release(self, button=1):
        self._do("mouseup", button)

    def key(self, key):
        """A key in Qt's portable spelling, such as "Ctrl+S" or "Return"."""
        names = {"ctrl": "ctrl", "shift": "shift", "alt": "alt", "enter": "Return", "esc": "Escape", "pgup": "Prior",
                 "pgdown": "Next", "space": "space", "del": "Delete", "backspace": "BackSpace"}
        words = key.split("+")
        self._do("key", "--clearmodifiers", "+".join(names.get(word.lower(), word if len(word) > 1 else word.lower())
                                                     for word in words))

    def type(self, text):
        self._do("type", "--clearmodifiers", "--delay", "4", "--", text)

    def fill(self):
        """Gives the window in front the whole display but for its title bar."""
        width, height = self._size
        self._do("getactivewindow", "windowmove", 0, TITLE_BAR, "windowsize", width, height - TITLE_BAR)

    def screenshot(self, path):
        subprocess.run(["import", "-silent", "-window", "root", path], env=self.environment(), check=True)


def tools_are_there():
    return all(shutil.which(tool) for tool in ("Xvfb", "openbox", "xdotool", "import"))
