// reports/pick_table.cpp - sorts the picks as their packed rows are sorted, and counts those that follow each other.
#include "reports/pick_table.h"

#include "base/windows1252.h"

#include <algorithm>
#include <map>

namespace tallyhoop {

namespace {

struct PickOfPlayer {
    const std::string* team;
    const std::string* label;
    int category;
};

class SortedPicks
{
public:
    explicit SortedPicks(std::span<const Entry> entries)
    {
        m_labels.reserve(entries.size()); // the picks point to them
        for (const Entry& entry : entries) {
            m_labels.push_back(playerLabelOf(entry));
            for (const Position game : gamePositions())
                if (!entry.picks.isEmpty(game))
                    add({&entry.picks.at(game), &m_labels.back(), roundOf(game)});
        }
        for (auto& [team, players] : m_picks)
            for (auto& [player, picks] : players)
                std::ranges::stable_sort(picks, {}, &PickOfPlayer::category);
    }

    template <class Take>
    void forEach(Take take) const
    {
        for (const auto& [team, players] : m_picks)
            for (const auto& [player, picks] : players)
                std::ranges::for_each(picks, take);
    }

private:
    using PicksByPlayer = std::map<std::string, std::vector<PickOfPlayer>, FoldedLess>;

    /// With the separator after it a name has the place that it has at the front of a packed row.
    void add(const PickOfPlayer& pick) { m_picks[*pick.team + ','][*pick.label + ','].push_back(pick); }

    std::vector<std::string> m_labels;
    std::map<std::string, PicksByPlayer, FoldedLess> m_picks;
};

template <class LabelOf>
std::vector<PickRow> rowsBy(std::span<const Entry> entries, LabelOf labelOf)
{
    std::vector<PickRow> rows;
    SortedPicks{entries}.forEach([&](const PickOfPlayer& pick) {
        const std::string& label = labelOf(pick);
        if (rows.empty() || rows.back().team != *pick.team || rows.back().playerLabel != label)
            rows.push_back({*pick.team, label});
        ++rows.back().counts.at(static_cast<std::size_t>(pick.category));
    });
    return rows;
}

} // namespace

std::vector<PickRow> pickRows(std::span<const Entry> entries)
{
    const std::string everybody;
    return rowsBy(entries, [&](const PickOfPlayer&) -> const std::string& { return everybody; });
}

std::vector<PickRow> pickRowsByPlayer(std::span<const Entry> entries)
{
    return rowsBy(entries, [](const PickOfPlayer& pick) -> const std::string& { return *pick.label; });
}

} // namespace tallyhoop
