#!/usr/bin/env python3
"""A second reckoning of the seven reports, independent of the program.

Makes the pool of this folder (57 players with awkward names, always the same) and works out the report files that it must
give. Run it only to make the pool anew; tests compare the program with the files that are checked in.
"""
import random
import re
from fractions import Fraction
from pathlib import Path

HERE = Path(__file__).parent
FF = "\f"
TITLE = "Büro-Pool „März“ 2001"
PAYOFF = {1: 1, 2: 2, 3: 4, 4: 8, 5: 12, 6: 16}


def whole(value):
    """Rounds to a whole number, halves to even."""
    return round(Fraction(value))


def blanks(count):
    if count < 0:
        raise ValueError("negative count of blanks")
    return " " * count


def cut(text, width):
    return text[:width].ljust(width)


def n3(number):
    return f"{number:03d}" if number >= 0 else f"-{-number:03d}"


def fold(text):
    folded = bytearray()
    for char in text:
        small = char.lower()
        if len(small) != 1:
            small = char
        try:
            folded += small.encode("cp1252")
        except UnicodeEncodeError:
            folded += char.encode("cp1252")
    return bytes(folded)


def leading(text):
    number = ""
    for char in text.lstrip(" "):
        if char.isdigit() or (char in "+-" and not number):
            number += char
        else:
            break
    return int(number) if number.strip("+-") else 0


def save(name, lines):
    (HERE / name).write_bytes("".join(line + "\r\n" for line in lines).encode("cp1252"))


# ---------------------------------------------------------------- the field and its games

FIELD = [
    "North Carolina", "Weber St", "Zürich", "Åbo", "Miami, Ohio", "Penn", "Loyola", "UC Santa Barbara",
    "Texas A&M; West", "Iona", "St. John's", "Gonzaga", "BYU", "Drake", "West Virginia Tech State Uni", "Ohio",
    "Old Dominion", "é", "Élan", "ELAN", "Iowa", "Iowa St", "iowa", "Duke",
    "Kent", "Yale", "Siena", "Øst", "Marist", "Œuvre", "Rider", "Navy",
    "San Francisco", "Loyola", "Kansas", "Kansas St", "Tulsa", "Utah", "Utah St", "UNLV",
    "zz top", "ZZ Top", "ZZZZ", "Xavier", "Butler", "Baylor", "Creighton", "DePaul",
    "Wake Forest", "Maine", "Army", "Air Force", "LSU", "UCLA", "USC", "VMI",
    "TCU", "SMU", "Rice", "Ole Miss", "Mt. St. Mary's", "Lehigh", "Bucknell", "Colgate",
]
assert len(FIELD) == 64 and max(map(len, FIELD)) <= 29

ROUND = {}
FEEDERS = {}
for base in (0, 31, 62, 93):
    for count, first, feeder in ((8, 17, 1), (4, 25, 17), (2, 29, 25), (1, 31, 29)):
        for i in range(count):
            ROUND[base + first + i] = {17: 1, 25: 2, 29: 3, 31: 4}[first]
            FEEDERS[base + first + i] = (base + feeder + 2 * i, base + feeder + 2 * i + 1)
ROUND.update({125: 5, 126: 5, 127: 6})
FEEDERS.update({125: (31, 62), 126: (93, 124), 127: (125, 126)})


def field_lines():
    lines = [""] * 132
    for region in range(4):
        for row in range(16):
            lines[31 * region + row + 1] = FIELD[16 * region + row]
    lines[131] = "*END*"
    return lines


def play(rng, lines, openness=0.0):
    for slot in range(1, 128):
        if slot in ROUND:
            one, two = (lines[feeder] for feeder in FEEDERS[slot])
            lines[slot] = one if rng.random() < 0.62 else two
            if rng.random() < openness:
                lines[slot] = ""


# ---------------------------------------------------------------- scoring

def score(file, picks, results):
    status, out, points, good, bad = {}, [], 0, 0, 0
    for slot in range(1, 128):
        result, pick = results[slot], picks[slot]
        if result == "":
            status[slot] = 3
            if pick in out:
                status[slot] = 2
                bad += 1
            if pick == "":
                status[slot] = 2
                bad += 1
        elif result != pick:
            status[slot] = 2
            bad += 1
            if pick != "" and pick not in out:
                out.append(pick)
        else:
            status[slot] = 1
            if slot in ROUND:
                points += PAYOFF[ROUND[slot]]
                good += 1
    possible = 0
    for slot in range(1, 128):
        if slot not in ROUND or status[slot] != 3:
            continue
        if ROUND[slot] == 1 or any(status[feeder] in (1, 4) for feeder in FEEDERS[slot]):
            possible += PAYOFF[ROUND[slot]]
            if slot != 127:
                status[slot] = 4
    return {
        "file": file, "player": picks[128] + ", " + picks[129], "points": points, "max": points + possible,
        "good": good, "bad": bad, "winner": picks[127],
        "runner": picks[125] if picks[126] == picks[127] else picks[126], "tie": leading(picks[130]),
    }


