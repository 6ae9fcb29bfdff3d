#!/usr/bin/env python3
"""Takes pictures of every screen in light and dark colours: /usr/bin/python3 -B take_pictures.py (after a build).

The files go to docs/pictures, the dark ones under names that end with -dark. Give a folder, and perhaps a display and a
scale, to look at other sizes: /usr/bin/python3 -B take_pictures.py /somewhere 1920x1080 1.5
"""

import pathlib
import random
import shutil
import subprocess
import sys
import tempfile

import handed_in
import office_pool
from pool_2000 import selection, setup_file
from program import Program, centre

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "pages"))
from browser import DESKTOP, TELEPHONE, Browser  # noqa: E402 - a folder of its own
from entry_form import GAME_PLACES, Form, feeders  # noqa: E402
from pool_page import Page as PoolPage  # noqa: E402

PICTURES = pathlib.Path(sys.argv[1] if sys.argv[1:] else pathlib.Path(__file__).parents[2] / "docs/pictures")
SIZE = tuple(map(int, sys.argv[2].split("x"))) if sys.argv[2:] else (1366, 768)
SCALE = float(sys.argv[3]) if sys.argv[3:] else 1
LARGE = (1920, 1080)
PLAYER = "Demo Prophet_DP.THC"

# The winners of the regions, in the pool of the office.
LAST_FOUR = {30: "Wisconsin", 61: "Michigan St.", 92: "Florida", 123: "North Carolina"}

# The dark colours of a desktop, which the README recommends where Qt does not know those of the desktop.
DARK = pathlib.Path(__file__).parents[2] / "packaging/dark-colours"


def take(program, name):
    """Saves what is on the display."""
    path = PICTURES / f"{name}{program.suffix}.png"
    program.screenshot(path)
    keep_small(path)


def keep_small(path):
    """Few colours make small files."""
    subprocess.run(["convert", path, "-strip", "+dither", "-colors", "128", "-define", "png:compression-level=9", path],
                   check=True)
    print(path)


def out_of_the_way(program):
    """Moves the pointer to a place where it changes nothing."""
    [frame] = [window["rect"] for window in program.windows() if window["name"] == "frmPoolMIDI"]
    program.move((frame[0] + frame[2] - 6, frame[1] + frame[3] - 4))


def shows(program, name, text):
    program.wait(lambda: program.text(name) == text, f"{name} showing {text!r}")


def open_player(program):
    program.menu("mnuFile", "mnuOpenSelection")
    program.file_dialog(PLAYER)
    shows(program, "txtPlayerName", "Demo Prophet")


def sort_by_score(program):
    """The file names are in the second column then."""
    program.click("cmdBestFirst")
    program.wait(lambda: program.rows("msgScoreDisplay")[0][0] == "80", "the best first")


def take_all(program):
    program.start()
    program.box("** DEMO MODE OPTION **")
    take(program, "first-start")
    program.answer("OK")
    program.box()
    program.wait(lambda: "TALLYHOOP.INI" in program.files(), "the sample pool")
    program.answer("OK")
    shows(program, "lblTitle", "2000 NCAA Tournament")
    open_player(program)
    out_of_the_way(program)
    take(program, "board")
    program.menu("mnuFile")
    program.wait(lambda: program.action("mnuExit")["rect"], "the menu")
    take(program, "menu")
    program.key("Escape")
    program.menu("mnuOptions", "mnuScoreSelections")
    program.wait(lambda: program.text("txtPointScore"), "the score")
    out_of_the_way(program)
    take(program, "board-scored")
    take_help(program)
    take_scores(program)
    take_reports(program)
    program.menu("mnuOptions", "mnuEditNames")
    program.wait(lambda: len(program.rows("lstNames")) == 4, "the players")
    take(program, "players")
    take_entry_form(program)
    program.click("cmdCancel")
    program.menu("mnuSetup", "mnuSetupOptions")
    program.wait(lambda: program.visible("cmdFinalize"), "the setup")
    take(program, "setup")
    program.menu("mnuOptions", "mnuSeating")
    program.wait(lambda: program.visible("cmdComplete"), "the seed positions")
    program.box()
    take(program, "seeds")


def take_entry_form(program):
    program.click("cmdEntryForm")
    program.wait(lambda: program.visible("txtOrganiser"), "the entry form")
    program.box()
    program.type("txtOrganiser", "ann@example.org")
    take(program, "entry-form")
    program.key("Escape")
    program.wait(lambda: not program.modal(), "the entry form going away")


def take_help(program):
    program.key("F1")
    program.wait(lambda: program.has("helpText") and program.widget("helpText")["focus"], "the help")
    take(program, "help")
    program.key("Escape")
    program.wait(lambda: not program.has("helpText"), "the help going away")
    program.menu("mnuHelp", "mnuHelpAbout")
    program.box("About Tallyhoop")
    take(program, "about")
    program.answer("OK")


def take_scores(program):
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


