// screens/players/addresses.h - the addresses in what a person typed as one text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Divides at semicolons, and at each comma between two addresses: the one in "Smith, J <j@x.org>" is part of a name.
/// What is in quotation marks or angle brackets is never divided.
/// @returns the parts in order, without outer blanks and without empty ones
std::vector<std::string> addressesIn(std::string_view text);

} // namespace tallyhoop
