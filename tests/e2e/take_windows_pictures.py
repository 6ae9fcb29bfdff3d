"""Takes the pictures of the program for Windows that the README shows. To be run by hand, with the build for Windows:

    TALLYHOOP_TARGET=Windows TALLYHOOP_BUILD=../../build-windows /usr/bin/python3 -B take_windows_pictures.py [folder]
"""

import pathlib
import shutil
import tempfile

from program import Program, centre
from sample_pool import install
from take_pictures import PICTURES, open_outlook, open_player, out_of_the_way, shows, take

# wine's letters are the better ones this way.
LETTERS = {"QT_QPA_PLATFORM": "windows:fontengine=directwrite"}


def take_board(program):
    install(program)
    open_player(program)
    program.menu("mnuOptions", "mnuScoreSelections")
    program.wait(lambda: program.text("txtPointScore"), "the score")
    out_of_the_way(program)
    take(program, "windows-board")


def take_outlook(program):
    open_outlook(program)
    take(program, "windows-outlook")


def take_reports(program):
    install(program)
    program.menu("mnuReports")
    for mark in ("chkOptions_0", "chkOptions_3", "optDestination_3"):
        program.click(mark)
        program.wait(lambda tick=mark: program.widget(tick)["checked"], "the tick")
    out_of_the_way(program)
    take(program, "windows-reports")
    program.click("cmdPreview")
    program.wait(lambda: program.modal().get("class") == "QPrintPreviewDialog", "the preview")
    program.move(centre(program.box()["rect"]))  # the program gets that once the preview is on the screen
    take(program, "windows-preview")
    program.key("Escape")
    program.wait(lambda: not program.modal(), "the preview going away")
    program.click("cmdPrintSelections")
    program.wait(lambda: program.visible("cmdSend"), "the mail")
    program.type("txtSubject", "Standings after the regional finals")
    program.type("txtMessage", "Hi all, here they are.")
    shows(program, "txtMessage", "Hi all, here they are.")
    take(program, "windows-email")


def main():
    PICTURES.mkdir(parents=True, exist_ok=True)
    for steps in (take_board, take_outlook, take_reports):
        pool = pathlib.Path(tempfile.gettempdir()) / "Tallyhoop"
        shutil.rmtree(pool, ignore_errors=True)  # of a run that was stopped
        with Program(folder=pool, environment=LETTERS) as program:
            program.suffix = ""
            steps(program)
        shutil.rmtree(pool)


if __name__ == "__main__":
    main()
