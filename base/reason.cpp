// base/reason.cpp - one set of words for what systems number differently.
#include "base/reason.h"

#include "base/windows1252.h"

namespace tallyhoop {

std::string reasonOf(std::error_code error)
{
    // What Windows answers when a file may not be opened because of how another program has opened it.
    if (error == std::errc::text_file_busy)
        return "Another program has the file open.";
    const std::error_condition condition = error.default_error_condition();
    return fromUtf8(condition.category() == std::generic_category() ? condition.message() : error.message());
}

} // namespace tallyhoop
