// cli/local_time.h - what the clock on the wall says.
#pragma once

#include <chrono>

namespace tallyhoop::cli {

/// @returns the moment in the time zone of the computer
std::chrono::local_seconds localNow();

} // namespace tallyhoop::cli
