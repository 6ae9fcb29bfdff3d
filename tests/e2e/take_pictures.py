#!/usr/bin/env python3
"""Takes the pictures of the README anew: python3 -B take_pictures.py (the program has to be built)."""

import pathlib
import subprocess

from program import Program, centre

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


def sort_by_score(program):
    """Drags the heading to the front; the file names then stand in the second column."""
    headings = program.table("msgScoreDisplay")["headings"]
    first = headings[0]["rect"]
    program.drag_between(centre(headings[2]["rect"]), (first[0] + 4, centre(first)[1]))
    program.wait(lambda: program.rows("msgScoreDisplay")[0][0] == "80", "the best first")


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
        program.menu("mnuOptions", "mnuGameResults")
        shows(program, "txtPlayerName", "FinalResults")
        program.menu("mnuOptions", "mnuScoreSelections")
        program.click("cmdOk")
        program.wait(lambda: program.rows("msgScoreDisplay"), "the scores")
        sort_by_score(program)
        program.click_at(centre(program.table("msgScoreDisplay")["rects"][0][1]))
        program.wait(lambda: program.colour("lblRegion_16") == "#00ff00", "the marks")
        take(program, "scores")
        program.click("cmdExit")
        program.menu("mnuReports")
        for index in range(7):
            program.click(f"chkOptions_{index}")
        program.click("optDestination_1")
        program.wait(lambda: program.widget("optDestination_1")["checked"], "the destination")
        take(program, "reports")


if __name__ == "__main__":
    main()
