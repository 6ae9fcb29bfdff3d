// qt/services/client_arguments.cpp - quoting for each client.
#include "qt/services/client_arguments.h"

#include "base/text.h"
#include "qt/services/message_encodings.h"

namespace tallyhoop::qt {

namespace {

/// In Thunderbird's composing argument a value in apostrophes is taken as it is and ends at an apostrophe before a
/// comma or the end; a bare value is percent-decoded.
std::string composeValue(const std::string& text)
{
    const bool endsEarly = text.find("',") != std::string::npos || text.ends_with('\'');
    return endsEarly ? percentEncoded(text) : "'" + text + "'";
}

} // namespace

// Not QUrl::fromLocalFile(): it leaves commas and apostrophes as they are, and the name of a file need not be UTF-8.
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