def ordered(rows):
    return sorted(rows, key=fold)


# ---------------------------------------------------------------- the reports

def standings(pool, results):
    scores = [score(file, picks, results) for file, picks in pool]
    name = max(len(s["player"]) for s in scores)
    file = max(len(s["file"]) for s in scores)
    pick = max(len(s["winner"]) for s in scores)
    line = name + file + pick + 44
    rows = ordered(";".join([n3(s["points"]), s["player"], s["file"], n3(s["max"]), n3(s["good"]), n3(s["bad"]),
                             s["winner"], n3(s["tie"])]) for s in scores)
    lines, counter = [], 0
    for row in reversed(rows):
        f = row.split(";")[:8]
        if counter == 0:
            for text in (" ", TITLE, "Tournament Standings", " "):
                lines.append(text if text == " " else
                             blanks(max(0, whole(Fraction(line, 2) - Fraction(len(text), 2)))) + text)
            lines.append("Points" + blanks(name + file + 6) + "Poss. Good   Bad  Open    Tie")
            lines.append("Earned Player Name" + blanks(name - 8) + "File Name" + blanks(file - 7) +
                         "Score Picks Picks Picks Breaker Winner Picked")
            lines.append("------ " + "-" * name + "   " + "-" * file + "  ----- ----- ----- ----- ------- " + "-" * pick)
            counter = 7
        open_picks = n3(63 - leading(f[4]) - leading(f[5]))
        lines.append(" " + f[0] + "   " + cut(f[1], name) + "   " + cut(f[2], file) + "   " + f[3] + "   " + f[4] +
                     "   " + f[5] + "   " + open_picks + "    " + f[7] + "   " + f[6])
        counter += 1
        if counter > 47:
            lines.append(FF)
            counter = 0
    return lines


def listing(records):
    fields = [(r[1:26], r[29:62], r[65:108], r[111:125]) for r in records]
    w = [max((len(f[k].rstrip(" ")) for f in fields[1:]), default=0) for k in range(4)]
    line = sum(w) + 12
    lines, counter, header = [], 0, None
    for number, f in enumerate(fields):
        if counter == 0:
            lines.append(" ")
            for text in (TITLE, "Player Listing"):
                lines.append(blanks(max(0, whole(Fraction(line, 2) - whole(Fraction(len(text), 2))))) + text)
            lines.append(" ")
            counter = 4
        row = "    ".join(f[k][:w[k]] for k in range(4))
        if number == 0:
            header = row
        if counter == 4:
            lines.append(header)
            lines.append("    ".join("-" * w[k] for k in range(4)))
            counter = 6
        if number > 0:
            lines.append(row)
            counter += 1
        if counter > 47:
            counter = 0
            lines.append(FF)
    return lines


def pick_entries(pool):
    entries = []
    for _, picks in pool:
        for slot in range(1, 128):
            if slot in ROUND and picks[slot] != "":
                entries.append(f"{picks[slot]},{picks[129]}_{picks[128]},{ROUND[slot]}")
    split = []
    for entry in ordered(entries):
        team, rest = entry.split(",", 1)
        label, number = rest.split(",", 1)
        split.append((team, label, leading(number)))
    return split


def team_head(name):
    def centre(text):
        return blanks(whole(Fraction(74, 2) - whole(Fraction(len(text), 2)))) + text
    return [" ", centre(TITLE), centre(name), " ",
            blanks(27) + "  2nd    3rd    4th   Region   Tour     Tour  ",
            blanks(27) + " Round  Round  Round  Finals  Finals  Champion",
            blanks(27) + "+------+------+------+------+-------+---------+"]


def six(counts):
    text = ""
    for number, gap in zip(counts[1:], (4, 4, 4, 5, 6, 0)):
        text += str(number).rjust(3) + " " * gap
    return text


def summary(pool):
    lines, counter, previous, counts, head_due = [], 1, None, [0] * 7, True
    for team, _, category in pick_entries(pool) + [(None, "", 0)]:
        if previous is None or team != previous:
            if counter == 1 and head_due:
                lines += team_head("Team Selection Summary")
                head_due = False
            if previous is not None:
                lines.append(previous + blanks(29 - len(previous)) + six(counts))
                lines.append(blanks(27) + "+------+------+------+------+-------+---------+")
                counter += 2
                counts = [0] * 7
            if counter > 63:
                lines += [" ", FF]
                counter = 1
                head_due = True
            previous = team
        counts[category] += 1
    return lines


