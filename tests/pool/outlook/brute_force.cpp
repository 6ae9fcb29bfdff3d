// tests/pool/outlook/brute_force.cpp - one outcome after the other, with nothing taken over from one to the next.
#include "pool/outlook/brute_force.h"

#include "pool/scoring.h"

#include <algorithm>
#include <string_view>

namespace tallyhoop::test {

namespace {

void addOutcome(OutcomeNumber outcome, const std::vector<std::int32_t>& points, Counted& counted)
{
    const auto most = std::ranges::max(points);
    const auto together = static_cast<std::size_t>(std::ranges::count(points, most));
    for (std::size_t player = 0; player < points.size(); ++player) {
        const auto ahead = std::ranges::count_if(points, [&](std::int32_t other) { return other > points[player]; });
        ++counted.places[player].outcomes[static_cast<std::size_t>(ahead)];
        if (points[player] < most)
            continue;
        PlayerFirsts& firsts = counted.firsts.players[player];
        firsts.all.add(together, 1);
        if (!firsts.witness)
            firsts.witness = outcome;
        for (std::size_t game = 0; game < firsts.ifUpperWins.size(); ++game)
            if (sideOf(outcome, game) == Side::Upper)
                firsts.ifUpperWins[game].add(together, 1);
    }
}

/// @returns the same picks, with the numbers of the results where all of their names have one: scored faster
std::vector<Bracket> numberedAs(const Bracket& results, const std::vector<Bracket>& picks)
{
    std::vector<Bracket> numbered;
    for (const Bracket& bracket : picks) {
        ByPosition<std::string_view> teams;
        for (const Position position : allPositions())
            teams[position] = bracket.at(position);
        numbered.push_back(Bracket::of(teams, results));
    }
    return numbered;
}

} // namespace

Counted countByScoring(const OpenGames& games, const std::vector<Bracket>& picks, const Payoffs& payoffs)
{
    Counted counted;
    counted.firsts.outcomes = games.outcomes();
    counted.firsts.players.resize(picks.size());
    for (PlayerFirsts& player : counted.firsts.players)
        player.ifUpperWins.resize(games.size());
    counted.places.resize(picks.size());
    for (PlayerPlaces& player : counted.places)
        player.outcomes.resize(picks.size());
    if (picks.empty())
        return counted;
    const std::vector<Bracket> numbered = numberedAs(games.known(), picks);
    std::vector<std::int32_t> points(picks.size());
    for (OutcomeNumber outcome = 0; outcome < games.outcomes(); ++outcome) {
        const Bracket results = games.outcome(outcome);
        for (std::size_t player = 0; player < picks.size(); ++player)
            points[player] = score(numbered[player], results, payoffs).points;
        addOutcome(outcome, points, counted);
    }
    return counted;
}

} // namespace tallyhoop::test
