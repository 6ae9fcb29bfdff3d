// screens/list_search.cpp - the type-ahead search of a list from an entry box.
#include "screens/list_search.h"

#include "base/windows1252.h"

#include <algorithm>
#include <cstddef>

namespace tallyhoop {

namespace {

constexpr std::int16_t kBackspace = 8;
constexpr std::int16_t kEnter = 13;

bool isHandled(std::int16_t keyCode)
{
    return (keyCode >= 32 && keyCode <= 127) || keyCode == kEnter || keyCode == kBackspace;
}

std::string_view firstCharacters(std::string_view text, int count)
{
    return text.substr(0, static_cast<std::size_t>(std::max(count, 0)));
}

/// What to look for after a character: what stands before the caret, which drops the selected completion, and it.
std::string extended(const SearchSource& source, std::string_view typedText, char character)
{
    std::string sought{source.text.empty() ? typedText : firstCharacters(typedText, source.selectionStart)};
    sought.push_back(character);
    return sought;
}

/// What to look for after a Backspace: one character less before the caret. Empties the box when none would be left.
/// @returns nothing when there is nothing to look for
std::optional<std::string> shortened(SearchSource& source, std::string_view typedText)
{
    if (source.text.empty())
        return std::nullopt;
    const int left = source.selectionStart - 1;
    if (left < 1) {
        source.text.clear();
        source.selectionStart = 0;
        source.selectionLength = 0;
        return std::nullopt;
    }
    return std::string{firstCharacters(typedText, left)};
}

void complete(SearchSource& source, SearchList& list, int row, std::size_t typed)
{
    list.selected = row;
    const std::string& found = list.rows[static_cast<std::size_t>(row)];
    // A combo box shows the row that is selected in its own list by itself.
    if (source.kind == SearchSource::Kind::TextBox || &list == &source.ownList)
        source.text = found;
    const std::size_t start = std::min(typed, source.text.size());
    source.selectionStart = static_cast<int>(start);
    source.selectionLength = static_cast<int>(source.text.size() - start);
}

} // namespace

std::optional<int> findRow(std::span<const std::string> rows, std::string_view prefix)
{
    const auto at = std::ranges::find_if(rows, [&](const std::string& row) { return startsWithFolded(row, prefix); });
    if (at == rows.end())
        return std::nullopt;
    return static_cast<int>(at - rows.begin());
}

void ListSearch::FindIndexStr(SearchSource& source, std::string_view typedText, std::int16_t& keyCode,
                              SearchList* target) const
{
    if (!isHandled(keyCode))
        return;

    std::string sought;
    if (keyCode == kBackspace) {
        const auto shorter = shortened(source, typedText);
        if (!shorter)
            return;
        sought = *shorter;
    } else if (keyCode != kEnter) {
        sought = extended(source, typedText, static_cast<char>(keyCode));
    }

    SearchList* list = target;
    if (source.kind == SearchSource::Kind::ComboBox && target == nullptr) {
        if (keyCode == kEnter) {
            source.droppedDown = true;
            return;
        }
        list = &source.ownList;
    } else if (keyCode == kEnter || target == nullptr || !target->isListBox) {
        return;
    }

    if (const auto row = findRow(list->rows, sought))
        complete(source, *list, *row, sought.size());
    // Also when nothing was found: a character that leads nowhere must not get into the box.
    keyCode = 0;
}

} // namespace tallyhoop