def detail(pool):
    lines, counter, last_team = [" "], 1, None
    lines += team_head("Team Selection Detail")
    counter += 7
    previous, counts = None, [0] * 7
    for team, label, category in pick_entries(pool) + [(None, None, 0)]:
        if (team, label) != previous:
            if previous is not None:
                if counter == 0:
                    lines += team_head("Team Selection Detail")
                    counter = 7
                if previous[0] != last_team:
                    last_team = previous[0]
                    lines.append(last_team + blanks(29 - len(last_team)))
                    counter += 1
                lines.append("     " + cut(previous[1], 22) + "  " + six(counts))
                counter += 1
                if counter > 63:
                    lines.append(FF)
                    counter = 0
                counts = [0] * 7
            previous = (team, label)
        counts[category] += 1
    return lines


def player_detail(pool):
    box = " +------------+" + "  +------------+" * 5 + " "
    lines = []
    for number, (file, picks) in enumerate(sorted(pool, key=lambda entry: fold(entry[0]))):
        lines += [" "] if number == 0 else [" ", FF, " "]
        lines += [" ", " "]
        for text in (TITLE, "Player Selection Detail"):
            lines.append(blanks(whole(Fraction(115, 2) - whole(Fraction(len(text), 2)))) + text)
        lines.append(" ")
        lines.append(blanks(20) + "       2nd             3rd           Region           Final           Tour            Tour      ")
        lines.append(blanks(20) + "      Round           Round          Finals           Four           Finals         Champion    ")
        lines.append(blanks(20) + box)
        rows, marks = [], []
        for slot in range(17, 130):
            if ROUND.get(slot) == 1:
                rows.append(picks[slot])
                marks.append({1})
            elif slot in ROUND and picks[slot] != "":
                for row, team in enumerate(rows):
                    if team == picks[slot]:
                        marks[row].add(ROUND[slot])
        for row, team in enumerate(rows):
            text = cut(re.split(r"\.thc", file, flags=re.IGNORECASE)[0] if row == 0 else "", 21)
            for column in range(1, 7):
                if column in marks[row]:
                    text += cut(team, 14) + "  "
                elif column == 6:
                    text += " "
            lines.append(text)
            if row in (7, 15, 23):
                lines.append(blanks(20) + box)
    return lines


def project(results, four, i, mode):
    lines = list(results)
    team = four[i]
    if team in (lines[31], lines[62]):
        own, other, opponents = 125, 126, (lines[93], lines[124])
    else:
        own, other, opponents = 126, 125, (lines[31], lines[62])
    if lines[own] not in ("", team):
        return None
    lines[own] = lines[127] = team
    if mode:
        opponent = opponents[mode - 1]
        if lines[other] not in ("", opponent):
            return None
        lines[other] = opponent
    return lines


def by_player(pool, results, four):
    scores = [score(file, picks, results) for file, picks in pool]
    team_width = max(len(t) for t in four[1:])
    file_width = max(max(len(s["file"]) for s in scores), team_width + 3)
    pick_width = max(len(s["runner"]) + 6 for s in scores)
    page = max(file_width + 2 + 23 + pick_width, file_width + 2 + 14 + team_width + 14)
    lines, counter = [], 0
    for (file, picks), now in zip(pool, scores):
        if counter == 0:
            lines.append(" ")
            for text in (TITLE, "Projected Results by Player"):
                lines.append(blanks(whole(Fraction(page - len(text), 2))) + text)
            lines.append(" ")
            counter = 4
        final = (now["winner"] + " over ") if now["winner"] else "NO SELECTION & over "
        final += now["runner"] or "NO SELECTION"
        lines.append(cut(file, file_width) + "  Final Game Selection:  " + final)
        lines.append(blanks(file_width + 2) + "Current Points: " + n3(now["points"]) + blanks(team_width - 11) +
                     "Maximum Points = " + n3(now["max"]))
        lines.append("   " + "-" * (file_width + team_width + 27))
        counter += 3
        for i in range(1, 5):
            shown = False
            for mode in (1, 2):
                projected = project(results, four, i, mode)
                if projected is None:
                    continue
                lead = " " * team_width if mode == 2 and shown else four[i].ljust(team_width)
                opponent = projected[126 if i < 3 else 125].ljust(team_width)
                lines.append("   " + lead + "  winning over  " + opponent + "  Points = " +
                             n3(score(file, picks, projected)["max"]))
                shown = True
                if mode == 2:
                    counter += 2
        lines.append(" ")
        counter += 1
        if counter > 54:
            counter = 0
            lines.append(FF)
    return lines


