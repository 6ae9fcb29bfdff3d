"""The system that the program under test is made for: TARGET has all that differs for Linux and for Windows."""

import os

from build_folder import BUILD
from wine import Windows


class Linux:
    PLATFORM = "xcb"
    SHOWS_LATE = False  # whether the program takes a window for shown that is not on the screen yet
    OFFERS_PRINTERS = True  # whether the dialog in which one is chosen is shown when there are none
    LETTERS = "#1c1f24"  # their colour where the desktop has not been changed
    PROGRAM, CLI = "tallyhoop", "tallyhoop-cli"
    # All that the installation lays out, sorted; every other file in a program folder belongs to its pool.
    OWN_FILES = ["DEMOSET.EXE", "NCAALIST.THS", "TALLYHOOP.HLP", PROGRAM, CLI]

    @staticmethod
    def prepare(scratch, environment):
        """Called once for each scratch folder, before the first program runs in it; gives their whole environment."""
        return {"LC_ALL": "C.UTF-8", **environment}

    @staticmethod
    def clear(scratch):
        """Ends what is left of the programs of a scratch folder."""

    @staticmethod
    def of_program(errors):
        """What is written to the terminal, without what the program cannot help."""
        return errors

    @staticmethod
    def command(executable):
        return [str(executable)]

    @staticmethod
    def shown(path):
        """A path as the program shows and takes it."""
        return str(path)

    @staticmethod
    def built(name):
        """A program of the build by its path without extension."""
        return BUILD / name


TARGET = Windows if os.environ.get("TALLYHOOP_TARGET") == "Windows" else Linux
