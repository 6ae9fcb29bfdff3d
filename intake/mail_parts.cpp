// intake/mail_parts.cpp - walks through the parts that gmime finds.
#include "intake/mail_parts.h"

#include "base/utf8_mark.h"
#include "base/windows1252.h"
#include "intake/limits.h"
#include "intake/mail_library.h"
#include "intake/plain_text.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kMissing = "The library for mail messages, gmime 3, could not be loaded.";
constexpr const char* kNoMail = "The file is not a mail.";
constexpr const char* kTooManyParts = "The mail has too many parts.";

struct Unreference {
    const MailLibrary* gmime;
    void operator()(gpointer object) const { gmime->g_object_unref(object); }
};

std::string textOf(const char* nullable) { return nullable == nullptr ? std::string{} : std::string{nullable}; }

/// Every part begins after a line with two hyphens. So many lines of that kind are never meant well: the library would
/// keep a kilobyte for each of them before anybody could count its parts.
bool mayHaveTooManyParts(std::string_view bytes)
{
    constexpr std::size_t kMostLines = 10 * kMostPartsOfMail; // signatures and drawn lines begin likewise
    std::size_t lines = 0;
    for (std::size_t at = bytes.find("\n--"); at != std::string_view::npos; at = bytes.find("\n--", at + 1))
        if (++lines > kMostLines)
            return true;
    return false;
}

class PartsOfMail
{
public:
    explicit PartsOfMail(const MailLibrary& gmime) : m_gmime{gmime} {}

    Result<std::vector<MailPart>> take(std::string_view bytes)
    {
        const auto stream = owned(m_gmime.g_mime_stream_mem_new_with_buffer(bytes.data(), bytes.size()));
        const auto parser = owned(m_gmime.g_mime_parser_new_with_stream(stream.get()));
        const auto message = owned(m_gmime.g_mime_parser_construct_message(parser.get(), nullptr));
        if (!message)
            return Failure{kNoMail};
        takeMessage(message.get(), 0);
        if (m_seen > kMostPartsOfMail)
            return Failure{kTooManyParts};
        return std::move(m_parts);
    }

private:
    template <class T>
    std::unique_ptr<T, Unreference> owned(T* object) const
    {
        return std::unique_ptr<T, Unreference>{object, {&m_gmime}};
    }

    bool isA(gpointer object, GType type) const
    {
        return object != nullptr && m_gmime.g_type_check_instance_is_a(static_cast<GTypeInstance*>(object), type) != 0;
    }

    void takeMessage(GMimeMessage* message, int depth)
    {
        MailPart inherited;
        inherited.message = m_messages++;
        inherited.sender = senderOf(message);
        if (GDateTime* date = m_gmime.g_mime_message_get_date(message))
            inherited.date = m_gmime.g_date_time_to_unix(date);
        takePart(m_gmime.g_mime_message_get_mime_part(message), inherited, depth + 1);
    }

    /// @param inherited what the message gives to all of its parts
    void takePart(GMimeObject* part, const MailPart& inherited, int depth)
    {
        if (part == nullptr || ++m_seen > kMostPartsOfMail)
            return;
        if (depth > kDeepestPartOfMail) {
            noteTooDeep(inherited);
            return;
        }
        if (isA(part, m_gmime.g_mime_multipart_get_type())) {
            GMimeMultipart* parts = GMIME_MULTIPART(part);
            for (int i = 0; i < m_gmime.g_mime_multipart_get_count(parts) && m_seen <= kMostPartsOfMail; ++i)
                takePart(m_gmime.g_mime_multipart_get_part(parts, i), inherited, depth + 1);
        } else if (isA(part, m_gmime.g_mime_message_part_get_type())) {
            if (GMimeMessage* message = m_gmime.g_mime_message_part_get_message(GMIME_MESSAGE_PART(part)))
                takeMessage(message, depth);
        } else if (isA(part, m_gmime.g_mime_part_get_type())) {
            takeLeaf(GMIME_PART(part), inherited);
        }
    }

    void noteTooDeep(const MailPart& inherited)
    {
        if (std::ranges::find(m_parts, MailPart::Kind::TooDeep, &MailPart::kind) != m_parts.end())
            return;
        m_parts.push_back(inherited);
        m_parts.back().kind = MailPart::Kind::TooDeep;
    }

