// tests/pool/outlook/invented_pools.cpp - brackets by chance.
#include "pool/outlook/invented_pools.h"

#include "pool/sample_brackets.h"

#include <algorithm>
#include <array>
#include <string>

namespace tallyhoop::test {

namespace {

/// The usual seeds of a region's rows.
constexpr std::array<int, 16> kSeeds{1, 16, 8, 9, 5, 12, 4, 13, 6, 11, 3, 14, 7, 10, 2, 15};

/// @returns the seed of "Team n"
int seedOfTeam(const std::string& team)
{
    const int number = std::stoi(team.substr(team.find(' ')));
    return kSeeds.at(static_cast<std::size_t>((number - 1) % kRowsPerRegion));
}

} // namespace

Bracket InventedPools::tossed()
{
    Bracket bracket = startingField();
    for (const Position game : gamePositions()) {
        const auto [upper, lower] = entrantsOf(game);
        bracket.copy(chance(50) ? upper : lower, game);
    }
    return bracket;
}

Bracket InventedPools::picked() { return similar(startingField(), 100); }

Bracket InventedPools::similar(const Bracket& like, unsigned percent)
{
    Bracket bracket = like;
    for (const Position game : gamePositions()) {
        const auto [upper, lower] = entrantsOf(game);
        const bool fits = bracket.at(game) == bracket.at(upper) || bracket.at(game) == bracket.at(lower);
        if (fits && !bracket.isEmpty(game) && !chance(percent))
            continue;
        const double own = seedOfTeam(bracket.at(upper));
        const double other = seedOfTeam(bracket.at(lower));
        // People trust the better seed more than its chances are.
        const double upperWins = other * other / (own * own + other * other);
        bracket.copy(chance(static_cast<unsigned>(100 * upperWins)) ? upper : lower, game);
    }
    return bracket;
}

std::vector<Bracket> InventedPools::office(std::size_t players)
{
    // A few opinions that are handed around, and everybody's own changes to one of them.
    std::vector<Bracket> opinions;
    for (int i = 0; i < 6; ++i)
        opinions.push_back(picked());
    std::vector<Bracket> brackets;
    for (std::size_t player = 0; player < players; ++player)
        brackets.push_back(similar(opinions[number(opinions.size())], 15));
    return brackets;
}

Bracket InventedPools::withOpen(Bracket results, std::size_t open)
{
    std::vector<Position> games{gamePositions().begin(), gamePositions().end()};
    std::ranges::stable_sort(games, {}, [](Position game) { return roundOf(game); });
    for (std::size_t i = 0; i < open; ++i)
        results.clear(games[games.size() - 1 - i]);
    return results;
}

Bracket InventedPools::withOpenAnywhere(Bracket results, std::size_t open)
{
    std::vector<Position> games{gamePositions().begin(), gamePositions().end()};
    std::ranges::shuffle(games, m_random);
    for (std::size_t i = 0; i < open; ++i)
        results.clear(games[i]);
    return results;
}

void InventedPools::damage(Bracket& bracket, unsigned percent)
{
    for (const Position position : allPositions()) {
        if (!chance(percent))
            continue;
        switch (number(4)) {
        case 0:
            bracket.clear(position);
            break;
        case 1:
            bracket.put(position, "Team " + std::to_string(number(64) + 1));
            break;
        case 2:
            bracket.put(position, "team 1");
            break;
        default:
            bracket.put(position, "Nobody " + std::to_string(number(5)));
            break;
        }
    }
}

Payoffs InventedPools::payoffs()
{
    switch (number(6)) {
    case 0:
        return {1, 1, 1, 1, 1, 1};
    case 1:
        return {0, 0, 1, 0, 2, 3};
    case 2:
        return {-3, 2, -4, 8, -12, 16};
    case 3:
        return {32767, -32768, 32767, 30000, -32768, 32767};
    case 4:
        return {3, 5, 7, 11, 13, 17};
    default:
        return kUsualPayoffs;
    }
}

} // namespace tallyhoop::test
