// screens/setup/setup_screen_keys.cpp - the setup screen: picking team names with the keyboard and the mouse.
#include "screens/setup/setup_screen.h"

#include "ui/list_navigation.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr ui::Colour kMarked{0x80, 0xFF, 0x80}; ///< the list's own colour: the box that the list is about to fill
constexpr std::int16_t kBackspaceCode = 8;

bool isUpOrDown(const ui::KeyPress& press) { return press.key == ui::Key::Up || press.key == ui::Key::Down; }

void putText(ui::TextBox& box, const std::string& text)
{
    box.text = text;
    box.selectionStart = static_cast<int>(text.size());
    box.selectionLength = 0;
}

} // namespace

bool SetupScreen::keyPressed(ui::Control& control, const ui::KeyPress& press)
{
    // Escape would leave the screen, and leaving drops unsaved edits without a question: too much for a slip.
    if (press.key == ui::Key::Escape)
        return true;
    if (&control == &lstTeamNames)
        return teamListKey(press);
    if (const auto box = txtRegion.indexOf(control))
        return teamBoxKey(*box, press);
    const bool isComment = &control == &txtComment1 || &control == &txtComment2;
    return isUpOrDown(press) && !isComment && dynamic_cast<ui::TextBox*>(&control) != nullptr;
}

bool SetupScreen::teamBoxKey(std::size_t box, const ui::KeyPress& press)
{
    if (press.key == ui::Key::Enter) {
        acceptTeamBox(box);
        return true;
    }
    if (OverrideMode)
        return false;
    if (ui::isNavigationKey(press.key)) {
        forwardToList(txtRegion[box], press.key);
        return true;
    }
    if (press.control || press.alt)
        return false; // a shortcut; what one of them does to the text comes through teamBoxEdited()
    switch (press.key) {
    case ui::Key::Character:
        search(txtRegion[box], static_cast<unsigned char>(press.character));
        return true;
    case ui::Key::Backspace:
        search(txtRegion[box], kBackspaceCode);
        return true;
    case ui::Key::Delete:
        putText(txtRegion[box], {});
        showStatus();
        return true;
    default:
        return false;
    }
}

void SetupScreen::forwardToList(ui::TextBox& box, ui::Key key)
{
    putText(box, {});
    box.background = kMarked;
    focused = &lstTeamNames;
    ui::moveSelection(lstTeamNames, key);
    showStatus();
}

void SetupScreen::search(ui::TextBox& box, std::int16_t keyCode)
{
    SearchSource source;
    source.text = box.text;
    source.selectionStart = box.selectionStart;
    source.selectionLength = box.selectionLength;
    SearchList list{lstTeamNames.rows, true, lstTeamNames.selected};
    // Whatever the search leaves unhandled is dropped by the caller: it could only bring in what the list does not
    // hold.
    m_search.FindIndexStr(source, box.text, keyCode, &list);
    lstTeamNames.selected = list.selected;
    box.text = source.text;
    box.selectionStart = source.selectionStart;
    box.selectionLength = source.selectionLength;
    showStatus();
}

/// Enter in a team box: the name stands, the next box follows.
void SetupScreen::acceptTeamBox(std::size_t box)
{
    if (OverrideMode)
        addOverrideName(box);
    lstTeamNames.selected.reset();
    focused = controlAtTab(static_cast<int>((box + 1) % txtRegion.size()));
    showStatus();
}

bool SetupScreen::teamListKey(const ui::KeyPress& press)
{
    if (press.key == ui::Key::Left || press.key == ui::Key::Right)
        return true;
    // The same helper as for forwarded keys, so that the list moves alike both times.
    if (ui::isNavigationKey(press.key)) {
        ui::moveSelection(lstTeamNames, press.key);
        return true;
    }
    if (press.key != ui::Key::Enter || LastTeamBox >= kTeams)
        return false;
    const auto box = static_cast<std::size_t>(LastTeamBox);
    putText(txtRegion[box], lstTeamNames.selectedText());
    acceptTeamBox(box);
    return true;
}

void SetupScreen::gotFocus(ui::Control& control)
{
    const auto index = txtRegion.indexOf(control);
    if (!index)
        return;
    lstTeamNames.selected.reset();
    LastTeamBox = static_cast<std::int16_t>(control.tabIndex);
    // With the whole text selected the next character starts a new name instead of extending the one that is there.
    ui::TextBox& box = txtRegion[*index];
    box.selectionStart = 0;
    box.selectionLength = static_cast<int>(box.text.size());
}

void SetupScreen::lostFocus(ui::Control& control)
{
    if (&control == &lstTeamNames)
        markLastTeamBox(false);
}

/// Shows, or no longer shows, which box the list is about to fill.
void SetupScreen::markLastTeamBox(bool marked)
{
    if (LastTeamBox >= kTeams)
        return;
    ui::TextBox& box = txtRegion[static_cast<std::size_t>(LastTeamBox)];
    box.background = marked ? std::optional{kMarked} : std::nullopt;
}

/// The person changed a team box other than by a key press: cut, undone, dropped into.
void SetupScreen::teamBoxEdited(ui::TextBox& box)
{
    if (!OverrideMode && !isListedName(box.text))
        putText(box, {});
    showStatus();
}

bool SetupScreen::isListedName(const std::string& team) const
{
    return std::ranges::find(lstTeamNames.rows, team) != lstTeamNames.rows.end();
}

} // namespace tallyhoop
