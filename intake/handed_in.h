// intake/handed_in.h - one bracket as somebody handed it in, or what could not be taken for one.
#pragma once

#include "pool/entry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tallyhoop {

/// Where an entry came from. Texts are for people; nothing is ever opened by them.
struct Origin {
    std::string file;   ///< the name of the file; empty = pasted
    std::string sender; ///< the address that the mail came from; empty = not from a mail, or without one
    int number = 1; ///< which of the entries of its file or of the pasted text, from 1 on; in a table the row, from 1
                    ///< on, with the header as row 1
    std::optional<std::int64_t> date; ///< when it was sent, or its file changed last: seconds since 1970

    friend bool operator==(const Origin&, const Origin&) = default;
};

/// What a reader made of one entry. Picks that the reader does not know are in the bracket all the same.
struct HandedIn {
    Entry entry;         ///< initials as typed; 127 places, the field's teams included; its own file name is empty
    std::string email{}; ///< from the entry itself or else its sender; empty = none
    Origin origin;
    std::vector<std::string> refusals; ///< why the reader refuses it, a sentence each; empty = it does not
    bool isLegible = true;             ///< false = so little could be read that there is no use in checking that
    std::string fileName{}; ///< the selection that it is to become, not checked; empty = made from name and initials

    friend bool operator==(const HandedIn&, const HandedIn&) = default;
};

/// What cannot be read at all, as a row of its own.
inline HandedIn refusedWhole(Origin origin, std::string reason)
{
    HandedIn refused;
    refused.origin = std::move(origin);
    refused.refusals.push_back(std::move(reason));
    refused.isLegible = false;
    return refused;
}

} // namespace tallyhoop
