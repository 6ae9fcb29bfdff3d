#include "ui/control.h"

#include "ui/screen.h"

namespace tallyhoop::ui {

Control::Control(Screen* screen, std::string_view controlName) : name{controlName}
{
    screen->list(*this);
}

Label::Label(Screen* screen, std::string_view name, std::string labelText)
    : Control{screen, name}, text{std::move(labelText)}
{
}

TextBox::TextBox(Screen* screen, std::string_view name, std::function<void()> onEdited)
    : Control{screen, name}, edited{std::move(onEdited)}
{
}

Command::Command(Screen* screen, std::string_view name, std::string commandCaption, std::function<void()> onClick)
    : Control{screen, name}, caption{std::move(commandCaption)}, action{std::move(onClick)}
{
}

void Command::click()
{
    if (enabled && visible && action)
        action();
}

CheckBox::CheckBox(Screen* screen, std::string_view name, std::string boxCaption)
    : Control{screen, name}, caption{std::move(boxCaption)}
{
}

OptionButton::OptionButton(Screen* screen, std::string_view name, std::string buttonCaption)
    : Control{screen, name}, caption{std::move(buttonCaption)}
{
}

ListBox::ListBox(Screen* screen, std::string_view name) : Control{screen, name} {}

std::string ListBox::selectedText() const
{
    return selected ? rows.at(static_cast<std::size_t>(*selected)) : std::string{};
}

Grid::Grid(Screen* screen, std::string_view name) : Control{screen, name} {}

MenuEntry::MenuEntry(Screen* screen, std::string_view name, std::string entryCaption, std::function<void()> onChosen,
                     std::string keys)
    : Control{screen, name}, caption{std::move(entryCaption)}, shortcut{std::move(keys)}, action{std::move(onChosen)}
{
}

void MenuEntry::click()
{
    if (enabled && visible && action)
        action();
}

} // namespace tallyhoop::ui
