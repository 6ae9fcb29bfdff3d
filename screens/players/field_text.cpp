// screens/players/field_text.cpp - quotes and line breaks kept out of the player list.
#include "screens/players/field_text.h"

#include <algorithm>
#include <cstddef>

namespace tallyhoop {

bool fitsIntoField(std::string_view text) { return text.find_first_of("\"\r\n") == std::string_view::npos; }

std::string madeFit(std::string_view text)
{
    std::string fit;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool secondOfPair = text[i] == '\n' && i > 0 && text[i - 1] == '\r';
        if (secondOfPair)
            continue;
        fit += text[i] == '"' ? '\'' : text[i] == '\r' || text[i] == '\n' ? ' ' : text[i];
    }
    return fit;
}

void insertAtCaret(ui::TextBox& box, std::string_view text)
{
    const auto start = std::min(static_cast<std::size_t>(std::max(box.selectionStart, 0)), box.text.size());
    const auto length = static_cast<std::size_t>(std::max(box.selectionLength, 0));
    box.text.replace(start, length, text);
    box.selectionStart = static_cast<int>(start + text.size());
    box.selectionLength = 0;
}

} // namespace tallyhoop
