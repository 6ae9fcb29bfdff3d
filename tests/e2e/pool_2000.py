"""The field of the 2000 tournament, and files made of it for a pool of one's own."""

FIELD = [
    # West
    "Arizona", "Jackson St.", "Wisconsin", "Fresno St.", "Texas", "Indiana St.", "LSU", "SE Missouri St.", "Purdue",
    "Dayton", "Oklahoma", "Winthrop", "Louisville", "Gonzaga", "St. John's", "Northern Arizona",
    # Midwest
    "Michigan St.", "Valparaiso", "Utah", "St. Louis", "Kentucky", "St. Bonaventure", "Syracuse", "Samford", "UCLA",
    "Ball St.", "Maryland", "Iona", "Auburn", "Creighton", "Iowa St.", "Central Conn. St.",
    # East
    "Duke", "Lamar", "Kansas", "DePaul", "Florida", "Butler", "Illinois", "Pennsylvania", "Indiana", "Pepperdine",
    "Oklahoma St.", "Hofstra", "Oregon", "Seton Hall", "Temple", "Lafayette",
    # South
    "Stanford", "S. Carolina St.", "North Carolina", "Missouri", "Connecticut", "Utah St.", "Tennessee",
    "Louisiana-Lafayette", "Miami (FL)", "Arkansas", "Ohio St.", "Appalachian St.", "Tulsa", "UNLV", "Cincinnati",
    "UNC Wilmington",
]

SEEDS = [" 1", "16", " 8", " 9", " 5", "12", " 4", "13", " 6", "11", " 3", "14", " 7", "10", " 2", "15"]


def setup_file(title="Office Pool", finalized=True):
    """The lines of POOLSTART.THS for this field with the usual payoffs."""
    return ["*START*", *FIELD, title, "West", "Midwest", "East", "South", "1", "2", "4", "8", "12", "16", *SEEDS,
            "Five dollars|by Thursday noon", "", "1" if finalized else "0", "*END*"]


def selection(winners, initials="", name="", final_points=""):
    """The lines of a selection; winners maps bracket positions to names, the first round is the field's."""
    lines = [""] * 127
    for region in range(4):
        lines[31 * region:31 * region + 16] = FIELD[16 * region:16 * region + 16]
    for position, team in winners.items():
        lines[position] = team
    return [*lines, initials, name, final_points, "*END*"]
