// intake/ascii_search.cpp - keys in any case of their letters.
#include "intake/ascii_search.h"

#include <algorithm>

namespace tallyhoop {

namespace {

char small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

bool isOfWord(char c) { return (c >= '0' && c <= '9') || (small(c) >= 'a' && small(c) <= 'z') || (c & 0x80) != 0; }

} // namespace

std::size_t findInAnyCase(std::string_view text, std::string_view ascii, std::size_t from)
{
    if (from > text.size())
        return std::string_view::npos;
    const auto found = std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), ascii.begin(),
                                   ascii.end(), [](char left, char right) { return small(left) == small(right); });
    return found == text.end() ? std::string_view::npos : static_cast<std::size_t>(found - text.begin());
}

KeyPlace keyAt(std::string_view text, std::string_view key, std::size_t from)
{
    for (std::size_t at = findInAnyCase(text, key, from); at != std::string_view::npos;
         at = findInAnyCase(text, key, at + 1)) {
        if (at > 0 && isOfWord(text[at - 1]))
            continue;
        const std::size_t colon = text.find_first_not_of(' ', at + key.size());
        if (colon != std::string_view::npos && text[colon] == ':' && text.substr(colon, 2) != "::")
            return {at, colon + 1};
    }
    return {};
}

bool isOneOf(std::span<const std::string_view> words, std::string_view word)
{
    return std::ranges::any_of(
        words, [word](std::string_view one) { return one.size() == word.size() && findInAnyCase(word, one, 0) == 0; });
}

std::size_t lastKey(std::string_view text, std::string_view key)
{
    std::size_t last = std::string_view::npos;
    for (KeyPlace place = keyAt(text, key, 0); place; place = keyAt(text, key, place.end))
        last = place.begin;
    return last;
}

} // namespace tallyhoop
