// screens/setup/team_name_editor.cpp - asks before each change, and before the changed list is saved.
#include "screens/setup/team_name_editor.h"

#include "files/file_names.h"
#include "files/team_name_list_file.h"
#include "screens/saving.h"

#include <algorithm>
#include <span>
#include <utility>

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

/// @returns whether there are names after the empty one that ends the list
bool goesOnAfterItsEnd(std::span<const std::string> names)
{
    const auto isEmpty = [](const std::string& name) { return name.empty(); };
    return !std::all_of(std::ranges::find_if(names, isEmpty), names.end(), isEmpty);
}

} // namespace

void TeamNameEditor::load()
{
    m_known.note(m_folder.pathTo(file_name::kTeamNames));
    const Result<std::vector<std::string>> names = readTeamNames(m_folder);
    m_isRead = static_cast<bool>(names);
    if (names)
        m_names = TeamNameList{*names};
    else
        showTrouble(m_dialogs, names.failure());
    m_isDamaged = names ? goesOnAfterItsEnd(*names) : m_folder.exists(file_name::kTeamNames);
    if (m_isDamaged)
        m_known.noteDamage(m_folder.pathTo(file_name::kTeamNames));
}

void TeamNameEditor::add()
{
    const std::string team = m_dialogs.ask({kAdditionCaption, kAdditionPrompt, {}});
    if (team.empty())
        return;
    const auto row = static_cast<int>(m_names.add(team));
    if (m_list.selected && row <= *m_list.selected)
        ++*m_list.selected; // the same name stays selected
}

void TeamNameEditor::change()
{
    const std::string selected = m_list.selectedText();
    if (selected.empty()) {
        m_dialogs.show({kChangeCaption, kSelectBeforeChange, ui::Buttons::Ok, ui::Icon::Exclamation});
        return;
    }
    const std::string team = m_dialogs.ask({kChangeCaption, kChangePrompt, selected});
    if (!team.empty())
        m_names.change(static_cast<std::size_t>(*m_list.selected), team);
}

void TeamNameEditor::remove()
{
    const std::string selected = m_list.selectedText();
    if (selected.empty()) {
        m_dialogs.show({kDeleteCaption, kSelectBeforeDelete, ui::Buttons::Ok, ui::Icon::Exclamation});
        return;
    }
    const ui::Message question{kDeleteCaption, kDeletePrompt + selected, ui::Buttons::OkCancel, ui::Icon::Question};
    if (m_dialogs.show(question) == ui::Answer::Cancel)
        return;
    m_names.remove(static_cast<std::size_t>(*m_list.selected));
    m_list.selected.reset();
}

bool TeamNameEditor::saveChanges()
{
    if (!m_names.isChanged())
        return true;
    if (m_dialogs.show({kSaveCaption, kSavePrompt, ui::Buttons::YesNo, ui::Icon::Question}) == ui::Answer::Yes) {
        TeamNameList saved = m_names.withTypedNames();
        if (!saveDataFile(m_platform, m_known, m_folder, file_name::kTeamNames, teamNameListFile(saved.rows())))
            return false;
        m_names = std::move(saved);
        m_isRead = true;
        m_isDamaged = false;
    }
    m_names.forgetChanges();
    return true;
}

} // namespace tallyhoop
