// qt/services/outgoing_mail.h - a message in the form that mail clients take which cannot place attachments in its
// text.
//
// Nothing of Qt is in here.
#pragma once

#include "base/result.h"
#include "ui/mail.h"

#include <filesystem>
#include <optional>
#include <string>
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

/// @returns the failure that names the first of its files that is not there; nothing when all are
std::optional<Failure> missingFile(const OutgoingMail& mail);

/// @returns the failure with what the person can do instead: attach the files, which it names
Failure byHand(const Failure& reason, const OutgoingMail& mail);

} // namespace tallyhoop::qt
