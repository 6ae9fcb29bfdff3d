// screens/players/addresses.h - the addresses in what a person typed as one text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// Divides at semicolons, and at each comma after an address: the one in "Smith, J <j@x.org>" is part of a name.
/// @returns the parts in order, without outer blanks and without empty ones
std::vector<std::string> addressesIn(std::string_view text);

} // namespace tallyhoop
