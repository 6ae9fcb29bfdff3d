// screens/setup/team_picker.cpp - what each key means in a box and in the list, with and without the override.
#include "screens/setup/team_picker.h"

#include "base/lines.h"
#include "screens/list_search.h"
#include "screens/setup/pasted_teams.h"
#include "ui/list_navigation.h"
#include "ui/screen.h"

#include <optional>

namespace tallyhoop {

namespace {

constexpr const char* kPastedCaption = "Team Names Pasted";
constexpr const char* kPlainLettersOnly = "The search knows plain letters only: choose such a name in the list.";
constexpr TeamRow kFirstBox{0};

void putText(ui::TextBox& box, const std::string& text)
{
    box.text = text;
    box.selectionStart = static_cast<int>(text.size());
    box.selectionLength = 0;
}

void focusOn(ui::Control& control) { control.screen.focused = &control; }

} // namespace

void TeamPicker::toggleOverride()
{
    m_isOverridden = !m_isOverridden;
    focusOn(m_boxes[m_lastBox]);
}

void TeamPicker::clearBoxes()
{
    for (const TeamRow box : allTeamRows())
        m_boxes[box].text.clear();
    focusOn(m_boxes[kFirstBox]);
    m_list.screen.say("All 64 team boxes are empty.  Edit, Undo brings the names back.");
}

void TeamPicker::boxGotFocus(TeamRow box)
{
    m_lastBox = box;
    m_list.selected.reset();
    // With the whole text selected the next character starts a new name instead of extending the one that is there.
    m_boxes[box].selectionStart = 0;
    m_boxes[box].selectionLength = static_cast<int>(m_boxes[box].text.size());
}

bool TeamPicker::boxKey(TeamRow box, const ui::KeyPress& press)
{
    if (press.key == ui::Key::Enter) {
        accept(box);
        return true;
    }
    if (m_isOverridden)
        return false;
    if (ui::isNavigationKey(press.key)) {
        goToList(box, press.key);
        return true;
    }
    if (press.control || press.alt)
        return false; // a shortcut; what one of them does to the text comes through boxEdited()
    switch (press.key) {
    case ui::Key::Character:
    case ui::Key::Backspace:
        search(m_boxes[box], press);
        return true;
    case ui::Key::Delete:
        putText(m_boxes[box], {});
        return true;
    default:
        return false;
    }
}

/// What the search leaves alone could only bring in what the list does not hold: no such key reaches the box, and one
/// that does nothing says why.
void TeamPicker::search(ui::TextBox& box, const ui::KeyPress& press)
{
    const bool isSearched = soughtText(box, press).has_value();
    box.screen.say(!isSearched && press.key == ui::Key::Character ? kPlainLettersOnly
                                                                  : nothingFound(box, m_list, press));
    typeAhead(box, m_list, press);
}

void TeamPicker::goToList(TeamRow box, ui::Key key)
{
    putText(m_boxes[box], {});
    m_listFillsBox = true;
    focusOn(m_list);
    ui::moveSelection(m_list, key);
}

/// Enter: the name is taken, the next box follows.
void TeamPicker::accept(TeamRow box)
{
    if (m_isOverridden)
        m_names.addTyped(m_boxes[box].text);
    m_list.selected.reset();
    // The completed part of a name is no longer to be replaced, nor to look as if it had the focus.
    m_boxes[box].selectionStart = static_cast<int>(m_boxes[box].text.size());
    m_boxes[box].selectionLength = 0;
    focusOn(m_boxes[rowAfter(box).value_or(kFirstBox)]);
}

bool TeamPicker::listKey(const ui::KeyPress& press)
{
    if (press.key == ui::Key::Left || press.key == ui::Key::Right)
        return true;
    // The same helper as for keys that come from a box, so that the list moves alike both times.
    if (ui::isNavigationKey(press.key)) {
        ui::moveSelection(m_list, press.key);
        return true;
    }
    if (press.key != ui::Key::Enter)
        return false;
    takeSelected();
    return true;
}

void TeamPicker::takeSelected()
{
    putText(m_boxes[m_lastBox], m_list.selectedText());
    accept(m_lastBox);
}

void TeamPicker::boxEdited(TeamRow box)
{
    if (!m_isOverridden && !m_names.contains(m_boxes[box].text))
        putText(m_boxes[box], {});
}

bool TeamPicker::pasted(TeamRow box, const std::string& text, ui::Dialogs& dialogs)
{
    const std::vector<std::string> lines = linesOf(text);
    if (m_isOverridden && lines.size() <= 1)
        return false; // a piece of a name, inserted where the caret is
    const PastedTeams teams = pastedTeams(lines, box, m_isOverridden ? nullptr : &m_names);
    for (const auto& [filled, team] : teams.filled)
        putText(m_boxes[filled], team);
    if (const std::string refused = refusedLines(teams); !refused.empty())
        dialogs.show({kPastedCaption, refused, ui::Buttons::Ok, ui::Icon::Exclamation});
    return true;
}

void TeamPicker::showState()
{
    for (const TeamRow box : allTeamRows()) {
        const bool isMarked = m_listFillsBox && box == m_lastBox;
        m_boxes[box].background = isMarked ? m_list.background : std::nullopt;
        // With the caret inside of a name, nothing that is typed would find another.
        m_boxes[box].selectedByClick = !m_isOverridden;
    }
}

} // namespace tallyhoop
