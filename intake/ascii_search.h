// intake/ascii_search.h - finds keys such as "Name:" in text, in any case of their letters.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace tallyhoop {

/// Where a key is, and where what follows its colon begins; both npos when it is not there.
struct KeyPlace {
    std::size_t begin = std::string_view::npos;
    std::size_t end = std::string_view::npos;

    explicit operator bool() const { return begin != std::string_view::npos; }
};

/// Finds a key: not within a word, with a colon after it, blanks between them or not. Two colons are not one.
/// @param key  ASCII, without the colon
/// @param from where to begin
KeyPlace keyAt(std::string_view text, std::string_view key, std::size_t from);

/// @returns where the last of them begins, npos when there is none
std::size_t lastKey(std::string_view text, std::string_view key);

/// @returns where an ASCII text is, in any case of its letters; npos when it is not there
std::size_t findInAnyCase(std::string_view text, std::string_view ascii, std::size_t from);

/// @returns whether a word is one of several in ASCII, in any case of its letters
bool isOneOf(std::span<const std::string_view> words, std::string_view word);

} // namespace tallyhoop
