"""A pool of twelve invented players before the regional finals of the 2000 tournament."""

import random

from pool_2000 import FIELD, SEEDS, selection, setup_file

PLAYERS = [("AK", "Aisha Khan"), ("JB", "Joe Brandt"), ("MS", "Marco Silva"), ("LF", "Lena Fischer"),
           ("SO", "Sam Ortiz"), ("WC", "Wei Chen"), ("PN", "Paul Novak"), ("TO", "Tom Okafor"), ("IP", "Ivan Petrov"),
           ("NL", "Nora Lind"), ("RA", "Ruth Adeyemi"), ("GK", "Grace Kim")]

# The winners of the first three rounds, region by region.
WINNERS = [
    [["Arizona", "Wisconsin", "Texas", "LSU", "Purdue", "Oklahoma", "Gonzaga", "St. John's"],
     ["Wisconsin", "LSU", "Purdue", "Gonzaga"], ["Wisconsin", "Purdue"]],
    [["Michigan St.", "Utah", "Kentucky", "Syracuse", "UCLA", "Maryland", "Auburn", "Iowa St."],
     ["Michigan St.", "Syracuse", "UCLA", "Iowa St."], ["Michigan St.", "Iowa St."]],
    [["Duke", "Kansas", "Florida", "Illinois", "Pepperdine", "Oklahoma St.", "Seton Hall", "Temple"],
     ["Duke", "Florida", "Oklahoma St.", "Seton Hall"], ["Florida", "Oklahoma St."]],
    [["Stanford", "North Carolina", "Connecticut", "Tennessee", "Miami (FL)", "Ohio St.", "Tulsa", "Cincinnati"],
     ["North Carolina", "Tennessee", "Miami (FL)", "Tulsa"], ["North Carolina", "Tulsa"]],
]


def games():
    """Each game's place, and the two that lead to it, round by round."""
    for first, feeder, count in ((16, 0, 8), (24, 16, 4), (28, 24, 2), (30, 28, 1)):
        for region in range(4):
            for game in range(count):
                yield 31 * region + first + game, *(31 * region + feeder + 2 * game + side for side in range(2))
    yield from ((124, 30, 61), (125, 92, 123), (126, 124, 125))


def results():
    places = {}
    for region, rounds in enumerate(WINNERS):
        for first, winners in zip((16, 24, 28), rounds):
            places.update(enumerate(winners, 31 * region + first))
    return places


def first_round():
    return {31 * (row // 16) + row % 16: team for row, team in enumerate(FIELD)}


def bracket(chance, known):
    """What somebody picks who was right about many games, and otherwise likes the better seeds."""
    teams = first_round()
    seed = {team: int(SEEDS[row % 16]) for row, team in enumerate(FIELD)}
    picks = {}
    for place, upper, lower in games():
        pair = [teams[upper], teams[lower]]
        picks[place] = known[place] if known.get(place) in pair and chance.random() < 0.35 else chance.choices(
            pair, [seed[pair[1]], seed[pair[0]]])[0]
        teams[place] = picks[place]
    return picks


def write(program):
    """Writes the whole pool into the folder of a program."""
    chance = random.Random(2000)
    program.write("POOLSTART.THS", setup_file("2000 Office Pool"))
    program.write("TALLYHOOP.THS", selection(results(), "X", "FinalResults"))
    for initials, name in PLAYERS:
        program.write(f"{name}_{initials}.THC",
                      selection(bracket(chance, results()), initials, name, str(chance.randint(120, 170))))
