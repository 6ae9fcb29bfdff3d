// tests/fuzz/message_file.cpp - a message of arbitrary texts, written as a file and read again by the library's parser.
#include "fuzz/targets.h"

#include "base/text.h"
#include "qt/services/gmime_message.h"
#include "qt/services/message_writing.h"

#include <algorithm>
#include <gmime/gmime.h>
#include <memory>
#include <vector>

namespace tallyhoop::fuzz {
namespace {

struct Unreference {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <class T>
using Owned = std::unique_ptr<T, Unreference>;

struct Mail {
    qt::OutgoingMail outgoing;
    std::vector<qt::AttachedText> attachments;
};

Mail decode(std::string_view bytes)
{
    std::vector<std::string> sections = split(bytes, '\x1E');
    sections.resize(std::max<std::size_t>(sections.size(), 3));
    ui::MailMessage message{split(sections[0], '\n'), sections[1], sections[2], 0, {}};
    std::erase(message.recipients, std::string{});
    Mail mail{qt::outgoing(message), {}};
    for (std::size_t i = 3; i < sections.size(); ++i)
        mail.attachments.push_back({"RPTOPT" + std::to_string(i - 2) + ".TXT", sections[i]});
    return mail;
}

std::string text(const char* nullable) { return nullable == nullptr ? std::string{} : std::string{nullable}; }

/// @returns a part's bytes, decoded
std::string contentOf(GMimeObject* part)
{
    const Owned<GMimeStream> stream{g_mime_stream_mem_new()};
    if (GMimeDataWrapper* content = g_mime_part_get_content(GMIME_PART(part)))
        g_mime_data_wrapper_write_to_stream(content, stream.get());
    const GByteArray* bytes = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream.get()));
    return {reinterpret_cast<const char*>(bytes->data), bytes->len};
}

/// @returns the subject as receivers see it. Encoded words are decoded one by one: the library's own decoder joins them
///          first, and loses what follows a padded one.
std::string subjectOf(GMimeMessage* message)
{
    static const std::string begin = "=?UTF-8?B?";
    GMimeHeader* header =
        g_mime_header_list_get_header(g_mime_object_get_header_list(GMIME_OBJECT(message)), "Subject");
    const std::string raw = header == nullptr ? std::string{} : text(g_mime_header_get_raw_value(header));
    std::size_t at = raw.find(begin);
    if (at == std::string::npos)
        return text(g_mime_message_get_subject(message));
    std::string subject;
    for (; at != std::string::npos; at = raw.find(begin, at)) {
        at += begin.size();
        gsize length = 0;
        guchar* decoded = g_base64_decode(raw.substr(at, raw.find("?=", at) - at).c_str(), &length);
        subject.append(reinterpret_cast<const char*>(decoded), length);
        g_free(decoded);
    }
    return subject;
}

/// @param longestRecipient characters of the longest address: there is no place where it could be broken
Complaint checkLines(const std::string& written, std::size_t longestRecipient)
{
    const std::size_t longestLine = 998 + longestRecipient; // what mail allows, line end not counted
    const std::size_t headEnd = written.find("\r\n\r\n");
    std::size_t start = 0;
    for (std::size_t at = 0; at < written.size(); ++at) {
        const auto byte = static_cast<unsigned char>(written[at]);
        if (byte == 0 || (byte >= 0x80U && at > headEnd))
            return "a byte that is not text"; // an address may have accents: there is no other way to write them
        if (byte == '\r' && (at + 1 == written.size() || written[at + 1] != '\n'))
            return "a lone carriage return";
        if (byte != '\n')
            continue;
        if (at == 0 || written[at - 1] != '\r')
            return "a lone line feed";
        if (at - 1 - start > longestLine)
            return "a line too long for mail";
        start = at + 1;
    }
    return std::nullopt;
}

/// The headers before the first empty line: ours, each once, and no other.
Complaint checkHeaders(const std::string& written)
{
    static const std::vector<std::string> known{"X-Unsent", "To", "Subject", "MIME-Version", "Content-Type"};
    std::vector<std::string> found;
    for (const std::string& line : split(written.substr(0, written.find("\r\n\r\n")), '\n')) {
        if (line.starts_with(' ') || line.starts_with('\t'))
            continue;
        found.push_back(line.substr(0, line.find(':')));
        if (std::ranges::find(known, found.back()) == known.end())
            return "a header that is not ours: " + line;
    }
    std::ranges::sort(found);
    if (std::ranges::adjacent_find(found) != found.end())
        return "a header comes twice";
    return std::nullopt;
}

Complaint checkParts(GMimeMultipart* parts, const Mail& mail)
{
    if (g_mime_multipart_get_count(parts) != static_cast<int>(mail.attachments.size()) + 1)
        return "parts are lost or invented";
    if (contentOf(g_mime_multipart_get_part(parts, 0)) != mail.outgoing.body)
        return "the text is another";
    for (std::size_t i = 0; i < mail.attachments.size(); ++i) {
        GMimeObject* part = g_mime_multipart_get_part(parts, static_cast<int>(i) + 1);
        if (contentOf(part) != mail.attachments[i].bytes)
            return "an attachment is another";
        if (!g_mime_part_is_attachment(GMIME_PART(part)))
            return "an attachment is shown as text";
        if (text(g_mime_part_get_filename(GMIME_PART(part))) != mail.attachments[i].name)
            return "an attachment has another name: " + text(g_mime_part_get_filename(GMIME_PART(part)));
    }
    return std::nullopt;
}

Complaint checkWritten(const std::string& written, const Mail& mail)
{
    std::size_t longestRecipient = 0;
    for (const std::string& recipient : mail.outgoing.recipients)
        longestRecipient = std::max(longestRecipient, recipient.size());
    if (Complaint complaint = checkLines(written, longestRecipient))
        return complaint;
    if (Complaint complaint = checkHeaders(written))
        return complaint;

    const Owned<GMimeStream> stream{g_mime_stream_mem_new_with_buffer(written.data(), written.size())};
    const Owned<GMimeParser> parser{g_mime_parser_new_with_stream(stream.get())};
    const Owned<GMimeMessage> message{g_mime_parser_construct_message(parser.get(), nullptr)};
    if (!message)
        return "the file is not a message";
    if (text(g_mime_object_get_header(GMIME_OBJECT(message.get()), "X-Unsent")) != "1")
        return "the message is not marked unsent";
    if (subjectOf(message.get()) != mail.outgoing.subject)
        return "the subject is another: " + subjectOf(message.get());
    GMimeObject* body = g_mime_message_get_mime_part(message.get());
    if (!GMIME_IS_MULTIPART(body))
        return "the message has no parts";
    return checkParts(GMIME_MULTIPART(body), mail);
}

} // namespace

Complaint message_file(std::string_view bytes)
{
    const Mail mail = decode(bytes);
    if (Complaint complaint = checkWritten(*qt::gmimeMessage(mail.outgoing, mail.attachments), mail))
        return "gmime: " + *complaint;
    if (Complaint complaint = checkWritten(*qt::writtenMessage(mail.outgoing, mail.attachments), mail))
        return "without gmime: " + *complaint;
    return std::nullopt;
}

} // namespace tallyhoop::fuzz
