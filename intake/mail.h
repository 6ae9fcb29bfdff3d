// intake/mail.h - a mail taken apart: what in it may hold entries.
#pragma once

#include "base/result.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A part of a mail that may hold entries.
struct MailPart {
    enum class Kind {
        Text,    ///< UTF-8
        Html,    ///< UTF-8
        File,    ///< the bytes as they were attached
        TooDeep, ///< nothing: what is inside so many others is not read. At most one of a mail
    };
    Kind kind = Kind::Text;
    std::string name;                 ///< of a file, as its sender named it, Windows-1252; empty = it has none
    std::string content;              ///< decoded
    int message = 0;                  ///< which message it is part of: 0 is the mail itself, others came inside it
    std::string sender;               ///< the address that this message is from; empty = none
    std::optional<std::int64_t> date; ///< when it was sent: seconds since 1970
};

/// Takes a mail apart, the messages inside it included.
/// @returns its parts in their order; a failure in words when it is no mail or too much of one
using TakeMailApart = std::function<Result<std::vector<MailPart>>(std::string_view bytes)>;

} // namespace tallyhoop
