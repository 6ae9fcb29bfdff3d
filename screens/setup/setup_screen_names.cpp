// screens/setup/setup_screen_names.cpp - the setup screen: maintaining the list of team names.
#include "screens/setup/setup_screen.h"

#include "base/text.h"
#include "files/team_name_list_file.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr const char* kAdditionCaption = "Name Addition";
constexpr const char* kAdditionPrompt = "You have chosen to add a name to the \r\n"
                                        "list of NCAA teams.  Enter the new name \r\n"
                                        "and press enter.";
constexpr const char* kChangeCaption = "Team Name Changes";
constexpr const char* kChangePrompt = "You have chosen to change a name in the \r\n"
                                      "list of NCAA teams.  Enter your changes \r\n"
                                      "and press enter.";
constexpr const char* kSelectBeforeChange = "** You need to select one team to CHANGE **";
constexpr const char* kDeleteCaption = "Team Name Delete";
constexpr const char* kDeletePrompt = "You have chosen to delete a name in the \r\n"
                                      "list of NCAA teams.  Confirm that you want to \r\n"
                                      "delete the team: ";
constexpr const char* kSelectBeforeDelete = "** You need to select one team to DELETE **";
constexpr const char* kSaveCaption = "TEAM NAMES Changed / Added";
constexpr const char* kSavePrompt = "You have added or changed the Team Names ...\r\n"
                                    "Do you want to save these changes made to\r\n"
                                    "the list of team names?";

/// Sorts a name in, but next to an equal one wherever that stands: a changed name keeps its row, which can lead the
/// search for the sorted place astray, and the file is freed only of doubles that are neighbours.
/// @returns the row's index
std::size_t insertTeam(std::vector<std::string>& rows, const std::string& team)
{
    const auto same = std::ranges::find(rows, team);
    if (same == rows.end())
        return insertSorted(rows, team);
    return static_cast<std::size_t>(rows.insert(same, team) - rows.begin());
}

} // namespace

void SetupScreen::addName()
{
    const std::string team = m_platform.dialogs.ask({kAdditionCaption, kAdditionPrompt, {}});
    if (team.empty())
        return;
    const auto row = static_cast<int>(insertTeam(lstTeamNames.rows, team));
    if (lstTeamNames.selected && row <= *lstTeamNames.selected)
        ++*lstTeamNames.selected; // the same name stays selected
    m_state.teamNames.changed = true;
}

void SetupScreen::changeName()
{
    const std::string selected = lstTeamNames.selectedText();
    if (selected.empty()) {
        m_platform.dialogs.show({kChangeCaption, kSelectBeforeChange, ui::Buttons::Ok, ui::Icon::Exclamation});
        return;
    }
    const std::string team = m_platform.dialogs.ask({kChangeCaption, kChangePrompt, selected});
    if (team.empty())
        return;
    lstTeamNames.rows[static_cast<std::size_t>(*lstTeamNames.selected)] = team;
    m_state.teamNames.changed = true;
}

void SetupScreen::deleteName()
{
    const std::string selected = lstTeamNames.selectedText();
    if (selected.empty()) {
        m_platform.dialogs.show({kDeleteCaption, kSelectBeforeDelete, ui::Buttons::Ok, ui::Icon::Exclamation});
        return;
    }
    const auto answer =
        m_platform.dialogs.show({kDeleteCaption, kDeletePrompt + selected, ui::Buttons::OkCancel, ui::Icon::Question});
    if (answer == ui::Answer::Cancel)
        return;
    lstTeamNames.rows.erase(lstTeamNames.rows.begin() + *lstTeamNames.selected);
    lstTeamNames.selected.reset();
    m_state.teamNames.changed = true;
}

/// Remembers a name that was typed freely; the names of the list are not looked at, the file drops doubles.
void SetupScreen::addOverrideName(std::size_t box)
{
    const std::string& team = txtRegion[box].text;
    std::vector<std::string>& names = m_state.teamNames.newNames;
    if (team.empty() || std::ranges::find(names, team) != names.end())
        return;
    names.push_back(team);
    m_state.teamNames.changed = true;
}

/// Asks about changed team names, if there are any, and writes the list.
/// @returns false when the list could not be written; then nothing on the screen has changed
bool SetupScreen::saveTeamNames()
{
    if (!m_state.teamNames.changed)
        return true;
    const auto answer = m_platform.dialogs.show({kSaveCaption, kSavePrompt, ui::Buttons::YesNo, ui::Icon::Question});
    if (answer == ui::Answer::Yes) {
        std::vector<std::string> rows = lstTeamNames.rows;
        for (const std::string& team : m_state.teamNames.newNames)
            insertTeam(rows, team);
        if (!WriteTeamNames(m_folder, m_platform.dialogs, m_known, rows))
            return false;
        lstTeamNames.rows = std::move(rows);
    }
    m_state.teamNames = {};
    return true;
}

} // namespace tallyhoop
