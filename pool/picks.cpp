// pool/picks.cpp - copies them.
#include "pool/picks.h"

namespace tallyhoop {

std::vector<Bracket> picksOf(std::span<const Entry> entries)
{
    std::vector<Bracket> picks;
    picks.reserve(entries.size());
    for (const Entry& entry : entries)
        picks.push_back(entry.picks);
    return picks;
}

} // namespace tallyhoop
