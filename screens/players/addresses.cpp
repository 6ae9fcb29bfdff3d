// screens/players/addresses.cpp - where one address ends and the next begins.
#include "screens/players/addresses.h"

#include "base/text.h"

namespace tallyhoop {

std::vector<std::string> addressesIn(std::string_view text)
{
    std::vector<std::string> addresses;
    std::string part;
    const auto finish = [&] {
        if (std::string address = withoutOuterBlanks(part); !address.empty())
            addresses.push_back(std::move(address));
        part.clear();
    };
    for (const char c : text) {
        if (c == ';' || (c == ',' && part.find('@') != std::string::npos))
            finish();
        else
            part += c;
    }
    finish();
    return addresses;
}

} // namespace tallyhoop
