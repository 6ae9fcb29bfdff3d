"""What each writer writes, and how to recognise a whole file."""

import email
import email.policy
import re

MARK = re.compile(rb" *MARK\d+x*")  # titles are centred: the blanks differ with the length
POINTS = re.compile(rb"\r\n1\d\d(\r\n\*END\*\r\n)\Z")
TOTAL = re.compile(rb"(Demo Prophet,DP,)1\d\d,")
CHANCES = re.compile(rb"^Chances: .*\r\n", re.MULTILINE)
VERDICTS = re.compile(rb"( +\d+(-\d+)?){2}  (Clinched|Alive|Open|Out)\r\n")
AMOUNT = re.compile(rb"\b1\d\d\.00\b")
THREE_DIGITS = re.compile(rb"\b1\d\d\b")
CHANGED = "** FILE HAS BEEN CHANGED **"
FAULTY_LIST = "** ERROR Found in PLAYERNAMES.CSV file **"
OFFER = "** DEMO MODE OPTION **"
OPEN_ALREADY = "TALLYHOOP IS OPEN ALREADY"
DEMO = "STALLYHOOP DEMOSTRATION MODE"  # sic

OWN_FILES = ["POOLSTART.THS", "TALLYHOOP.THS", "PLAYERNAMES.CSV", "Demo Favorite_DF.THC", "Demo Halfway_DH.THC",
             "Demo Longshot_DL.THC", "Demo Prophet_DP.THC"]


def without_marks(content):
    return MARK.sub(b"MARK", content)


def without_chances_and_verdicts(content):
    """In the sample pool one player is first by any chances. Places and verdicts are found in the background, by a thread
    that a forked child does not have."""
    return VERDICTS.sub(b"\r\n", CHANCES.sub(b"", content))


def without_points(content):
    return POINTS.sub(rb"\r\n1NN\1", content)


def without_total(content):
    return TOTAL.sub(rb"\g<1>1NN,", content)


def without_amounts(content):
    return AMOUNT.sub(b"1NN.00", content)


def without_totals(content):
    """The total of one player is in several places of the pool's page."""
    return THREE_DIGITS.sub(b"1NN", content)


def without_marked_lines(content):
    if not content.endswith(b"\r\n"):
        return content
    return b"".join(line for line in content.splitlines(keepends=True) if not MARK.search(line))


def pdf(content):
    """A PDF is whole when its end names the place of its table, and the table is at that place."""
    end = re.search(rb"startxref\n(\d+) ?\n%%EOF\n\Z", content)
    whole = content.startswith(b"%PDF-") and end and content[int(end[1]):].startswith(b"xref\n")
    return b"whole" if whole else content


def message(content):
    """A message is whole when each of its parts is, the attached report included."""
    parsed = email.message_from_bytes(content, policy=email.policy.default)
    parts = list(parsed.walk())
    attached = [part.get_content() for part in parts if part.get_filename()]
    if any(part.defects for part in parts) or len(attached) != 1 or not content.endswith(b"--\r\n"):
        return content
    text = attached[0] if isinstance(attached[0], bytes) else attached[0].encode("cp1252")
    return without_marks(text)


class Writer:
    def __init__(self, name, files, comparable, finalized=True, boxes=(), own_files=()):
        self.name = name
        self.files = files            # that it writes
        self.comparable = comparable  # what all whole versions of a file have in common
        self.finalized = finalized    # the pool that it needs
        self.boxes = {CHANGED, *boxes}
        self.own_files = own_files    # that must always be in the folder or in a dated one


def report(number):
    return Writer(f"report{number}", [f"RPTOPT{number}.TXT", "TEMPPRT.TXT"], without_marks)


WRITERS = {writer.name: writer for writer in [
    Writer("setup", ["POOLSTART.THS"], without_marks, finalized=False),
    Writer("results", ["TALLYHOOP.THS"], without_points),
    Writer("selection", ["Demo Prophet_DP.THC"], without_points),
    Writer("players", ["PLAYERNAMES.CSV"], without_marked_lines),
    Writer("annotated", ["PLAYERNAMES.TXT"], without_marks, boxes=[FAULTY_LIST]),
    Writer("teams", ["NCAALIST.THS"], without_marked_lines, finalized=False, boxes=["TEAM NAMES Changed / Added"]),
    Writer("import", ["Evans_DP.THC", "PLAYERNAMES.CSV"], without_points),
    Writer("table", ["SELECTIONS.CSV"], without_total, boxes=["Tallyhoop"]),
    Writer("entryform", ["ENTRYFORM.HTML"], without_marks, boxes=["Tallyhoop"]),
    *[report(number) for number in range(1, 8)],
    Writer("outlook", ["OUTLOOK.TXT"], without_chances_and_verdicts),
    Writer("prizes", ["PRIZES.CSV"], without_amounts),
    Writer("final", ["FINAL.TXT"], without_amounts),
    Writer("webpage", ["POOL.HTML"], without_totals, boxes=["Tallyhoop"]),
    Writer("message", ["TALLYHOOP.EML", "RPTOPT2.TXT"], None),
    Writer("pdf", ["Bracket.PDF"], pdf, boxes=["Tallyhoop"]),
    Writer("installer", [], lambda content: content),
    Writer("backup", [], None, finalized=False, boxes=["** DEMO MODE SET **", DEMO], own_files=OWN_FILES),
    Writer("copy", [], None, own_files=OWN_FILES),
]}


def comparable(writer, name, content):
    if writer.comparable:
        return writer.comparable(content)
    return message(content) if name.endswith(".EML") else without_marks(content)
