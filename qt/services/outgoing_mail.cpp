// qt/services/outgoing_mail.cpp - converts a message, and checks and names its files.
#include "qt/services/outgoing_mail.h"

#include "base/windows1252.h"
#include "files/data_folder.h"
#include "files/whole_path.h"

#include <algorithm>
#include <system_error>

namespace tallyhoop::qt {

namespace {

std::string oneLine(std::string text)
{
    std::ranges::replace_if(
        text, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, ' ');
    return text;
}

std::string withoutPlaceholders(const ui::MailMessage& message)
{
    std::string body = message.body;
    for (std::size_t i = 0; i < message.placeholders && body.ends_with(' '); ++i)
        body.pop_back();
    return body;
}

} // namespace

OutgoingMail outgoing(const ui::MailMessage& message)
{
    OutgoingMail mail;
    for (const std::string& recipient : message.recipients)
        mail.recipients.push_back(oneLine(toUtf8(recipient)));
    mail.subject = oneLine(toUtf8(message.subject));
    mail.body = toUtf8(withoutPlaceholders(message));
    std::error_code ignored;
    for (const ui::Attachment& attachment : message.attachments)
        mail.files.push_back(wholePath(attachment.file, ignored));
    return mail;
}

std::optional<Failure> missingFile(const OutgoingMail& mail)
{
    for (const std::filesystem::path& file : mail.files) {
        std::error_code ignored;
        if (!std::filesystem::is_regular_file(file, ignored))
            return Failure{"The file " + shown(file) + " is not there."};
    }
    return std::nullopt;
}

Failure byHand(const Failure& reason, const OutgoingMail& mail)
{
    std::string text = "The message could not be handed to a mail program.\r\n" + reason.message;
    if (mail.files.empty())
        return {text};
    text += "\r\n\r\nYou can attach the files yourself:\r\n";
    for (const std::filesystem::path& file : mail.files)
        text += "\r\n" + shown(file.filename());
    text += "\r\n\r\nThey are in the folder " + shown(mail.files.front().parent_path());
    return {text};
}

} // namespace tallyhoop::qt
