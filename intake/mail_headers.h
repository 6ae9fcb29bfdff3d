// intake/mail_headers.h - what is written above the text of a mail, or of one of its parts.
#pragma once

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

/// @returns the first address of a list such as `"Smith, Ann" <ann@example.org>, Bob <bob@example.org>`; empty = none
std::string firstAddress(std::string_view field);

} // namespace tallyhoop