def take_reports(program):
    program.menu("mnuReports")
    program.click("chkOptions_0")
    program.click("optDestination_2")
    program.wait(lambda: program.widget("optDestination_2")["checked"], "the destination")
    program.click("cmdPrintSelections")
    program.wait(lambda: program.visible("cmdSend"), "the mail")
    program.box()
    take(program, "email")
    program.key("Escape")
    program.wait(lambda: not program.modal(), "the mail going away")
    for index in range(1, 7):
        program.click(f"chkOptions_{index}")
    if not program.widget("chkOptions_0")["checked"]:
        program.click("chkOptions_0")
    program.click("chkWebPage")
    program.wait(lambda: program.widget("chkWebPage")["checked"], "the page being attached")
    out_of_the_way(program)
    take(program, "reports")
    program.click("cmdPreview")
    program.wait(lambda: program.modal().get("class") == "QPrintPreviewDialog", "the preview")
    program.box()
    take(program, "preview")
    program.key("Escape")
    program.wait(lambda: not program.modal(), "the preview going away")
    if not program.suffix:  # paper is white on a dark desktop, too
        take_printed_board(program)
    program.click("cmdExit")


def take_printed_board(program):
    """A scored selection as it comes from the printer, and from one without colours."""
    program.click("optSelected_0")
    row = next(rect for rect, text in zip(*(program.table("filList")[part] for part in ("rects", "rows")))
               if text == [PLAYER])
    program.click_at(centre(row[0]))
    program.click("cmdSaveBoardPdf")
    program.file_dialog("Board.PDF")
    program.wait(lambda: "Board.PDF" in program.files(), "the printed board")
    for name, colours in (("printed-board", []), ("printed-board-grey", ["-gray"])):
        path = PICTURES / name
        subprocess.run(["pdftoppm", "-png", "-r", "110", "-singlefile", *colours, program.folder / "Board.PDF", path],
                       check=True)
        keep_small(path.with_suffix(".png"))


def open_outlook(program):
    """The outlook of a pool of an office, with a player chosen."""
    office_pool.write(program)
    program.start()
    program.key("F9")
    program.wait(lambda: program.has("grdPlayers") and program.rows("grdPlayers"), "the outlook")
    program.wait(lambda: not program.enabled("cmdStop"), "all being counted")
    program.click_at(centre(program.table("grdPlayers")["rects"][1][1]))
    program.wait(lambda: program.text("lblSwing_28"), "whom to root for")
    out_of_the_way(program)


def take_outlook(program):
    """The table before and while something is supposed."""
    open_outlook(program)
    take(program, "outlook")
    program.click("lblRegion_59")
    shows(program, "lblRegion_61", program.text("lblRegion_59"))
    program.wait(lambda: not program.enabled("cmdStop"), "all being counted")
    out_of_the_way(program)
    take(program, "outlook-what-if")
    program.click("cmdAsEntered")
    shows(program, "lblRegion_61", "")


def take_money(program):
    """Fees and prizes, with a third of the players still to pay."""
    office_pool.write(program)
    program.write("TALLYHOOP.THS", selection({**office_pool.results(), **LAST_FOUR}, "X", "FinalResults"))
    program.start()
    program.menu("mnuOptions", "mnuMoney")
    for box, text in (("txtEntryFee", "20"), ("txtKeptBack", "5 %"), ("txtPrize_0", "60 %"), ("txtPrize_1", "30 %"),
                      ("txtPrize_2", "10 %")):
        program.type(box, text)
    program.click("cmdTickAll")
    for row in 1, 4, 7, 10:
        program.click_at(centre(program.table("grdFees")["rects"][row][0]))
    shows(program, "lblFees", "8 of 12 players paid: 160.00 received, 80.00 owed.")
    program.click("cmdSave")
    program.wait(lambda: "PRIZES.CSV" in program.files(), "the file")
    out_of_the_way(program)
    take(program, "money")


def take_entry_page(program):
    """The page of the entry form, as players see it."""
    office_pool.write(program)
    program.start()
    program.menu("mnuFile", "mnuEntryForm")
    program.wait(lambda: program.visible("txtOrganiser"), "the dialog")
    program.click("cmdSave")
    program.file_dialog("ENTRYFORM.HTML")
    program.wait(lambda: "ENTRYFORM.HTML" in program.files(), "the form")
    take_page(program, "entry-form-telephone", TELEPHONE, touch=True)
    take_page(program, "entry-form-desktop", DESKTOP)


def take_pool_page(program):
    """The page that shows the pool, as players see it."""
    office_pool.write(program)
    program.start()
    program.menu("mnuReports")
    program.click("cmdWebPage")
    program.wait(lambda: program.modal().get("title") == "Save as Web Page", "the forecast's end")
    program.file_dialog("POOL.HTML")
    program.wait(lambda: "POOL.HTML" in program.files(), "the page")
    picture_pool_page(program.folder / "POOL.HTML", program.suffix)


