// qt/services/gmime_message.h - writes messages with gmime, which is loaded when it is first needed.
#pragma once

#include "qt/services/mail_library.h"
#include "qt/services/message_file.h"

namespace tallyhoop::qt {

/// A MessageWriter.
/// @param gmime what composes it, nullptr = not installed
/// @returns the message; a failure without the library
Result<std::string> gmimeMessage(const OutgoingMail& mail, std::span<const AttachedText> attachments,
                                 const MailLibrary* gmime);

/// The same with the library of this system.
Result<std::string> gmimeMessage(const OutgoingMail& mail, std::span<const AttachedText> attachments);

} // namespace tallyhoop::qt
