// qt/services/message_writing.h - writes messages without a library, for systems that have none.
//
// Nothing of Qt is in here.
#pragma once

#include "qt/services/message_file.h"

namespace tallyhoop::qt {

/// A MessageWriter that never fails. Headers hold encoded words where they must, names of attachments are those of
/// RFC 2231, and no line is longer than 76 characters but for the names and addresses that leave no choice.
Result<std::string> writtenMessage(const OutgoingMail& mail, std::span<const AttachedText> attachments);

} // namespace tallyhoop::qt
