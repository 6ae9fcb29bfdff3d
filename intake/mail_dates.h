// intake/mail_dates.h - the dates of mails.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tallyhoop {

/// @returns the moment in seconds since 1970; nothing when it is no date as mails have them
std::optional<std::int64_t> secondsOfMailDate(std::string_view field);

} // namespace tallyhoop
