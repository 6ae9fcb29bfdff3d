// qt/services/mailboxes.h - whom a recipient as typed names.
//
// Nothing of Qt is in here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop::qt {

/// Somebody who gets a message; one of the two is never empty.
struct Mailbox {
    std::string name;    ///< empty = only the address is known
    std::string address; ///< empty = a name that the mail program looks up
    friend bool operator==(const Mailbox&, const Mailbox&) = default;
};

/// Takes a recipient apart: an address, a name with an address in angle brackets, several of these with commas or
/// semicolons between them, or, where there is no "@", one name.
/// @param recipient in UTF-8 or Windows-1252; so are the parts
/// @returns nobody when there are only blanks
std::vector<Mailbox> mailboxesOf(std::string_view recipient);

} // namespace tallyhoop::qt
