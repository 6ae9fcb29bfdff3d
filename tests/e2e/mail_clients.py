"""Mail clients that only write down what they are given."""

import os

from target import TARGET


def write_script(path, text):
    path.write_text("#!/bin/sh\n" + text)
    path.chmod(0o755)


class Thunderbird:
    """The client of a Linux desktop: one line for each of its arguments, which are in the record all at once."""

    COMMAND = """printf '%s\\n' "$@" > "$RECORD.part"
mv "$RECORD.part" "$RECORD"
"""

    def __init__(self, desktop):
        self.record = desktop / "record"
        self.environment = {"PATH": f"{desktop}:{os.environ.get('PATH', '/usr/bin:/bin')}", "RECORD": str(self.record)}
        write_script(desktop / "thunderbird", self.COMMAND)
        write_script(desktop / "xdg-mime", "echo thunderbird.desktop\n")

    def has_all(self):
        return self.record.exists()

    def lines(self):
        return self.record.read_text(encoding="utf-8").splitlines()

    def was_given(self, recipients, file):
        """Whether a message to these is in the record, with the file attached."""
        arguments = self.lines()[1].split(",subject=")
        return arguments[0] == f"to='{','.join(recipients)}'" and f"attachment='{file.as_uri()}'" in arguments[1]


class SimpleMapi:
    """The client of Windows: tests/windows/mapi tells of its record, which ends when the program has left it."""

    def __init__(self, desktop):
        self.record = desktop / "record"
        self.environment = {"MAPI_RECORD": TARGET.shown(self.record)}

    def has_all(self):
        return self.record.exists() and any(line.startswith("MAPILogoff") for line in self.lines())

    def lines(self):
        """Without windows and sessions."""
        return [line.split(" ")[0] if line.startswith("MAPI") else line for line in self.record.read_text().splitlines()]

    @staticmethod
    def recipient(address):
        return f'recipient class 1 name "{address}" address "SMTP:{address}" id 0 reserved 0'

    @staticmethod
    def attachment(place, file):
        path = TARGET.shown(file).replace("\\", r"\005C")
        return f'file position {place} path "{path}" name "{file.name}" flags 0 reserved 0'

    def was_given(self, recipients, file):
        lines = self.lines()
        attached = self.attachment("", file).removeprefix("file position ")
        return ([line for line in lines if line.startswith("recipient ")] == [self.recipient(one) for one in recipients]
                and any(line.startswith("file position ") and line.endswith(attached) for line in lines))


CLIENT = SimpleMapi if TARGET.PLATFORM == "windows" else Thunderbird