def by_team(pool, results, four):
    now = [score(file, picks, results)["points"] for file, picks in pool]
    lines, counter, pick_width = [], 0, 0
    for k in range(1, 5):
        projected = project(results, four, k, 0)
        if projected is None:
            continue
        rows = []
        for (file, picks), current in zip(pool, now):
            s = score(file, picks, projected)
            rows.append(",".join([n3(s["max"]), file, n3(s["points"]), n3(current), s["winner"], s["runner"]]))
            pick_width = max(pick_width, len(s["winner"]) + len(s["runner"]))
        headings = [blanks(28) + "<-- Points -->  Points",
                    blanks(29) + "Best   Shure   Current Team Selections in Final",
                    blanks(28) + "------  ------  ------  " + "-" * (pick_width + 6)]
        if counter == 0:
            lines.append(" ")
            for text in (TITLE, "Projected Results by Team"):
                lines.append(blanks(whole(Fraction(pick_width + 58, 2) - whole(Fraction(len(text), 2)))) + text)
            lines.append(" ")
            counter = 4
        lines += ["If " + four[k] + " Wins:"] + headings
        counter += 4
        for row in reversed(ordered(rows)):
            f = row.split(",")[:6]
            lines.append("   " + cut(f[1], 24) + "  " + f[0] + "     " + f[2] + "     " + f[3] + "    " +
                         (f[4] or "NO SELECTION") + " over " + (f[5] or "NO SELECTION"))
            counter += 1
            if counter > 62:
                lines += [FF, " ", " ", "If " + four[k] + " Wins (cont.):"] + headings
                counter = 6
        lines += [" ", " "]
        counter += 2
        if counter > 50:
            counter = 0
            lines.append(FF)
    return lines


# ---------------------------------------------------------------- the pool

def main():
    rng = random.Random(2001)
    results = field_lines()
    play(rng, results)
    for winner, team in ((31, "North Carolina"), (62, "Old Dominion"), (93, "San Francisco"), (124, "Wake Forest")):
        results[winner] = team
        slot = winner
        while slot in ROUND and ROUND[slot] > 1:  # the winner's whole path, down to its first game
            slot = FEEDERS[slot][0]
            results[slot] = team
    results[125], results[126], results[127] = "Old Dominion", "", ""
    results[128], results[129] = "A", "FinalResults"

    awkward = [
        ("Álvarez", "JÉ"), ("Muñoz", "ß"), ("Özgür", "Ü"), ("smith", "JS"), ("Smith", "js"), ("O'Brien; Jr", "PO"),
        ("Smith, Jr", "X"), ("4Seasons", "Q"), ("Wolfeschlegelsteinhausenberger", "HB"), ("A", "B"),
        ("Šebestová", "Ž"), ("€uro", "™"),
    ]
    players = awkward + [(f"Player {i:02d}", chr(65 + i % 26) + chr(90 - i % 7)) for i in range(45)]
    pool = []
    for number, (name, initials) in enumerate(players):
        picks = field_lines()
        play(rng, picks, 0.3 if number % 9 == 4 else 0.0)
        if number == 20:
            for slot in ROUND:
                picks[slot] = ""
        if number in (21, 22):  # two players alike in everything but their names
            picks = list(results)
            picks[125], picks[126], picks[127] = "North Carolina", "Wake Forest", "North Carolina"
        picks[128], picks[129] = initials, name
        picks[130] = "" if number % 10 == 7 else str(50 + rng.randrange(201))
        file = f"{name}_{initials}" + (".thc" if number == 5 else ".THC")
        if name == "Smith":
            file = "Smith the Younger_js.THC"  # must not meet smith_JS on systems that ignore case
        text = picks[1:132]
        if number == 30:
            text = text[:100]  # a damaged file: what is missing reads as empty
            picks = picks[:101] + [""] * 31
        (HERE / file).write_bytes("".join(line + "\r\n" for line in text).encode("cp1252"))
        pool.append((file, picks))
    pool.sort(key=lambda entry: fold(entry[0]))
    (HERE / "TALLYHOOP.THS").write_bytes("".join(line + "\r\n" for line in results[1:]).encode("cp1252"))

    records = [("Name", "FileName", "Email", "Phone")]
    for number, (file, picks) in enumerate(pool):
        records.append((picks[129], file, "" if number % 5 == 3 else f"p{number}@example.org", "555-01%02d" % number))
    records = ['"%s","%s","%s","%s"' % (cut(n, 25), cut(f, 33), cut(e, 43), cut(p, 14)) for n, f, e, p in records]
    save("PLAYERNAMES.CSV", records)

    four = ["", results[31], results[62], results[93], results[124]]
    save("RPTOPT1.TXT", standings(pool, results))
    save("RPTOPT2.TXT", listing(records))
    save("RPTOPT3.TXT", summary(pool))
    save("RPTOPT4.TXT", detail(pool))
    save("RPTOPT5.TXT", player_detail(pool))
    save("RPTOPT6.TXT", by_player(pool, results, four))
    save("RPTOPT7.TXT", by_team(pool, results, four))


if __name__ == "__main__":
    main()
