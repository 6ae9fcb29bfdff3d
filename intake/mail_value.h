// intake/mail_value.h - a field that has parameters.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tallyhoop {

/// A field such as `text/plain; charset="utf-8"`.
struct MailValue {
    std::string value;                             ///< before the first semicolon, in lower case
    std::map<std::string, std::string> parameters; ///< by their names in lower case; UTF-8 where it can be

    /// @returns a parameter, empty = there is none
    std::string get(const std::string& name) const;
};

/// Takes a field apart. A parameter may be continued in several, or say its character set, as RFC 2231 has it, or be in
/// encoded words, as many programs write it.
MailValue mailValueOf(std::string_view field);

} // namespace tallyhoop
