#!/usr/bin/env python3
"""Takes the pictures of the README anew: python3 -B take_pictures.py (the program has to be built)."""

import pathlib
import subprocess

from program import Program

PICTURES = pathlib.Path(__file__).parents[2] / "docs/pictures"
PLAYER = "Demo Prophet_DP.THC"


def take(program, name):
    """Saves what is on the display; few colours keep the files small."""
    path = PICTURES / f"{name}.png"
    program.screenshot(path)
    subprocess.run(["convert", path, "-strip", "+dither", "-colors", "128", "-define", "png:compression-level=9", path],
                   check=True)
    print(path)


def shows(program, name, text):
    program.wait(lambda: program.text(name) == text, f"{name} showing {text!r}")


def open_player(program):
    program.menu("mnuFile", "mnuOpenSelection")
    program.file_dialog(PLAYER)
    shows(program, "txtPlayerName", "Demo Prophet")


def main():
    PICTURES.mkdir(parents=True, exist_ok=True)
    with Program() as program:
        program.start()
        program.box("** DEMO MODE OPTION **")
        take(program, "first-start")
        program.answer("OK")
        program.box()
        program.wait(lambda: "TALLYHOOP.INI" in program.files(), "the sample pool")
        program.answer("OK")
        shows(program, "lblTitle", "2000 NCAA Tournament")
        open_player(program)
        program.move((1360, 764))
        take(program, "board")
        program.menu("mnuOptions", "mnuScoreSelections")
        program.wait(lambda: program.text("txtPointScore"), "the score")
        program.move((1360, 764))
        take(program, "board-scored")


if __name__ == "__main__":
    main()
