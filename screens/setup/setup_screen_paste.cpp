// screens/setup/setup_screen_paste.cpp - the setup screen: pasting one team name or a block of them.
#include "screens/setup/setup_screen.h"

#include "base/lines.h"
#include "base/text.h"
#include "base/windows1252.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr const char* kCaption = "Team Names Pasted";
constexpr const char* kNotInList = "These lines are not in the list of team names and were not entered:";
constexpr const char* kNoBoxLeft = "These lines come after the last team box and were not entered:";
constexpr std::size_t kMostLinesShown = 20; ///< a message box has to fit the screen

void tell(std::vector<std::string>& message, const char* heading, const std::vector<std::string>& lines)
{
    if (lines.empty())
        return;
    if (!message.empty())
        message.emplace_back(" ");
    message.emplace_back(heading);
    const std::size_t shown = std::min(lines.size(), kMostLinesShown);
    message.insert(message.end(), lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(shown));
    if (shown < lines.size())
        message.push_back("and " + std::to_string(lines.size() - shown) + " more");
}

} // namespace

bool SetupScreen::pasted(ui::TextBox& box, const std::string& text)
{
    const auto index = txtRegion.indexOf(box);
    return index && pasteTeams(*index, text);
}

/// Fills this box and the following ones, one line each; an empty line leaves its box as it is.
bool SetupScreen::pasteTeams(std::size_t box, const std::string& text)
{
    const std::vector<std::string> lines = linesOf(text);
    if (OverrideMode && lines.size() <= 1)
        return false; // a piece of a name, inserted where the caret is

    std::vector<std::string> notInList;
    std::vector<std::string> noBoxLeft;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty())
            continue;
        const std::string team = OverrideMode ? lines[i] : listedName(lines[i]);
        if (team.empty()) {
            notInList.push_back(lines[i]);
        } else if (box + i >= txtRegion.size()) {
            noBoxLeft.push_back(lines[i]);
        } else {
            ui::TextBox& filled = txtRegion[box + i];
            filled.text = team;
            filled.selectionStart = static_cast<int>(team.size());
            filled.selectionLength = 0;
        }
    }
    showStatus();

    std::vector<std::string> message;
    tell(message, kNotInList, notInList);
    tell(message, kNoBoxLeft, noBoxLeft);
    if (!message.empty())
        m_platform.dialogs.show({kCaption, joinLines(message), ui::Buttons::Ok, ui::Icon::Exclamation});
    return true;
}

/// @returns the list's own spelling of a name, empty when the list lacks it
std::string SetupScreen::listedName(const std::string& typed) const
{
    const auto same = [&](const std::string& row) { return equalFolded(row, typed); };
    const auto at = std::ranges::find_if(lstTeamNames.rows, same);
    return at == lstTeamNames.rows.end() ? std::string{} : *at;
}

} // namespace tallyhoop
