// screens/list_search.cpp - what is before the caret was typed; the rest of the first matching row follows, selected.
#include "screens/list_search.h"

#include "base/windows1252.h"

#include <algorithm>
#include <cstddef>

namespace tallyhoop {

namespace {

bool isAscii(char character)
{
    const auto code = static_cast<unsigned char>(character);
    return code >= 32 && code <= 127;
}

void put(ui::TextBox& box, const std::string& text, std::size_t typed)
{
    box.text = text;
    box.selectionStart = static_cast<int>(typed);
    box.selectionLength = static_cast<int>(text.size() - typed);
}

/// @param count may be negative, for none
std::string firstCharacters(const std::string& text, int count)
{
    return text.substr(0, static_cast<std::size_t>(std::max(count, 0)));
}

} // namespace

std::optional<int> findRow(std::span<const std::string> rows, std::string_view prefix)
{
    const auto at = std::ranges::find_if(rows, [&](const std::string& row) { return startsWithFolded(row, prefix); });
    if (at == rows.end())
        return std::nullopt;
    return static_cast<int>(at - rows.begin());
}

std::optional<std::string> soughtText(const ui::TextBox& box, const ui::KeyPress& press)
{
    const bool shortens = press.key == ui::Key::Backspace;
    if (press.control || press.alt || !(shortens || (press.key == ui::Key::Character && isAscii(press.character))))
        return std::nullopt;
    if (shortens && box.text.empty())
        return std::nullopt;

    // What comes before the caret was typed; the selected completion after it is dropped.
    std::string sought = firstCharacters(box.text, shortens ? box.selectionStart - 1 : box.selectionStart);
    if (!shortens)
        sought.push_back(press.character);
    return sought;
}

std::string nothingFound(const ui::TextBox& box, const ui::ListBox& list, const ui::KeyPress& press)
{
    const std::optional<std::string> sought = soughtText(box, press);
    if (!sought || sought->empty() || findRow(list.rows, *sought))
        return {};
    return "No name of the list begins with \"" + *sought + "\".";
}

bool typeAhead(ui::TextBox& box, ui::ListBox& list, const ui::KeyPress& press)
{
    const std::optional<std::string> sought = soughtText(box, press);
    if (!sought)
        return false;
    if (sought->empty()) {
        put(box, {}, 0);
    } else if (const std::optional<int> row = findRow(list.rows, *sought)) {
        list.selected = row;
        put(box, list.rows[static_cast<std::size_t>(*row)], sought->size());
    }
    return true;
}

} // namespace tallyhoop
