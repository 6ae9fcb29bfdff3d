"""A virtual display with a window manager, and a hand on its mouse and keyboard."""

import contextlib
import os
import shutil
import signal
import subprocess
import tempfile
import time


# Whatever a test starts ends with it, also when the test itself is killed.
ENDING_WITH_US = ["setpriv", "--pdeathsig", "TERM"]


class Display:
    """One Xvfb with openbox, on a display number that the server picks itself.

    Positions are told as a program takes them that makes everything larger by the scale.
    """

    def __init__(self, width=1366, height=768, scale=1):
        self._scale = scale
        self._log = tempfile.TemporaryFile()
        told, tell = os.pipe()
        # Without -noreset the server starts afresh whenever its last client leaves, and takes newcomers down with it.
        self._server = subprocess.Popen(
            [*ENDING_WITH_US, "Xvfb", "-displayfd", str(tell), "-screen", "0", f"{width}x{height}x24",
             "-nolisten", "tcp", "-noreset"],
            pass_fds=[tell], stdout=self._log, stderr=self._log)
        os.close(tell)
        with os.fdopen(told) as number:
            answer = number.readline().strip()  # comes when the server is ready, or empty when it has ended
        if not answer:
            raise RuntimeError("Xvfb did not start")
        self.name = ":" + answer
        self._manager = subprocess.Popen([*ENDING_WITH_US, "openbox", "--sm-disable"], env=self.environment(),
                                         stdout=self._log, stderr=self._log)
        # A window that comes before the window manager never gets the keyboard.
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
        """The window manager takes its time: no window comes to the screen meanwhile."""
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

    def screenshot(self, path):
        subprocess.run(["import", "-silent", "-window", "root", path], env=self.environment(), check=True)


def tools_are_there():
    return all(shutil.which(tool) for tool in ("Xvfb", "openbox", "xdotool", "import"))
