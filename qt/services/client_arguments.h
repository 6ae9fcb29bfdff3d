// qt/services/client_arguments.h - the arguments that pass a message to the mail clients of a Linux desktop.
//
// Everything here is UTF-8. No shell is ever involved: an argument is one element of the list, quoted only for the
// client that parses it.
#pragma once

#include "qt/services/outgoing_mail.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tallyhoop::qt {

/// @returns "file:///..." with the path percent-encoded, commas and apostrophes included
std::string fileUrl(const std::filesystem::path& file);

/// @returns the arguments that make Thunderbird open its compose window with everything filled in
std::vector<std::string> thunderbirdArguments(const OutgoingMail& mail);

/// @returns the arguments for xdg-email. Recipients, subject and text travel as one mailto address, so that a leading
///          "-", a missing "@" or an empty text cannot be taken for something else
std::vector<std::string> xdgEmailArguments(const OutgoingMail& mail);

} // namespace tallyhoop::qt