def picture_pool_page(page, suffix):
    for name, size, touch in (("pool-page-telephone", TELEPHONE, True), ("pool-page-desktop", DESKTOP, False)):
        with Browser(size=size, dark=bool(suffix), touch=touch) as browser:
            browser.command("Emulation.setScrollbarsHidden", hidden=touch)
            PoolPage(browser, page.as_uri())
            keep(browser, f"{name}{suffix}")


def take_page(program, name, size, **how):
    """The first games, and the end of the page once all of it is filled in."""
    bracket = office_pool.bracket(random.Random(95), office_pool.results())
    teams = {**office_pool.first_round(), **bracket}
    presses = [next(place for place in feeders(game) if teams[place] == bracket[game]) for game in GAME_PLACES]
    with Browser(size=size, dark=bool(program.suffix), **how) as browser:
        # Those of a telephone come and go.
        browser.command("Emulation.setScrollbarsHidden", hidden=how.get("touch", False))
        form = Form(browser, (program.folder / "ENTRYFORM.HTML").as_uri())
        form.press_at_once(presses[:26])
        browser.run("scrollTo(0, 0)")
        keep(browser, f"{name}{program.suffix}")
        form.press_at_once(presses[26:])
        form.fill_in(name="Nora Lind", initials="NL", total="147", email="nora@example.org")
        browser.run("document.activeElement.blur(); document.getElementById('hand-in').scrollIntoView()")
        keep(browser, f"{name}-hand-in{program.suffix}")


def keep(browser, name):
    path = PICTURES / f"{name}.png"
    browser.driver.save_screenshot(str(path))
    keep_small(path)


def take_import(program):
    """A review with every kind of row, then what is left of it after the import."""
    inbox = write_what_was_handed_in(program)
    program.start()
    review(program, inbox)
    for row, picture in ((1, "import"), (5, "import-refused")):
        choose(program, row)
        take(program, picture)
    program.click("cmdImport")
    program.wait(lambda: program.visible("txtSummary"), "the summary")
    out_of_the_way(program)
    take(program, "import-summary")
    shutil.rmtree(inbox)


def take_large_import(program):
    inbox = write_what_was_handed_in(program)
    program.start()
    program.fill_display()
    review(program, inbox)
    choose(program, 1)
    take(program, "import-large")
    shutil.rmtree(inbox)


def write_what_was_handed_in(program):
    """A pool in which one of the players has handed in before; gives the folder with the mails."""
    inbox = pathlib.Path(program.folder).parent / "Handed in"
    shutil.rmtree(inbox, ignore_errors=True)
    inbox.mkdir()
    program.write("POOLSTART.THS", setup_file("2000 Office Pool"))
    for number, (initials, name) in enumerate(office_pool.PLAYERS):
        picks = office_pool.bracket(random.Random(number), office_pool.results())
        total = str(120 + 5 * number)
        if name == "Joe Brandt":
            before = office_pool.bracket(random.Random(99), picks)
            program.write(f"{name}_{initials}.THC", selection(before, initials, name, "131"))
        elif name == "Lena Fischer":
            program.write(f"{name}_{initials}.THC", selection(picks, initials, name, total))
        elif name == "Sam Ortiz":
            picks = {**picks, 125: "", 126: ""}
        elif name == "Wei Chen":
            picks = {**picks, 126: "Harvard"}
        sender = f"{name.split()[0].lower()}@example.org"
        text = handed_in.form_text(name, initials, total, picks, sender)
        (inbox / f"{number:02} {name}.eml").write_bytes(handed_in.mail(sender, text))
    return inbox


def review(program, inbox):
    program.menu("mnuFile", "mnuImport")
    program.click("cmdChooseFolder")
    program.file_dialog(inbox)
    program.wait(lambda: len(program.rows("grdEntries")) == len(office_pool.PLAYERS), "the entries")


def choose(program, row):
    program.click_at(centre(program.table("grdEntries")["rects"][row][2]))
    program.wait(lambda: program.text("lblEntry").startswith(f"Row {row + 1}:"), "the bracket")
    out_of_the_way(program)


def main():
    PICTURES.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as settings:
        shutil.copy(DARK, pathlib.Path(settings) / "kdeglobals")
        night = {"QT_QPA_PLATFORMTHEME": "kde", "KDE_SESSION_VERSION": "5", "XDG_CONFIG_HOME": settings}
        for suffix, environment in (("", {}), ("-dark", night)):
            for steps, size in ((take_all, SIZE), (take_outlook, SIZE), (take_money, SIZE), (take_entry_page, SIZE),
                                (take_pool_page, SIZE), (take_import, SIZE), (take_large_import, LARGE)):
                take_in_a_pool(steps, suffix, environment=environment, size=size, scale=SCALE)


def take_in_a_pool(steps, suffix, **how):
    pool = pathlib.Path(tempfile.gettempdir()) / "Tallyhoop"  # the pictures show its name
    shutil.rmtree(pool, ignore_errors=True)  # of a run that was stopped
    with Program(folder=pool, **how) as program:
        program.suffix = suffix
        steps(program)
    shutil.rmtree(pool)


if __name__ == "__main__":
    main()
