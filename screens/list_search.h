// screens/list_search.h - turns key presses in an entry box into a type-ahead search of a list.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tallyhoop {

/// A list as the search sees it.
struct SearchList {
    std::span<const std::string> rows{};
    bool isListBox = true;         ///< false = some other kind of control, which is never searched
    std::optional<int> selected{}; ///< row index; nothing = no row
};

/// The entry box in which a key was pressed.
struct SearchSource {
    enum class Kind { TextBox, ComboBox };

    Kind kind = Kind::TextBox;
    std::string text;
    int selectionStart = 0;   ///< the caret, or the first selected character
    int selectionLength = 0;  ///< selected characters
    SearchList ownList;       ///< a combo box's own list
    bool droppedDown = false; ///< whether a combo box shows its list
};

/// @returns the first row, from the top, that begins with the text without regard to case; nothing when none does
std::optional<int> findRow(std::span<const std::string> rows, std::string_view prefix);

/// The search. It holds no state between calls.
class ListSearch
{
public:
    /// Looks for the first row that begins with what has been typed, selects it and completes the box: the part that is
    /// not yet typed stands selected, so that further typing replaces it.
    /// @param source    the box; its text, caret and selection are changed
    /// @param typedText the box's text at the time of the key press
    /// @param keyCode   the character pressed; set to 0 when the key has been dealt with and must not be inserted.
    ///                  Only 32..127, Enter (13) and Backspace (8) are ever dealt with
    /// @param target    the list to search; nullptr = a combo box's own list
    void FindIndexStr(SearchSource& source, std::string_view typedText, std::int16_t& keyCode,
                      SearchList* target = nullptr) const;
};

} // namespace tallyhoop
