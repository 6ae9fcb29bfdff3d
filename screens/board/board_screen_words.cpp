#include "base/numbers.h"
#include "base/windows1252.h"
#include "files/setup_file.h"
#include "screens/board/board_screen.h"

namespace tallyhoop {

namespace {

constexpr std::array<const char*, kRounds> kSpokenRounds = {"first round",    "second round", "regional semi-final",
                                                            "regional final", "semi-final",   "final"};

std::string withoutBlanks(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? std::string{} : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// @returns a region's title, less the word that every listener knows: "West Region" is "West"
std::string spokenRegion(const std::string& title)
{
    constexpr std::string_view kRegion = " Region";
    return title.ends_with(kRegion) ? title.substr(0, title.size() - kRegion.size()) : title;
}

/// @returns "winner of second round, game 3": the games of a column are counted downwards, region by region
std::string spokenGame(Position position)
{
    const int round = roundOf(position);
    std::string spoken = std::string{"winner of "} + kSpokenRounds[static_cast<std::size_t>(round - 1)];
    const bool inRegion = regionOf(position) >= 0;
    const int games = inRegion ? kRowsPerRegion >> round : index(position) == kChampion ? 1 : 2;
    const int firstOfColumn = inRegion ? 2 * kRowsPerRegion - (2 * kRowsPerRegion >> round) : 0;
    if (games > 1)
        spoken += ", game " + std::to_string(index(position) % kRegionBlock - firstOfColumn + 1);
    return spoken;
}

/// @returns the marker as it is seen, and what it means
std::string spokenVerdict(const std::string& marker)
{
    if (marker.empty())
        return {};
    return marker + (marker == "=" ? " right pick" : " wrong pick");
}

} // namespace

void BoardScreen::putControlsIntoWords()
{
    for (std::size_t round = 0; round < lblInfo.size(); ++round) {
        const std::string spoken = std::string{"Points for a win in the "} + kSpokenRounds[round];
        lblInfo[round].spokenHint = spoken;
        if (round < lblInfoRight.size())
            lblInfoRight[round].spokenHint = spoken;
    }
    txtComment1.spokenName = "First comment of the organiser";
    txtComment2.spokenName = "Second comment of the organiser";
    txtPlayerInitials.spokenName = "Player's initials";
    txtPlayerName.spokenName = "Player's name";
    txtFinalPoints.spokenName = "Predict total points in Championship game";
    txtPointScore.spokenName = "Score of this selection";
    txtComment1.explanation = txtComment2.explanation = "A comment of the organiser, entered with the field.";
    txtPlayerInitials.explanation = "The player's initials: the last part of the selection file's name.";
    txtPlayerName.explanation = "The player's name: the first part of the selection file's name.";
    txtFinalPoints.explanation = "Total points of both teams in the championship game, 50 to 250: the tie-breaker.";
    txtPointScore.explanation = "Points earned / the most that is still possible.";
    cmdDefaultColors.toolTip = "Back to the normal colours, so that picks can be changed again";
    cmdDefaultColors.explanation = cmdDefaultColors.toolTip + ".";
    explainMenus();
}

void BoardScreen::explainMenus()
{
    mnuNewSelection.explanation = "Empties the board for another player's selection.";
    mnuOpenSelection.explanation = "Shows a selection that was saved before.";
    mnuSaveSelection.explanation = "Saves the selection, or the results, as they stand on the board.";
    mnuPrintPreview.explanation = "Shows the board as it will be printed.";
    mnuPrintForm.explanation = "Prints the board on one page.";
    mnuExit.explanation = "Ends the program.";
    mnuUndo.explanation = "Takes the last change of the bracket back.";
    mnuRedo.explanation = "Makes the change again that was taken back last.";
    mnuScoreSelections.explanation = "Marks right and wrong picks; from the results it opens the list of all scores.";
    mnuGameResults.explanation = "Shows the real results, to enter the winners as they become known.";
    mnuEntryAssist.explanation = "Help with filling the board in.";
    mnuHighSeed.explanation = "Fills open games with the better seed.";
    mnuEditNames.explanation = "Opens the list of players with their e-mail addresses.";
    mnuSetupOptions.explanation = "Opens the field, the titles, the payoffs and the comments.";
    mnuReports.explanation = "Opens the reports: to the printer, to files or by e-mail.";
    mnuDemoSet.explanation = "Shows a sample pool, to try everything out.";
    mnuDemoReset.explanation = "Takes the sample pool away again.";
    mnuHelpDisplay.explanation = "Shows the help on what is on the screen.";
    mnuHelpAbout.explanation = "Tells the program's version.";
}

void BoardScreen::sayWhatToDo()
{
    if (!isFinalized(m_state.setupLines))
        hint = "The field is not finalized yet: see Setup, Setup Pool Options.";
    else if (m_resultsMode)
        hint = "Game results: click the real winners forward and save.";
    else
        hint = "Click the winners forward, then enter initials, name and the final's total points.";
}

void BoardScreen::describePositions()
{
    for (int i = 0; i < kPositions; ++i) {
        ui::Label& label = lblRegion[static_cast<std::size_t>(i)];
        const int region = regionOf(Position{i});
        std::string place =
            region < 0 ? "" : spokenRegion(lblRegionTitle[static_cast<std::size_t>(region)].text) + ", ";
        if (isFirstRound(Position{i})) {
            const int row = i % kRegionBlock;
            ui::TextBox& seed = txtSeed[static_cast<std::size_t>(kRowsPerRegion * region + row)];
            seed.spokenName = "Seed of " + place + "row " + std::to_string(row + 1);
            place += "first round, row " + std::to_string(row + 1) + ", seed " + withoutBlanks(seed.text);
        } else {
            place += spokenGame(Position{i});
            ui::Label& marker = lblResult[static_cast<std::size_t>(gameOf(Position{i}))];
            marker.spokenName = spokenVerdict(marker.text);
            if (!marker.text.empty())
                place += ", " + marker.spokenName;
        }
        label.spokenName = place + ": " + (label.text.empty() ? "no team" : label.text);
    }
    explainPositions();
}

void BoardScreen::explainPositions()
{
    for (int position = 0; position < kPositions; ++position)
        lblRegion[static_cast<std::size_t>(position)].explanation = explanationOf(position);
    for (std::size_t game = 0; game < lblResult.size(); ++game)
        lblResult[game].explanation = lblRegion[static_cast<std::size_t>(index(gamePositions()[game]))].explanation;
}

std::string BoardScreen::explanationOf(int position) const
{
    const std::string& team = lblRegion[static_cast<std::size_t>(position)].text;
    if (m_scoreDisplayOpen)
        return "The list of scores is open; close it to change the bracket.";
    if (m_marksShown)
        return explanationOfMark(position);
    if (team.empty())
        return "Nobody stands here yet: click or drag a team that can get here.";
    if (position == kChampion)
        return team + " wins the tournament. A right click or Delete takes the team away.";
    if (isFirstRound(Position{position}))
        return "Click or press Space to send " + team + " to the next round, or drag it as far as it goes.";
    return "Click or press Space to send " + team + " on, drag it further; right click or Delete takes it away.";
}

std::string BoardScreen::explanationOfMark(int position) const
{
    if (isFirstRound(Position{position}))
        return "The picks are marked; choose Default Colors to change them again.";
    const std::string& mark = lblResult[static_cast<std::size_t>(gameOf(Position{position}))].text;
    const std::string worth = lblInfo[static_cast<std::size_t>(roundOf(Position{position}) - 1)].text;
    const std::string points = worth + (leadingNumber(worth) == 1 ? " point" : " points");
    if (mark.empty())
        return "Not decided yet: worth " + points + ".";
    if (mark == "=")
        return "A right pick: " + points + " earned.";
    // cppcheck-suppress unreadVariable  ; the next line reads it
    const bool picked = !lblRegion[static_cast<std::size_t>(position)].text.empty();
    return std::string{picked ? "A wrong pick: " : "Nobody was picked: "} + points + " lost.";
}

void BoardScreen::describeDocument()
{
    const auto& opened = m_state.selectionFile.OpenedFile;
    if (m_resultsMode)
        document = "Game results";
    else
        document = opened.empty() ? std::string{} : shown(opened.filename());
}

} // namespace tallyhoop
