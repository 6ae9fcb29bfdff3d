// qt/services/message_file.h - a message as a standard file (.eml) that mail clients open as a draft.
//
// Nothing of Qt is in here. Who writes the message is chosen by its caller: gmime where the system has it
// (gmime_message.h), else the program itself (message_writing.h).
#pragma once

#include "base/result.h"
#include "files/data_folder.h"
#include "qt/services/outgoing_mail.h"

#include <filesystem>
#include <span>
#include <string>

namespace tallyhoop::qt {

/// The bare name of the message file.
inline constexpr const char* kMessageFile = "TALLYHOOP.EML";

/// A file to attach, already read.
struct AttachedText {
    std::string name;  ///< as the receiver sees it, UTF-8
    std::string bytes; ///< Windows-1252 text, UTF-8 in a page (*.HTML); travels byte for byte
};

/// @returns whether an attachment is a page: telephones open one as what its message says it is, whatever it is called
bool isPage(const AttachedText& attachment);

/// @returns the message as bytes with CR LF line ends: marked unsent, UTF-8 in headers and text, the text and every
///          attachment in base64; a failure when it could not be written
using MessageWriter = Result<std::string> (*)(const OutgoingMail& mail, std::span<const AttachedText> attachments);

/// Reads the files of the mail and has the message written with them.
/// @returns a failure with the system's reason when one cannot be read, too
Result<std::string> messageFile(const OutgoingMail& mail, MessageWriter write);

/// The same into kMessageFile of the folder.
/// @returns the file
Result<std::filesystem::path> writeMessageFile(const OutgoingMail& mail, MessageWriter write, const DataFolder& folder);

} // namespace tallyhoop::qt
