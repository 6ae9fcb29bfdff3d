"""The test's side of the inspector plugin: one line of JSON asks, one line of JSON answers."""

import contextlib
import json
import socket
import time


class Ended(RuntimeError):
    """The program has ended and does not answer any more."""


class Inspector:
    def __init__(self, port_file):
        """port_file: where the program writes the port on which it listens."""
        self._port_file = port_file
        self._socket = None
        self._lines = None

    def connect(self, is_alive, timeout):
        """Waits until the program listens; gives up when is_alive() returns False."""
        end = time.monotonic() + timeout
        while True:
            try:
                self._socket = socket.create_connection(("127.0.0.1", int(self._port_file.read_text())), timeout)
                self._lines = self._socket.makefile("rw", encoding="utf-8", newline="\n")
                return
            except OSError:
                if not is_alive() or time.monotonic() > end:
                    raise RuntimeError("the program does not answer") from None
                time.sleep(0.02)

    def ask(self, question, name="", **more):
        try:
            self._lines.write(json.dumps({"ask": question, "name": name, **more}) + "\n")
            self._lines.flush()
            line = self._lines.readline()
        except ConnectionError:
            line = ""
        if not line:
            raise Ended("the program has ended")
        return json.loads(line)

    def close(self):
        if self._lines:
            with contextlib.suppress(ConnectionError):  # unsent data, when the program has ended
                self._lines.close()
        if self._socket:
            self._socket.close()
        self._socket = self._lines = None
