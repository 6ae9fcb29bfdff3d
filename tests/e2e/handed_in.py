"""Entries as players hand them in: texts of the entry form, mails, spreadsheets - and what can be wrong with them."""

import base64
import random
import zlib

from pool_2000 import FIELD, selection

GAMES = [*range(16, 31), *range(47, 62), *range(78, 93), *range(109, 124), 124, 125, 126]
REGIONS = ["West", "Midwest", "East", "South"]


def feeders(position):
    """The two places whose teams meet in a game."""
    if position == 126:
        return 124, 125
    if position >= 124:
        return (30, 61) if position == 124 else (92, 123)
    region, place = divmod(position, 31)
    return 31 * region + 2 * (place - 16), 31 * region + 2 * (place - 16) + 1


def some_winners(seed):
    """A whole bracket, another one for each seed."""
    chance = random.Random(seed)
    teams = {31 * (row // 16) + row % 16: team for row, team in enumerate(FIELD)}
    for position in GAMES:
        teams[position] = teams[chance.choice(feeders(position))]
    return {position: teams[position] for position in GAMES}


def points_of(winners, results):
    """The score of a bracket: 1, 2, 4, 8, 12 and 16 points for a right pick of a round."""
    def payoff(position):
        if position >= 124:
            return 16 if position == 126 else 12
        place = position % 31
        return 1 if place < 24 else 2 if place < 28 else 4 if place < 30 else 8
    return sum(payoff(position) for position in GAMES if results.get(position) and winners[position] == results[position])


def check_value(name, initials, total, winners):
    lines = [name, initials, total, *(winners.get(position, "") for position in GAMES)]
    return f"{zlib.crc32(''.join(line + chr(10) for line in lines).encode('cp1252')):08X}"


def form_text(name, initials, total, winners, email="", check=None):
    """What the entry form puts into a mail and onto the clipboard; no value in it may need other characters."""
    def picks(positions):
        return ", ".join(winners.get(position, "").replace(",", ",,") for position in positions)
    lines = ["Tallyhoop bracket: Office Pool", "", f"Name: {name}", f"Initials: {initials}", f"Total: {total}"]
    if email:
        lines.append(f"E-mail: {email}")
    for region, title in enumerate(REGIONS):
        first = 31 * region
        lines += ["", f"Region {region + 1}: {title}", "Round 1: " + picks(range(first + 16, first + 24)),
                  "Round 2: " + picks(range(first + 24, first + 28)), "Round 3: " + picks(range(first + 28, first + 30)),
                  "Round 4: " + picks([first + 30])]
    lines += ["Semifinals: " + picks([124, 125]), "Champion: " + picks([126]), "",
              "Check: " + (check or check_value(name, initials, total, winners))]
    return "\n".join(lines) + "\n"


def selection_bytes(name, initials, total, winners):
    """The bytes that the program itself saves."""
    return "".join(line + "\r\n" for line in selection(winners, initials.upper(), name, total)).encode("cp1252")


def mail(sender, text, attached=None):
    """A mail of one text, perhaps with a file attached to it."""
    headers = f"From: {sender}\r\nTo: organiser@example.org\r\nSubject: My bracket\r\nDate: Tue, 14 Mar 2000 09:15:00 +0000\r\nMIME-Version: 1.0\r\n"
    body = text.replace("\n", "\r\n")
    if attached is None:
        return (headers + "Content-Type: text/plain; charset=utf-8\r\n\r\n" + body).encode()
    name, content = attached
    part = base64.encodebytes(content).decode().replace("\n", "\r\n")
    return (headers + 'Content-Type: multipart/mixed; boundary="=_cut"\r\n\r\n'
            "--=_cut\r\nContent-Type: text/plain; charset=utf-8\r\n\r\n" + body + "\r\n"
            f'--=_cut\r\nContent-Type: application/octet-stream; name="{name}"\r\n'
            f'Content-Disposition: attachment; filename="{name}"\r\nContent-Transfer-Encoding: base64\r\n\r\n{part}\r\n'
            "--=_cut--\r\n").encode()
