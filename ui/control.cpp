#include "ui/control.h"

#include "ui/screen.h"

namespace tallyhoop::ui {

Control::Control(Screen* screen, std::string_view controlName) : name{controlName} { screen->list(*this); }

Label::Label(Screen* screen, std::string_view controlName, std::string labelText)
    : Control{screen, controlName}, text{std::move(labelText)}
{
}

TextBox::TextBox(Screen* screen, std::string_view controlName, std::function<void()> onEdited)
    : Control{screen, controlName}, edited{std::move(onEdited)}
{
}

Command::Command(Screen* screen, std::string_view controlName, std::string commandCaption,
                 std::function<void()> onClick)
    : Control{screen, controlName}, caption{std::move(commandCaption)}, action{std::move(onClick)}
{
}

void Command::click()
{
    if (enabled && visible && action)
        action();
}

CheckBox::CheckBox(Screen* screen, std::string_view controlName, std::string boxCaption)
    : Control{screen, controlName}, caption{std::move(boxCaption)}
{
}

OptionButton::OptionButton(Screen* screen, std::string_view controlName, std::string buttonCaption)
    : Control{screen, controlName}, caption{std::move(buttonCaption)}
{
}

ListBox::ListBox(Screen* screen, std::string_view controlName) : Control{screen, controlName} {}

std::string ListBox::selectedText() const
{
    return selected ? rows.at(static_cast<std::size_t>(*selected)) : std::string{};
}

Grid::Grid(Screen* screen, std::string_view controlName) : Control{screen, controlName} {}

MenuEntry::MenuEntry(Screen* screen, std::string_view controlName, std::string entryCaption,
                     std::function<void()> onChosen, std::string keys)
    : Control{screen, controlName},
      caption{std::move(entryCaption)},
      shortcut{std::move(keys)},
      action{std::move(onChosen)}
{
}

void MenuEntry::click()
{
    if (enabled && visible && action)
        action();
}

} // namespace tallyhoop::ui
