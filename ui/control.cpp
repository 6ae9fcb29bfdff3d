// ui/control.cpp - controls register with their screen; a command that is disabled or hidden does nothing; what keys
// mean to a list and to a grid.
#include "ui/control.h"

#include "ui/list_navigation.h"
#include "ui/screen.h"

namespace tallyhoop::ui {

namespace {

std::string withNote(const std::string& note, bool isEmpty, std::string explanation)
{
    return isEmpty && !note.empty() ? note + " " + explanation : std::move(explanation);
}

bool pressesCell(const KeyPress& press)
{
    const bool isSpace = press.key == Key::Character && press.character == ' ';
    return isSpace || press.key == Key::Enter;
}

bool movesColumn(const KeyPress& press)
{
    const bool isSideways = press.key == Key::Left || press.key == Key::Right;
    return isSideways && press.control && press.shift && !press.alt;
}

} // namespace

Control::Control(Screen* owner, std::string_view controlName) : screen{*owner}, name{controlName}
{
    screen.list(*this);
}

bool Control::keyPressed(const KeyPress&) { return false; }

std::string Control::spokenExplanation() const { return explanation.empty() ? toolTip : explanation; }

Label::Label(Screen* owner, std::string_view controlName, std::string labelText)
    : Control{owner, controlName}, text{std::move(labelText)}
{
}

TextBox::TextBox(Screen* owner, std::string_view controlName, std::function<void()> onEdited)
    : Control{owner, controlName}, edited{std::move(onEdited)}
{
}

Command::Command(Screen* owner, std::string_view controlName, std::string commandCaption, std::function<void()> onClick)
    : Control{owner, controlName}, caption{std::move(commandCaption)}, action{std::move(onClick)}
{
}

void Command::click()
{
    if (!enabled || !visible || !action)
        return;
    action();
    screen.showState();
}

CheckBox::CheckBox(Screen* owner, std::string_view controlName, std::string boxCaption)
    : Control{owner, controlName}, caption{std::move(boxCaption)}
{
}

OptionButton::OptionButton(Screen* owner, std::string_view controlName, std::string buttonCaption)
    : Control{owner, controlName}, caption{std::move(buttonCaption)}
{
}

ListBox::ListBox(Screen* owner, std::string_view controlName) : Control{owner, controlName} {}

std::string ListBox::selectedText() const
{
    return selected ? rows.at(static_cast<std::size_t>(*selected)) : std::string{};
}

bool ListBox::keyPressed(const KeyPress& press)
{
    if (!isNavigationKey(press.key) || selected || rows.empty())
        return false;
    moveSelection(*this, press.key);
    if (chosen)
        chosen();
    return true;
}

std::string ListBox::spokenExplanation() const
{
    return withNote(emptyNote, rows.empty(), Control::spokenExplanation());
}

Grid::Grid(Screen* owner, std::string_view controlName) : Control{owner, controlName} {}

bool Grid::keyPressed(const KeyPress& press)
{
    if (!current || current->row >= rows.size() || current->column >= columns.size())
        return false;
    if (movesColumn(press))
        return moveColumn(*current, press.key);
    if (!pressesCell(press))
        return false;
    if (cellPressed)
        cellPressed(current->row, current->column);
    return true;
}

/// Drags the heading to its neighbour; the current cell goes along.
bool Grid::moveColumn(GridCell from, Key key)
{
    const bool isAtEdge = from.column == (key == Key::Left ? 0 : columns.size() - 1);
    if (isAtEdge || !columnPressed || !columnReleased)
        return false;
    const std::size_t target = key == Key::Left ? from.column - 1 : from.column + 1;
    columnPressed(from.column);
    columnReleased(target);
    current = GridCell{from.row, target};
    return true;
}

std::string Grid::spokenExplanation() const { return withNote(emptyNote, rows.empty(), Control::spokenExplanation()); }

MenuEntry::MenuEntry(Screen* owner, std::string_view controlName, std::string entryCaption,
                     std::function<void()> onChosen, std::string keys)
    : Control{owner, controlName},
      caption{std::move(entryCaption)},
      shortcut{std::move(keys)},
      action{std::move(onChosen)}
{
}

void MenuEntry::click()
{
    if (!enabled || !visible || !action)
        return;
    action();
    screen.showState();
}

} // namespace tallyhoop::ui
