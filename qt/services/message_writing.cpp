// qt/services/message_writing.cpp - the headers and parts of a draft.
#include "qt/services/message_writing.h"

#include "base/text.h"
#include "qt/services/mailboxes.h"
#include "qt/services/message_encodings.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace tallyhoop::qt {

namespace {

constexpr std::size_t kMostPerLine = 76;
constexpr const char* kNextLine = "\r\n ";

/// No line of base64 looks like it: "_" is none of its letters.
constexpr std::string_view kBoundary = "=_part_of_the_message";

/// @returns a text of a header of this name, which is not counted among the characters of a line
std::string headerText(const std::string& utf8, std::size_t nameLength)
{
    return isPlainHeader(utf8) && nameLength + utf8.size() <= kMostPerLine ? utf8 : encodedWords(utf8);
}

/// @returns a name in quotation marks, or encoded
std::string phraseOf(const std::string& name)
{
    constexpr std::size_t kLongest = 60;
    if (!isPlainHeader(name) || name.size() > kLongest)
        return encodedWords(name);
    std::string quoted = "\"";
    for (const char c : name) {
        if (c == '"' || c == '\\')
            quoted.push_back('\\');
        quoted.push_back(c);
    }
    return quoted + '"';
}

/// @returns whether nothing in an address would change where it or the next one begins and ends
bool isPlainAddress(std::string_view address)
{
    return std::ranges::all_of(address, [](char c) {
        constexpr std::string_view kMeansSomething = "\"(),:;<>[]\\";
        return static_cast<unsigned char>(c) > ' ' && c != '\x7F' && kMeansSomething.find(c) == std::string_view::npos;
    });
}

std::string written(const Mailbox& mailbox)
{
    if (mailbox.address.empty())
        return phraseOf(mailbox.name);
    if (!isPlainAddress(mailbox.address)) // kept for the person to see; no program could send to it
        return phraseOf(mailbox.name.empty() ? mailbox.address : mailbox.name + " <" + mailbox.address + ">");
    if (mailbox.name.empty())
        return mailbox.address;
    return phraseOf(mailbox.name) + kNextLine + "<" + mailbox.address + ">";
}

/// @returns the header, one recipient a line; nothing without recipients
std::string toHeader(const OutgoingMail& mail)
{
    std::vector<std::string> all;
    for (const std::string& recipient : mail.recipients)
        for (const Mailbox& mailbox : mailboxesOf(recipient))
            all.push_back(written(mailbox));
    if (all.empty())
        return {};
    return "To: " + joined(all, std::string{","} + kNextLine) + "\r\n";
}

/// @returns a parameter of a header on lines of its own; long names, and those beyond ASCII, as RFC 2231 has it
std::string parameter(const std::string& key, const std::string& value)
{
    constexpr std::size_t kPerLine = 54;
    const bool isSafe = isPlainHeader(value) && value.find_first_of("\"\\") == std::string::npos;
    if (isSafe && value.size() <= kPerLine)
        return std::string{";"} + kNextLine + key + "=\"" + value + '"';
    const std::string encoded = percentEncoded(value);
    std::string lines;
    std::size_t number = 0;
    for (std::size_t start = 0; start < encoded.size(); ++number) {
        std::size_t end = std::min(start + kPerLine, encoded.size());
        if (const std::size_t percent = encoded.find('%', end - 2); end < encoded.size() && percent < end)
            end = percent; // "%C3" stays together
        lines += std::string{";"} + kNextLine + key + '*' + std::to_string(number) +
                 "*=" + (number == 0 ? "UTF-8''" : "") + encoded.substr(start, end - start);
        start = end;
    }
    return lines;
}

std::string base64Lines(std::string_view bytes)
{
    constexpr std::size_t kBytesPerLine = kMostPerLine / 4 * 3;
    std::string lines;
    lines.reserve(bytes.size() / kBytesPerLine * (kMostPerLine + 2) + kMostPerLine + 2);
    for (std::size_t start = 0; start < bytes.size(); start += kBytesPerLine)
        lines += base64(bytes.substr(start, kBytesPerLine)) + "\r\n";
    return lines;
}

/// @returns a part with the boundary before it
/// @param type     and its parameters
/// @param moreHead further headers
// Base64 for the text too: no line of it can look like a boundary, and no client changes it in transit.
std::string part(const std::string& type, const std::string& moreHead, std::string_view bytes)
{
    return "--" + std::string{kBoundary} + "\r\nContent-Type: " + type + "\r\n" + moreHead +
           "Content-Transfer-Encoding: base64\r\n\r\n" + base64Lines(bytes);
}

std::string attached(const AttachedText& attachment)
{
    const std::string type = isPage(attachment) ? "text/html; charset=utf-8" : "text/plain; charset=windows-1252";
    return part(type + parameter("name", attachment.name),
                "Content-Disposition: attachment" + parameter("filename", attachment.name) + "\r\n", attachment.bytes);
}

} // namespace

Result<std::string> writtenMessage(const OutgoingMail& mail, std::span<const AttachedText> attachments)
{
    constexpr std::string_view kSubject = "Subject: ";
    const std::string boundary{kBoundary};
    std::string message = "X-Unsent: 1\r\n" + toHeader(mail) + std::string{kSubject} +
                          headerText(mail.subject, kSubject.size()) +
                          "\r\nMIME-Version: 1.0\r\nContent-Type: multipart/mixed; boundary=\"" + boundary +
                          "\"\r\n\r\n" + part("text/plain; charset=utf-8", {}, mail.body);
    for (const AttachedText& attachment : attachments)
        message += attached(attachment);
    return message + "--" + boundary + "--\r\n";
}

} // namespace tallyhoop::qt
