// screens/players/addresses.cpp - where one address ends and the next begins.
#include "screens/players/addresses.h"

#include "base/text.h"

#include <cstddef>
#include <utility>

namespace tallyhoop {

namespace {

/// @returns where a quoted name, or an address in angle brackets, that begins here ends; here where neither does
std::size_t endOfEnclosed(std::string_view text, std::size_t place)
{
    const char closing = text[place] == '"' ? '"' : text[place] == '<' ? '>' : '\0';
    const std::size_t end = closing == '\0' ? std::string_view::npos : text.find(closing, place + 1);
    return end == std::string_view::npos ? place : end;
}

bool holdsAddress(std::string_view text) { return text.find('@') != std::string_view::npos; }

} // namespace

std::vector<std::string> addressesIn(std::string_view text)
{
    std::vector<std::string> addresses;
    const auto add = [&](std::string_view part) {
        if (std::string address = withoutOuterBlanks(part); !address.empty())
            addresses.push_back(std::move(address));
    };
    std::size_t begin = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const std::size_t at = place;
        place = endOfEnclosed(text, place);
        const bool isDivided = text[at] == ';' || (text[at] == ',' && holdsAddress(text.substr(begin, at - begin)) &&
                                                   holdsAddress(text.substr(at)));
        if (!isDivided)
            continue;
        add(text.substr(begin, at - begin));
        begin = at + 1;
    }
    add(text.substr(begin));
    return addresses;
}

} // namespace tallyhoop
