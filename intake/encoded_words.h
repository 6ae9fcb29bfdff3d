// intake/encoded_words.h - text beyond ASCII in the fields of a mail.
#pragma once

#include <string>
#include <string_view>

namespace tallyhoop {

/// @returns the text with its encoded words, such as `=?utf-8?q?Zo=C3=A9?=`, in UTF-8. Blanks between two words are
/// left
///          out; a character may begin in one word and end in the next
std::string withoutEncodedWords(std::string_view text);

} // namespace tallyhoop
