// screens/setup/setup_screen_words.cpp - what the setup screen explains, and how things stand.
#include "screens/setup/setup_screen.h"

#include <array>
#include <string>
#include <string_view>

namespace tallyhoop {

namespace {

constexpr std::array<const char*, kRounds> kPayoffHints = {
    "Points for each win in 1st round",     "Points for each win in 2nd round",
    "Points for each win in 3rd round",     "Points for each win in Regional Finals",
    "Points for each winner in Semifinals", "Points for selecting winner in FINAL GAME",
};

constexpr const char* kSavedStatus = "There are no unsaved changes.";
constexpr const char* kUnsavedStatus = "There are changes that are not saved yet.";
constexpr const char* kFinalizeStatus = "Finalize Tournament takes effect with File, Save.";
constexpr const char* kNoListStatus =
    "There is no list of team names: choose Override Selecting Team Names to type them.";

void say(std::string& status, std::string_view sentence)
{
    if (!status.empty())
        status += "  ";
    status += sentence;
}

} // namespace

void SetupScreen::explainBoxes()
{
    const char* const team = OverrideMode
                                 ? "Type any team's name; Enter takes it and goes on to the next box."
                                 : "Type the first letters: the name is completed from the list. Enter goes on.";
    for (std::size_t i = 0; i < txtRegion.size(); ++i)
        txtRegion[i].explanation = team;
    cmdOverride.explanation = OverrideMode ? "Back to picking names from the list."
                                           : "Lets you type names of teams that are not in the list.";
    for (std::size_t i = 0; i < TxtInfo.size(); ++i)
        TxtInfo[i].explanation = i == 0 ? "Heads the board and every report." : "Stands over the region on the board.";
    for (std::size_t round = 0; round < txtInfo6.size(); ++round) {
        txtInfo6[round].toolTip = kPayoffHints[round];
        txtInfo6[round].spokenName = kPayoffHints[round];
        txtInfo6[round].explanation = std::string{kPayoffHints[round]} + ", 1 to 99.";
    }
    txtComment1.explanation = txtComment2.explanation = "Stands below the bracket: the fee, the deadline, the prizes.";
    lstTeamNames.explanation = "Enter puts the selected name into the green box.";
    cmdAddName.explanation = "Adds a team to the list of names.";
    cmdChangeName.explanation = "Changes the selected name of the list.";
    cmdDeleteName.explanation = "Takes the selected name out of the list.";
    cmdClear.explanation = "Empties all 64 team boxes.";
    cmdFinalize.explanation = "Declares the field complete; once that is saved it cannot be changed any more.";
}

void SetupScreen::explainMenus()
{
    mnuSaveStartingField.explanation = "Saves everything on this screen but the list of team names.";
    mnuEnd.explanation = "Goes back to the board; what was not saved is dropped.";
    mnuSeating.explanation = "Opens the seed numbers of the sixteen rows of a region.";
    mnuDemoSet.explanation = "Shows a sample pool, to try everything out.";
    mnuDemoReset.explanation = "Takes the sample pool away again.";
    mnuHelpDisplay.explanation = "Shows the help on what is on the screen.";
    mnuHelpAbout.explanation = "Tells the program's version.";
}

void SetupScreen::showStatus()
{
    status.clear();
    if (!m_teamListIsRead)
        say(status, kNoListStatus);
    // Never empty: a line that comes and goes would move everything above it.
    say(status, linesOnScreen() == m_saved ? kSavedStatus : kUnsavedStatus);
    if (FinalizeState == "1")
        say(status, kFinalizeStatus);
    if (!m_notice.empty())
        say(status, m_notice);
}

} // namespace tallyhoop
