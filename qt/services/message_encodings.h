// qt/services/message_encodings.h - bytes and texts in the forms in which messages and addresses hold them.
//
// Nothing of Qt is in here.
#pragma once

#include <string>
#include <string_view>

namespace tallyhoop::qt {

/// @returns the bytes in base64, on one line
std::string base64(std::string_view bytes);

/// @returns the text with every byte but letters, digits and "-._~" (and those in `kept`) as "%" and two hex digits
std::string percentEncoded(std::string_view text, std::string_view kept = {});

/// @returns whether a header can hold the text as it is: no blank that a reader would drop, nothing it would decode
bool isPlainHeader(std::string_view text);

/// @returns a text as header value: encoded words of whole characters, one a line, none longer than 64 characters;
///          the lines are separated by CR LF and a blank
std::string encodedWords(std::string_view utf8);

} // namespace tallyhoop::qt
