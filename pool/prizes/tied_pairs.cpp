// pool/prizes/tied_pairs.cpp - the totals at which two tied players change places.
#include "pool/prizes/tied_pairs.h"

#include <algorithm>

namespace tallyhoop {

namespace {

/// @param lower  predicts no more than the other, or is the only one to predict anything
TiedPair pairOf(std::size_t lower, std::size_t higher, std::span<const PlayerScore> scores, TieRule rule)
{
    TiedPair pair;
    pair.lower = lower;
    pair.higher = higher;
    const int low = scores[lower].finalPoints;
    const int high = scores[higher].finalPoints;
    if (!hasPredicted(scores[lower]) || low == high)
        return pair;
    if (!hasPredicted(scores[higher])) {
        pair.end = TieEnd::LowerAlways;
        return pair;
    }
    pair.end = TieEnd::ByTotal;
    // Not over: the higher one counts from its own prediction on; below that both are over, or it alone.
    // Nearest: the middle decides, and is as near to the one as to the other when it is a whole number.
    const bool isNearest = rule == TieRule::Nearest;
    pair.higherFrom = isNearest ? (low + high) / 2 + 1 : high;
    pair.lowerUpTo = isNearest ? (low + high + 1) / 2 - 1 : high - 1;
    return pair;
}

class PairsOfPlace
{
public:
    PairsOfPlace(std::span<const PlayerScore> scores, std::span<const FinalPlace> tied, TieRule rule)
        : m_scores{scores}, m_rule{rule}, m_place{tied.front().place}
    {
        m_players.reserve(tied.size());
        for (const FinalPlace& place : tied)
            m_players.push_back(place.player);
        // Who has predicted nothing comes last: the pair is then of one who has, and this one.
        std::ranges::stable_sort(m_players, {}, [&](std::size_t player) {
            return std::pair{!hasPredicted(m_scores[player]), m_scores[player].finalPoints};
        });
    }

    void addTo(std::vector<TiedPair>& pairs) const
    {
        const bool isFew = m_players.size() <= kMostInAllPairs;
        for (std::size_t i = 0; i + 1 < m_players.size(); ++i)
            for (std::size_t j = i + 1; j < (isFew ? m_players.size() : i + 2); ++j) {
                TiedPair pair = pairOf(m_players[i], m_players[j], m_scores, m_rule);
                pair.place = m_place;
                if (isFew || pair.end != TieEnd::AlwaysTied)
                    pairs.push_back(pair);
            }
    }

private:
    std::span<const PlayerScore> m_scores;
    TieRule m_rule;
    std::size_t m_place;
    std::vector<std::size_t> m_players;
};

} // namespace

std::vector<TiedPair> tiedPairs(std::span<const PlayerScore> scores, std::span<const FinalPlace> places, TieRule rule)
{
    std::vector<TiedPair> pairs;
    if (rule == TieRule::Share)
        return pairs;
    for (std::size_t first = 0; first < places.size(); first += places[first].sharedBy)
        PairsOfPlace{scores, places.subspan(first, places[first].sharedBy), rule}.addTo(pairs);
    return pairs;
}

} // namespace tallyhoop
