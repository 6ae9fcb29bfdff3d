// qt/services/message_file.h - a message as a standard file (.eml) that mail clients open as a draft.
#pragma once

#include "base/result.h"
#include "qt/services/mail_library.h"
#include "qt/services/outgoing_mail.h"

#include <span>
#include <string>

namespace tallyhoop::qt {

/// A file to attach, already read.
struct AttachedText {
    std::string name;  ///< as the receiver sees it, UTF-8
    std::string bytes; ///< Windows-1252 text, UTF-8 in a page (*.HTML); travels byte for byte
};

/// @param gmime what composes it, nullptr = not installed
/// @returns the message as bytes with CR LF line ends: marked unsent, UTF-8 in headers and text, the text and every
///          attachment in base64; a failure without the library
Result<std::string> messageFile(const OutgoingMail& mail, std::span<const AttachedText> attachments,
                                const MailLibrary* gmime = mailLibrary());

/// Reads the files of the mail and composes the message with them.
/// @returns a failure with the system's reason when one cannot be read, too
Result<std::string> messageFile(const OutgoingMail& mail);

} // namespace tallyhoop::qt
