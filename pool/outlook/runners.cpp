// pool/outlook/runners.cpp - equal players together, then those away who are always behind.
#include "pool/outlook/runners.h"

#include "pool/outlook/margins.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace tallyhoop {

namespace {

/// What decides over a player's points: those of the decided games, and the picks in the others that can come true.
using Making = std::pair<std::int32_t, std::vector<TeamNumber>>;

Making makingOf(const Contest& contest, std::size_t player, std::span<const Position> undecided)
{
    const OpenGames& games = contest.games();
    Making making{contest.points(player, games.known().numbers()), {}};
    for (const Position game : undecided) {
        const TeamNumber pick = contest.picks(player)[game];
        const bool isPossible = std::ranges::binary_search(games.candidates(game), pick);
        making.second.push_back(isPossible ? pick : kNoTeam);
    }
    return making;
}

std::vector<std::vector<std::size_t>> grouped(const Contest& contest)
{
    std::vector<Position> undecided;
    for (const Position game : gamePositions())
        if (contest.games().candidates(game).size() > 1)
            undecided.push_back(game);
    std::vector<std::vector<std::size_t>> groups;
    std::map<Making, std::size_t> groupOf;
    for (std::size_t player = 0; player < contest.players(); ++player) {
        const auto [found, isNew] = groupOf.try_emplace(makingOf(contest, player, undecided), groups.size());
        if (isNew)
            groups.emplace_back();
        groups[found->second].push_back(player);
    }
    return groups;
}

template <class T>
void keep(std::vector<T>& all, const std::vector<std::size_t>& kept)
{
    std::vector<T> some;
    some.reserve(kept.size());
    for (const std::size_t index : kept)
        some.push_back(std::move(all[index]));
    all = std::move(some);
}

/// @returns the players whom none of a few with many points always leaves behind
std::vector<std::size_t> notFarBehind(const Contest& contest, const Step& step)
{
    constexpr std::size_t kFew = 12;
    std::vector<std::int32_t> points;
    for (std::size_t player = 0; player < contest.players(); ++player)
        points.push_back(contest.points(player, contest.games().known().numbers()));
    std::vector<std::size_t> order(points.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, std::greater{}, [&](std::size_t player) { return points[player]; });
    std::vector<bool> isBehind(points.size());
    Margins margins{contest};
    for (std::size_t i = 0; i < std::min(kFew, order.size()) && step(); ++i) {
        margins.findLeadsOver(order[i]);
        const std::vector<std::int32_t> leads = margins.atTheEnd();
        for (std::size_t player = 0; player < leads.size(); ++player)
            isBehind[player] = isBehind[player] || leads[player] < 0;
    }
    std::erase_if(order, [&](std::size_t player) { return isBehind[player]; });
    std::ranges::sort(order);
    return order;
}

/// @returns the players whom nobody always leaves behind
std::vector<std::size_t> notBehind(const Contest& contest, const Step& step)
{
    std::vector<std::size_t> kept;
    Margins margins{contest};
    for (std::size_t player = 0; player < contest.players(); ++player) {
        margins.findLeads(player);
        if (std::ranges::min(margins.atTheEnd()) >= 0)
            kept.push_back(player);
        if (!step())
            break;
    }
    return kept;
}

} // namespace

Runners allRunners(const Contest& contest)
{
    Runners runners{contest, grouped(contest)};
    std::vector<std::size_t> first;
    for (const std::vector<std::size_t>& group : runners.players)
        first.push_back(group.front());
    runners.contest = contest.among(first);
    return runners;
}

Runners runnersOf(const Contest& contest, const Step& step)
{
    Runners runners = allRunners(contest);
    for (const auto find : {&notFarBehind, &notBehind}) {
        const std::vector<std::size_t> kept = find(runners.contest, step);
        runners.contest = runners.contest.among(kept);
        keep(runners.players, kept);
    }
    return runners;
}

} // namespace tallyhoop
