// qt/services/message_file.cpp - makes a draft with gmime.
#include "qt/services/message_file.h"

#include "files/replace_file.h"

#include <algorithm>
#include <gmime/gmime.h>
#include <memory>
#include <string_view>
#include <vector>

namespace tallyhoop::qt {

namespace {

constexpr const char* kCharset = "UTF-8";

struct Unreference {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <class T>
using Owned = std::unique_ptr<T, Unreference>;

struct FreeOptions {
    void operator()(GMimeFormatOptions* options) const { g_mime_format_options_free(options); }
};

void startLibrary()
{
    static const bool started = [] {
        g_mime_init();
        return true;
    }();
    (void)started;
}

bool isAscii(std::string_view text)
{
    return text.find_first_not_of("\t\n\r !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`"
                                  "abcdefghijklmnopqrstuvwxyz{|}~") == std::string_view::npos;
}

/// @returns whether a header can hold the text as it is: no blank that a reader would drop, nothing it would decode
bool isPlainHeader(std::string_view text)
{
    return isAscii(text) && text.find("=?") == std::string_view::npos && !text.starts_with(' ') && !text.ends_with(' ');
}

/// @returns how many bytes from `start`, at most `most`, end between two characters
std::size_t wholeCharacters(std::string_view utf8, std::size_t start, std::size_t most)
{
    std::size_t end = std::min(start + most, utf8.size());
    while (end < utf8.size() && end > start + 1 && (static_cast<unsigned char>(utf8[end]) & 0xC0U) == 0x80U)
        --end;
    return end - start;
}

/// @returns a text as header value: encoded words, one a line
std::string encodedWords(const std::string& utf8)
{
    constexpr std::size_t kBytesPerWord = 39; // 52 in base64, 12 around them: a line holds 76, "Subject: " included
    std::string words;
    for (std::size_t start = 0; start < utf8.size();) {
        const std::size_t length = wholeCharacters(utf8, start, kBytesPerWord);
        const auto* bytes = reinterpret_cast<const guchar*>(utf8.data() + start);
        gchar* base64 = g_base64_encode(bytes, length);
        // cppcheck-suppress knownConditionTrueFalse  ; it is empty at first only
        words += (words.empty() ? "=?UTF-8?B?" : "\n =?UTF-8?B?") + std::string{base64} + "?=";
        g_free(base64);
        start += length;
    }
    return words;
}

void setSubject(GMimeMessage* message, const std::string& subject)
{
    g_mime_message_set_subject(message, subject.c_str(), kCharset);
    if (isPlainHeader(subject))
        return;
    // Not the library's own encoding: it chooses between two by length, and leaves text unchanged that looks encoded
    // already. This encoding is the one that receivers support best.
    GMimeHeaderList* headers = g_mime_object_get_header_list(GMIME_OBJECT(message));
    g_mime_header_set_raw_value(g_mime_header_list_get_header(headers, "Subject"),
                                (" " + encodedWords(subject) + "\n").c_str());
}

/// A recipient is taken as typed: an address, a name with an address, or several of them.
void addRecipient(InternetAddressList* list, const std::string& recipient)
{
    const Owned<InternetAddressList> parsed{internet_address_list_parse(nullptr, recipient.c_str())};
    if (!parsed || internet_address_list_length(parsed.get()) == 0) {
        const Owned<InternetAddress> address{internet_address_mailbox_new(nullptr, recipient.c_str())};
        internet_address_list_add(list, address.get());
        return;
    }
    for (int i = 0; i < internet_address_list_length(parsed.get()); ++i) {
        InternetAddress* address = internet_address_list_get_address(parsed.get(), i);
        internet_address_set_charset(address, kCharset);
        internet_address_list_add(list, address);
    }
}

Owned<GMimePart> textPart(const std::string& bytes, const char* charset)
{
    Owned<GMimePart> part{g_mime_part_new_with_type("text", "plain")};
    const Owned<GMimeStream> stream{g_mime_stream_mem_new_with_buffer(bytes.data(), bytes.size())};
    const Owned<GMimeDataWrapper> content{
        g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT)};
    g_mime_part_set_content(part.get(), content.get());
    g_mime_part_set_content_encoding(part.get(), GMIME_CONTENT_ENCODING_BASE64);
    g_mime_object_set_content_type_parameter(GMIME_OBJECT(part.get()), "charset", charset);
    return part;
}

void attach(GMimeMultipart* multipart, const AttachedText& attachment)
{
    const Owned<GMimePart> part = textPart(attachment.bytes, "windows-1252");
    GMimeObject* object = GMIME_OBJECT(part.get());
    g_mime_object_set_disposition(object, GMIME_DISPOSITION_ATTACHMENT);
    g_mime_part_set_filename(part.get(), attachment.name.c_str());
    for (GMimeParamList* parameters :
         {g_mime_content_disposition_get_parameters(g_mime_object_get_content_disposition(object)),
          g_mime_content_type_get_parameters(g_mime_object_get_content_type(object))})
        for (const char* name : {"filename", "name"})
            if (GMimeParam* parameter = g_mime_param_list_get_parameter(parameters, name))
                g_mime_param_set_charset(parameter, kCharset);
    g_mime_multipart_add(multipart, object);
}

std::string withCrLf(std::string_view text)
{
    std::string converted;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r'))
            converted += '\r';
        converted += text[i];
    }
    return converted;
}

std::string written(GMimeMessage* message)
{
    const std::unique_ptr<GMimeFormatOptions, FreeOptions> options{g_mime_format_options_new()};
    g_mime_format_options_set_newline_format(options.get(), GMIME_NEWLINE_FORMAT_DOS);
    const Owned<GMimeStream> stream{g_mime_stream_mem_new()};
    g_mime_object_write_to_stream(GMIME_OBJECT(message), options.get(), stream.get());
    const GByteArray* bytes = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream.get()));
    return withCrLf({reinterpret_cast<const char*>(bytes->data), bytes->len});
}

} // namespace

std::string messageFile(const OutgoingMail& mail, std::span<const AttachedText> attachments)
{
    startLibrary();
    const Owned<GMimeMessage> message{g_mime_message_new(TRUE)};
    g_mime_object_set_header(GMIME_OBJECT(message.get()), "X-Unsent", "1", nullptr);
    for (const std::string& recipient : mail.recipients)
        addRecipient(g_mime_message_get_addresses(message.get(), GMIME_ADDRESS_TYPE_TO), recipient);
    setSubject(message.get(), mail.subject);

    // Base64 for the text too: no line of it can look like a boundary, and no client changes it in transit.
    const Owned<GMimeMultipart> multipart{g_mime_multipart_new_with_subtype("mixed")};
    g_mime_multipart_add(multipart.get(), GMIME_OBJECT(textPart(mail.body, "utf-8").get()));
    for (const AttachedText& attachment : attachments)
        attach(multipart.get(), attachment);
    g_mime_message_set_mime_part(message.get(), GMIME_OBJECT(multipart.get()));
    return written(message.get());
}

Result<std::string> messageFile(const OutgoingMail& mail)
{
    std::vector<AttachedText> attachments;
    for (const std::filesystem::path& file : mail.files) {
        const Result<std::string> bytes = readFile(file);
        if (!bytes)
            return bytes.failure();
        attachments.push_back({file.filename().native(), *bytes});
    }
    return messageFile(mail, attachments);
}

} // namespace tallyhoop::qt
