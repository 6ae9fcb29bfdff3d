// output/opened_pool.cpp - sorts out the players of whom nothing is known, and counts them.
#include "output/opened_pool.h"

#include <algorithm>
#include <fmt/format.h>
#include <utility>

namespace tallyhoop {

namespace {

bool isNobody(const Entry& entry)
{
    return entry.initials.empty() && entry.name.empty() &&
           std::ranges::all_of(allPositions(), [&](Position position) { return entry.picks.isEmpty(position); });
}

} // namespace

OpenedPool openedPool(ReadPool read)
{
    OpenedPool opened{.pool = std::move(read.pool),
                      .isFieldDamaged = read.isFieldDamaged,
                      .areResultsDamaged = read.areResultsDamaged,
                      .isListDamaged = read.isListDamaged};
    std::vector<Entry>& entries = opened.pool.entries;
    // From the last one, so that the indices of those before stay.
    for (auto damaged = read.damagedEntries.rbegin(); damaged != read.damagedEntries.rend(); ++damaged)
        if (isNobody(entries[*damaged])) {
            entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(*damaged));
            ++opened.missing;
        }
    opened.inPart = read.damagedEntries.size() - opened.missing;
    return opened;
}

std::vector<std::string> unreadInWords(const OpenedPool& opened)
{
    std::vector<std::string> words;
    if (opened.areResultsDamaged)
        words.emplace_back("The results file is damaged: some winners may be missing");
    if (opened.isFieldDamaged)
        words.emplace_back("The setup file is damaged: some teams, seeds or payoffs may be missing");
    if (opened.isListDamaged)
        words.emplace_back("The folder cannot be read whole: some players may be missing");
    if (opened.missing > 0)
        words.push_back(opened.missing == 1
                            ? "1 player is missing: the selection cannot be read"
                            : fmt::format("{} players are missing: their selections cannot be read", opened.missing));
    if (opened.inPart > 0)
        words.push_back(opened.inPart == 1 ? "1 selection was read only in part"
                                           : fmt::format("{} selections were read only in part", opened.inPart));
    return words;
}

} // namespace tallyhoop
