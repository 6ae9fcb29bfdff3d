// base/reason.h - why the system has refused something, in words.
#pragma once

#include <string>
#include <system_error>

namespace tallyhoop {

/// @returns the reason in English, Windows-1252: what many systems know has the same words on each. What only one knows
///          is in that system's own words
std::string reasonOf(std::error_code error);

} // namespace tallyhoop
