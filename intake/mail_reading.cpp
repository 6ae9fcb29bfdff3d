// intake/mail_reading.cpp - walks through a mail and the parts in it.
#include "intake/mail_reading.h"

#include "base/utf8_mark.h"
#include "base/windows1252.h"
#include "intake/charsets.h"
#include "intake/limits.h"
#include "intake/mail_dates.h"
#include "intake/mail_encodings.h"
#include "intake/mail_headers.h"
#include "intake/mail_value.h"
#include "intake/plain_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kNoMail = "The file is not a mail.";
constexpr const char* kTooManyParts = "The mail has too many parts.";

/// @returns the bytes before the end of a line that they end with
std::string_view withoutLineEnd(std::string_view bytes)
{
    if (bytes.ends_with('\n'))
        bytes.remove_suffix(1);
    if (bytes.ends_with('\r'))
        bytes.remove_suffix(1);
    return bytes;
}

/// The parts between the lines that a boundary makes; a mail that ends too early ends its last part.
/// @returns no more than so many
std::vector<std::string_view> partsBetween(std::string_view body, const std::string& boundary, std::size_t most)
{
    const std::string between = "--" + boundary;
    const std::string after = between + "--";
    std::vector<std::string_view> parts;
    std::optional<std::size_t> begin; // of the part at hand
    for (std::size_t at = 0; at < body.size() && parts.size() < most;) {
        const std::size_t end = std::min(body.find('\n', at), body.size() - 1) + 1;
        const std::string_view line = body.substr(at, end - at);
        const std::string_view words = line.substr(0, line.find_last_not_of(" \t\r\n") + 1);
        if (words == between || words == after) {
            if (begin)
                parts.push_back(withoutLineEnd(body.substr(*begin, at - *begin)));
            begin = words == between ? std::optional{end} : std::nullopt;
        }
        at = end;
    }
    if (begin && parts.size() < most)
        parts.push_back(body.substr(*begin));
    return parts;
}

/// What calls itself Latin-1 is nearly always Windows-1252, and what calls itself ASCII can be anything.
std::string contentInUtf8(const std::string& text, const std::string& charset)
{
    constexpr std::array<std::string_view, 8> kGuessed = {"",     "us-ascii",   "ascii",  "utf-8",
                                                          "utf8", "iso-8859-1", "latin1", "windows-1252"};
    if (std::ranges::any_of(kGuessed, [&](std::string_view known) { return equalFolded(charset, known); }))
        return utf8Of(text);
    return utf8FromCharset(text, charset).value_or(utf8Of(text));
}

class PartsOfMail
{
public:
    Result<std::vector<MailPart>> take(std::string_view bytes)
    {
        takeMessage(bytes, 0);
        if (m_seen > kMostPartsOfMail)
            return Failure{kTooManyParts};
        return std::move(m_parts);
    }

private:
    void takeMessage(std::string_view bytes, int depth)
    {
        const MailHeaders headers = MailHeaders::takenFrom(bytes);
        MailPart inherited;
        inherited.message = m_messages++;
        inherited.sender = fromUtf8(firstAddress(headers.get("From")));
        inherited.date = secondsOfMailDate(headers.get("Date"));
        takePart(headers, bytes, inherited, depth + 1);
    }

    /// @param inherited what the message gives to all of its parts
    void takePart(const MailHeaders& headers, std::string_view body, const MailPart& inherited, int depth)
    {
        if (++m_seen > kMostPartsOfMail)
            return;
        if (depth > kDeepestPartOfMail) {
            noteTooDeep(inherited);
            return;
        }
        const MailValue type = mailValueOf(headers.get("Content-Type"));
        if (type.value.starts_with("multipart/")) {
            for (std::string_view part : partsBetween(body, type.get("boundary"), kMostPartsOfMail + 1)) {
                const MailHeaders its = MailHeaders::takenFrom(part);
                takePart(its, part, inherited, depth + 1);
            }
        } else if (type.value == "message/rfc822" || type.value == "message/global") {
            const std::string message = decodedContent(body, headers.get("Content-Transfer-Encoding"));
            takeMessage(message, depth);
        } else {
            takeLeaf(headers, type, body, inherited);
        }
    }

    void noteTooDeep(const MailPart& inherited)
    {
        if (std::ranges::find(m_parts, MailPart::Kind::TooDeep, &MailPart::kind) != m_parts.end())
            return;
        m_parts.push_back(inherited);
        m_parts.back().kind = MailPart::Kind::TooDeep;
    }

    void takeLeaf(const MailHeaders& headers, const MailValue& type, std::string_view body, const MailPart& inherited)
    {
        const std::string name = mailValueOf(headers.get("Content-Disposition")).get("filename");
        MailPart taken = inherited;
        taken.name = fromUtf8(name.empty() ? type.get("name") : name);
        const std::optional<MailPart::Kind> kind = kindOf(type.value, taken.name);
        if (!kind)
            return;
        taken.kind = *kind;
        taken.content = decodedContent(body, headers.get("Content-Transfer-Encoding"));
        if (taken.kind != MailPart::Kind::File)
            taken.content = contentInUtf8(taken.content, type.get("charset"));
        m_parts.push_back(std::move(taken));
    }

    /// @returns nothing when it is of no use, such as a picture
    static std::optional<MailPart::Kind> kindOf(const std::string& type, const std::string& name)
    {
        if (name.empty() && (type.empty() || type == "text/plain"))
            return MailPart::Kind::Text;
        if (name.empty() && type == "text/html")
            return MailPart::Kind::Html;
        if (!name.empty() || type.starts_with("application/"))
            return MailPart::Kind::File; // somebody's selection may have lost its name on the way
        return std::nullopt;
    }

    std::vector<MailPart> m_parts;
    std::size_t m_seen = 0;
    int m_messages = 0;
};

} // namespace

Result<std::vector<MailPart>> partsOfMail(std::string_view bytes)
{
    if (bytes.empty())
        return Failure{kNoMail};
    if (bytes.starts_with(kUtf8Mark)) // would be part of the first header's name
        bytes.remove_prefix(kUtf8Mark.size());
    return PartsOfMail{}.take(bytes);
}

} // namespace tallyhoop
