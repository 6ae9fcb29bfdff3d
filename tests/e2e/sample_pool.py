"""The sample pool, taken from the offer of the first start."""


def install(program):
    """Starts the program and takes the offer; OK is pressed once the installer is through. Gives the two boxes."""
    program.start()
    offer = program.answer("OK", "** DEMO MODE OPTION **")
    program.box("STALLYHOOP DEMOSTRATION MODE")
    program.wait(lambda: "TALLYHOOP.INI" in program.files(), "the sample pool")
    pause = program.answer("OK", "STALLYHOOP DEMOSTRATION MODE")
    program.wait(lambda: program.text("lblTitle") == "2000 NCAA Tournament", "the sample field")
    return offer, pause


# What the sample players have after the regional finals. Right picks in rounds 1 to 4, region by region:
#   Favorite  7+8+6+8  1+3+2+1  0+2+0+0  0+1+0+0:  29 x 1 + 7 x 2 + 2 x 4 + 1 x 8 = 59; the semi-final's 12 to come
#   Halfway   7+7+6+7  1+3+2+0  1+1+0+0  0+1+0+0:  27 x 1 + 6 x 2 + 2 x 4 + 1 x 8 = 55; the semi-final's 12 to come
#   Longshot  5+4+5+5  1+1+1+1  0+0+0+1  0+0+0+0:  19 x 1 + 4 x 2 + 1 x 4 = 31; Gonzaga and Tulsa are out
#   Prophet   7+7+6+8  3+3+3+1  1+2+1+0  0+1+1+0:  28 x 1 + 10 x 2 + 4 x 4 + 2 x 8 = 80; 12 + 12 + 16 to come
FAVORITE = ["Demo Favorite_DF.THC", "DF, Demo Favorite", "59", "71", "Duke"]
HALFWAY = ["Demo Halfway_DH.THC", "DH, Demo Halfway", "55", "67", ""]
LONGSHOT = ["Demo Longshot_DL.THC", "DL, Demo Longshot", "31", "31", "Gonzaga"]
PROPHET = ["Demo Prophet_DP.THC", "DP, Demo Prophet", "80", "120", "Michigan St."]
