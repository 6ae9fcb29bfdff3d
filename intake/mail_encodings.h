// intake/mail_encodings.h - how bytes travel in mails.
#pragma once

#include <string>
#include <string_view>

namespace tallyhoop {

/// @returns the bytes; whatever is no letter of the alphabet is passed over, what is cut off is left out
std::string fromBase64(std::string_view text);

/// @returns the bytes; what is no escape stays as it is
/// @param isWord in an encoded word of a header "_" is a blank
std::string fromQuotedPrintable(std::string_view text, bool isWord = false);

/// Decodes the content of a part.
/// @param encoding as its header names it; "7bit" and whatever is not known leave the bytes as they are
std::string decodedContent(std::string_view bytes, std::string_view encoding);

} // namespace tallyhoop
