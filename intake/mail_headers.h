// intake/mail_headers.h - what is written above the text of a mail, or of one of its parts.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallyhoop {

/// The fields above a mail or a part of one.
class MailHeaders
{
public:
    /// Reads the fields, up to the first empty line or to a line that can be none.
    /// @param bytes of the mail or part; keeps what follows them
    static MailHeaders takenFrom(std::string_view& bytes);

    /// @returns the first field of this name, whatever the case of its letters, on one line; empty = there is none
    std::string get(std::string_view name) const;

private:
    std::vector<std::pair<std::string, std::string>> m_fields;
};

/// A field such as `text/plain; charset="utf-8"`.
struct MailValue {
    std::string value;                             ///< before the first semicolon, in small letters
    std::map<std::string, std::string> parameters; ///< by their names in small letters; UTF-8 where it can be

    /// @returns a parameter, empty = there is none
    std::string get(const std::string& name) const;
};

/// Takes a field apart. A parameter may be continued in several, or say its character set, as RFC 2231 has it, or be in
/// encoded words, as many programs write it.
MailValue mailValueOf(std::string_view field);

/// @returns the text with its encoded words, such as `=?utf-8?q?Zo=C3=A9?=`, in UTF-8
std::string withoutEncodedWords(std::string_view text);

/// @returns the first address of a list such as `"Smith, Ann" <ann@example.org>, Bob <bob@example.org>`; empty = none
std::string firstAddress(std::string_view field);

/// @returns the moment in seconds since 1970; nothing when it is no date as mails have them
std::optional<std::int64_t> secondsOfMailDate(std::string_view field);

} // namespace tallyhoop
