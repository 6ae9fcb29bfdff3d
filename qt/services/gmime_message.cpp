// qt/services/gmime_message.cpp - makes a draft with gmime.
#include "qt/services/gmime_message.h"

#include "qt/services/message_encodings.h"

#include <memory>

namespace tallyhoop::qt {

namespace {

constexpr const char* kCharset = "UTF-8";
constexpr const char* kMissing = "The library for mail messages, gmime 3, could not be loaded.";

struct Unreference {
    const MailLibrary* gmime;
    void operator()(gpointer object) const { gmime->g_object_unref(object); }
};
template <class T>
using Owned = std::unique_ptr<T, Unreference>;

/// Composes one message.
class Writer
{
public:
    explicit Writer(const MailLibrary& gmime) : m_gmime{gmime}, m_message{owned(gmime.g_mime_message_new(TRUE))} {}

    std::string write(const OutgoingMail& mail, std::span<const AttachedText> attachments)
    {
        m_gmime.g_mime_object_set_header(GMIME_OBJECT(m_message.get()), "X-Unsent", "1", nullptr);
        for (const std::string& recipient : mail.recipients)
            addRecipient(recipient);
        setSubject(mail.subject);

        // Base64 for the text too: no line of it can look like a boundary, and no client changes it in transit.
        const auto parts = owned(m_gmime.g_mime_multipart_new_with_subtype("mixed"));
        m_gmime.g_mime_multipart_add(parts.get(), GMIME_OBJECT(textPart(mail.body, "plain", "utf-8").get()));
        for (const AttachedText& attachment : attachments)
            m_gmime.g_mime_multipart_add(parts.get(), GMIME_OBJECT(attached(attachment).get()));
        m_gmime.g_mime_message_set_mime_part(m_message.get(), GMIME_OBJECT(parts.get()));
        return bytes();
    }

private:
    template <class T>
    Owned<T> owned(T* object) const
    {
        return Owned<T>{object, {&m_gmime}};
    }

    void setSubject(const std::string& subject)
    {
        m_gmime.g_mime_message_set_subject(m_message.get(), subject.c_str(), kCharset);
        if (isPlainHeader(subject))
            return;
        // Not the library's own encoding: it chooses between two by length, drops blanks around the text, and leaves
        // text unchanged that looks encoded already. This encoding is the one that receivers support best.
        GMimeHeaderList* headers = m_gmime.g_mime_object_get_header_list(GMIME_OBJECT(m_message.get()));
        m_gmime.g_mime_header_set_raw_value(m_gmime.g_mime_header_list_get_header(headers, "Subject"),
                                            (" " + encodedWords(subject) + "\r\n").c_str());
    }

    /// A recipient is taken as typed: an address, a name with an address, or several of them.
    void addRecipient(const std::string& recipient)
    {
        InternetAddressList* list = m_gmime.g_mime_message_get_addresses(m_message.get(), GMIME_ADDRESS_TYPE_TO);
        const auto parsed = owned(m_gmime.internet_address_list_parse(nullptr, recipient.c_str()));
        if (!parsed || m_gmime.internet_address_list_length(parsed.get()) == 0) {
            const auto address = owned(m_gmime.internet_address_mailbox_new(nullptr, recipient.c_str()));
            m_gmime.internet_address_list_add(list, address.get());
            return;
        }
        for (int i = 0; i < m_gmime.internet_address_list_length(parsed.get()); ++i) {
            InternetAddress* address = m_gmime.internet_address_list_get_address(parsed.get(), i);
            m_gmime.internet_address_set_charset(address, kCharset);
            m_gmime.internet_address_list_add(list, address);
        }
    }

    Owned<GMimePart> textPart(const std::string& bytes, const char* subtype, const char* charset) const
    {
        auto part = owned(m_gmime.g_mime_part_new_with_type("text", subtype));
        const auto stream = owned(m_gmime.g_mime_stream_mem_new_with_buffer(bytes.data(), bytes.size()));
        const auto content =
            owned(m_gmime.g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT));
        m_gmime.g_mime_part_set_content(part.get(), content.get());
        m_gmime.g_mime_part_set_content_encoding(part.get(), GMIME_CONTENT_ENCODING_BASE64);
        m_gmime.g_mime_object_set_content_type_parameter(GMIME_OBJECT(part.get()), "charset", charset);
        return part;
    }

    Owned<GMimePart> attached(const AttachedText& attachment) const
    {
        auto part = isPage(attachment) ? textPart(attachment.bytes, "html", "utf-8")
                                       : textPart(attachment.bytes, "plain", "windows-1252");
        GMimeObject* object = GMIME_OBJECT(part.get());
        m_gmime.g_mime_object_set_disposition(object, GMIME_DISPOSITION_ATTACHMENT);
        m_gmime.g_mime_part_set_filename(part.get(), attachment.name.c_str());
        for (GMimeParamList* parameters :
             {m_gmime.g_mime_content_disposition_get_parameters(m_gmime.g_mime_object_get_content_disposition(object)),
              m_gmime.g_mime_content_type_get_parameters(m_gmime.g_mime_object_get_content_type(object))})
            for (const char* name : {"filename", "name"})
                if (GMimeParam* parameter = m_gmime.g_mime_param_list_get_parameter(parameters, name))
                    m_gmime.g_mime_param_set_charset(parameter, kCharset);
        return part;
    }

    std::string bytes() const
    {
        const std::unique_ptr<GMimeFormatOptions, decltype(m_gmime.g_mime_format_options_free)> options{
            m_gmime.g_mime_format_options_new(), m_gmime.g_mime_format_options_free};
        m_gmime.g_mime_format_options_set_newline_format(options.get(), GMIME_NEWLINE_FORMAT_DOS);
        const auto stream = owned(m_gmime.g_mime_stream_mem_new());
        m_gmime.g_mime_object_write_to_stream(GMIME_OBJECT(m_message.get()), options.get(), stream.get());
        const GByteArray* written = m_gmime.g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream.get()));
        return {reinterpret_cast<const char*>(written->data), written->len};
    }

    const MailLibrary& m_gmime;
    Owned<GMimeMessage> m_message;
};

} // namespace

Result<std::string> gmimeMessage(const OutgoingMail& mail, std::span<const AttachedText> attachments,
                                 const MailLibrary* gmime)
{
    if (!gmime)
        return Failure{kMissing};
    return Writer{*gmime}.write(mail, attachments);
}

Result<std::string> gmimeMessage(const OutgoingMail& mail, std::span<const AttachedText> attachments)
{
    return gmimeMessage(mail, attachments, mailLibrary());
}

} // namespace tallyhoop::qt
