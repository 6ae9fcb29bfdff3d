// ui/control.cpp - controls register with their screen; a command that is disabled or hidden does nothing.
#include "ui/control.h"

#include "ui/screen.h"

namespace tallyhoop::ui {

Control::Control(Screen* owner, std::string_view controlName) : screen{*owner}, name{controlName}
{
    screen.list(*this);
}

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

Grid::Grid(Screen* owner, std::string_view controlName) : Control{owner, controlName} {}

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