    void takeLeaf(GMimePart* part, const MailPart& inherited)
    {
        MailPart taken = inherited;
        taken.name = fromUtf8(textOf(m_gmime.g_mime_part_get_filename(part)));
        const std::optional<MailPart::Kind> kind = kindOf(GMIME_OBJECT(part), taken.name);
        if (!kind)
            return;
        taken.kind = *kind;
        taken.content = contentOf(part);
        if (taken.kind != MailPart::Kind::File)
            taken.content = inUtf8(taken.content, GMIME_OBJECT(part));
        m_parts.push_back(std::move(taken));
    }

    /// @returns nothing when it is of no use, such as a picture
    std::optional<MailPart::Kind> kindOf(GMimeObject* part, const std::string& name) const
    {
        GMimeContentType* type = m_gmime.g_mime_object_get_content_type(part);
        const auto isType = [&](const char* kind, const char* form) {
            return m_gmime.g_mime_content_type_is_type(type, kind, form) != 0;
        };
        if (name.empty() && isType("text", "plain"))
            return MailPart::Kind::Text;
        if (name.empty() && isType("text", "html"))
            return MailPart::Kind::Html;
        if (!name.empty() || isType("application", "*"))
            return MailPart::Kind::File; // somebody's selection may have lost its name on the way
        return std::nullopt;
    }

    std::string contentOf(GMimePart* part) const
    {
        GMimeDataWrapper* content = m_gmime.g_mime_part_get_content(part);
        if (content == nullptr)
            return {};
        const auto stream = owned(m_gmime.g_mime_stream_mem_new());
        m_gmime.g_mime_data_wrapper_write_to_stream(content, stream.get());
        const GByteArray* bytes = m_gmime.g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream.get()));
        return {reinterpret_cast<const char*>(bytes->data), bytes->len};
    }

    /// What calls itself Latin-1 is nearly always Windows-1252, and what calls itself ASCII can be anything.
    std::string inUtf8(const std::string& text, GMimeObject* part) const
    {
        const std::string charset = textOf(m_gmime.g_mime_object_get_content_type_parameter(part, "charset"));
        for (const char* known : {"", "us-ascii", "ascii", "utf-8", "utf8", "iso-8859-1", "latin1", "windows-1252"})
            if (equalFolded(charset, known))
                return utf8Of(text);
        gsize size = 0;
        const std::unique_ptr<gchar, decltype(m_gmime.g_free)> converted{
            m_gmime.g_convert_with_fallback(text.data(), static_cast<gssize>(text.size()), "UTF-8", charset.c_str(),
                                            "?", nullptr, &size, nullptr),
            m_gmime.g_free};
        return converted ? std::string{converted.get(), size} : utf8Of(text);
    }

    std::string senderOf(GMimeMessage* message) const
    {
        InternetAddressList* from = m_gmime.g_mime_message_get_from(message);
        if (from == nullptr || m_gmime.internet_address_list_length(from) == 0)
            return {};
        InternetAddress* first = m_gmime.internet_address_list_get_address(from, 0);
        if (!isA(first, m_gmime.internet_address_mailbox_get_type()))
            return {};
        return fromUtf8(
            textOf(m_gmime.internet_address_mailbox_get_addr(reinterpret_cast<InternetAddressMailbox*>(first))));
    }

    const MailLibrary& m_gmime;
    std::vector<MailPart> m_parts;
    std::size_t m_seen = 0;
    int m_messages = 0;
};

} // namespace

Result<std::vector<MailPart>> mailParts(std::string_view bytes, const MailLibrary* gmime)
{
    if (gmime == nullptr)
        return Failure{kMissing};
    if (bytes.empty())
        return Failure{kNoMail};
    if (bytes.starts_with(kUtf8Mark)) // would be part of the first header's name
        bytes.remove_prefix(kUtf8Mark.size());
    if (mayHaveTooManyParts(bytes))
        return Failure{kTooManyParts};
    return PartsOfMail{*gmime}.take(bytes);
}

} // namespace tallyhoop
