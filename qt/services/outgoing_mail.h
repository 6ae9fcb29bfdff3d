// qt/services/outgoing_mail.h - a message in the form that mail clients of a desktop take, and the arguments that pass
// it to them.
//
// Everything here is UTF-8. No shell is ever involved: an argument is one element of the list, quoted only for the
// client that parses it.
#pragma once

#include "ui/mail.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop::qt {

/// A message in which all attachments follow the text.
struct OutgoingMail {
    std::vector<std::string> recipients; ///< UTF-8, no control characters
    std::string subject;                 ///< UTF-8, no control characters
    std::string body;                    ///< UTF-8, lines separated by CR LF, without the attachments' placeholders
    std::vector<std::filesystem::path> files{}; ///< absolute
};

/// Converts a message of ours; the placeholder blanks at the end of its body are left out.
OutgoingMail outgoing(const ui::MailMessage& message);

/// @returns the text with every byte but letters, digits and "-._~" (and those in `kept`) as "%" and two hex digits
std::string percentEncoded(std::string_view text, std::string_view kept = {});

/// @returns "file:///..." with the path percent-encoded, commas and apostrophes included
std::string fileUrl(const std::filesystem::path& file);

/// @returns the arguments that make Thunderbird open its compose window with everything filled in
std::vector<std::string> thunderbirdArguments(const OutgoingMail& mail);

/// @returns the arguments for xdg-email. Recipients, subject and text travel as one mailto address, so that a leading
///          "-", a missing "@" or an empty text cannot be taken for something else
std::vector<std::string> xdgEmailArguments(const OutgoingMail& mail);

} // namespace tallyhoop::qt
