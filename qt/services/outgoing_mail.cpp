// qt/services/outgoing_mail.cpp - quoting for each client.
#include "qt/services/outgoing_mail.h"

#include "base/text.h"
#include "base/windows1252.h"

#include <QByteArray>
#include <algorithm>

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

/// In Thunderbird's composing argument a value in apostrophes is taken as it is and ends at an apostrophe before a
/// comma or the end; a bare value is percent-decoded.
std::string composeValue(const std::string& text)
{
    const bool endsEarly = text.find("',") != std::string::npos || text.ends_with('\'');
    return endsEarly ? percentEncoded(text) : "'" + text + "'";
}

} // namespace

OutgoingMail outgoing(const ui::MailMessage& message)
{
    OutgoingMail mail;
    for (const std::string& recipient : message.recipients)
        mail.recipients.push_back(oneLine(toUtf8(recipient)));
    mail.subject = oneLine(toUtf8(message.subject));
    mail.body = toUtf8(withoutPlaceholders(message));
    for (const ui::Attachment& attachment : message.attachments)
        mail.files.push_back(std::filesystem::absolute(attachment.file));
    return mail;
}

// Of the bytes and not of a QString: the name of a file need not be UTF-8. And not QUrl::fromLocalFile(), which leaves
// commas and apostrophes as they are.
std::string percentEncoded(std::string_view text, std::string_view kept)
{
    const auto bytes = [](std::string_view view) {
        return QByteArray::fromRawData(view.data(), static_cast<qsizetype>(view.size()));
    };
    return bytes(text).toPercentEncoding(bytes(kept)).toStdString();
}

std::string fileUrl(const std::filesystem::path& file) { return "file://" + percentEncoded(file.native(), "/"); }

std::vector<std::string> thunderbirdArguments(const OutgoingMail& mail)
{
    std::string compose;
    if (!mail.recipients.empty())
        compose += "to=" + composeValue(joined(mail.recipients, ",")) + ",";
    compose += "subject=" + percentEncoded(mail.subject);
    compose += ",body=" + percentEncoded(mail.body);
    compose += ",format=text"; // Otherwise a "<b>" in the text would become bold.
    std::vector<std::string> urls;
    for (const std::filesystem::path& file : mail.files)
        urls.push_back(fileUrl(file));
    if (!urls.empty())
        compose += ",attachment='" + joined(urls, ",") + "'";
    return {"-compose", compose};
}

std::vector<std::string> xdgEmailArguments(const OutgoingMail& mail)
{
    std::vector<std::string> arguments{"--utf8"};
    for (const std::filesystem::path& file : mail.files) {
        arguments.emplace_back("--attach");
        arguments.push_back(file.native());
    }
    std::vector<std::string> recipients;
    for (const std::string& recipient : mail.recipients)
        recipients.push_back(percentEncoded(recipient, "@"));
    std::string address = "mailto:" + joined(recipients, ",") + "?subject=" + percentEncoded(mail.subject);
    if (!mail.body.empty())
        address += "&body=" + percentEncoded(mail.body);
    arguments.push_back(address);
    return arguments;
}

} // namespace tallyhoop::qt
