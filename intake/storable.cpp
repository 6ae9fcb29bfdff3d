// intake/storable.cpp - what is converted there and back is the same, or has lost something.
#include "intake/storable.h"

#include "base/windows1252.h"
#include "intake/plain_text.h"

#include <algorithm>
#include <cstddef>

namespace tallyhoop {

namespace {

/// @param text the same in Windows-1252
/// @returns the place of the first letter that was lost, from 1 on; 0 when none was
std::size_t placeOfLost(std::string_view utf8, std::string_view text)
{
    for (std::size_t place = 0; place < text.size(); ++place) {
        const std::string letter = toUtf8(text.substr(place, 1));
        if (!utf8.starts_with(letter))
            return place + 1;
        utf8.remove_prefix(letter.size());
    }
    return 0;
}

} // namespace

std::string storable(std::string_view utf8, const std::string& subject, std::vector<std::string>& refusals)
{
    std::string text = fromUtf8(utf8);
    if (const std::size_t place = placeOfLost(utf8, text); place > 0) {
        std::string reason = subject + " has a letter that the program's files cannot hold, at place " +
                             std::to_string(place) + ": " + quotedText(text) + ".";
        if (std::ranges::find(refusals, reason) == refusals.end())
            refusals.push_back(std::move(reason));
    }
    return text;
}

} // namespace tallyhoop
