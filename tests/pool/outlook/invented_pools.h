// tests/pool/outlook/invented_pools.h - pools as people fill them in and pools as nobody should, made up at random.
#pragma once

#include "pool/bracket.h"
#include "pool/payoffs.h"

#include <cstddef>
#include <random>
#include <vector>

namespace tallyhoop::test {

/// The same brackets for the same seed on every computer.
class InventedPools
{
public:
    explicit InventedPools(unsigned seed) : m_random{seed} {}

    /// @returns a number 0 .. below - 1
    std::size_t number(std::size_t below) { return m_random() % below; }
    bool chance(unsigned percent) { return m_random() % 100 < percent; }

    /// The field "Team 1" .. "Team 64" with each game's winner by the toss of a coin.
    Bracket tossed();

    /// The same with winners as most people pick them: the better of two seeds, more often the better it is.
    Bracket picked();

    /// Picks like `like`, but with the chance that a game and what follows from it are picked anew.
    Bracket similar(const Bracket& like, unsigned percent);

    /// So many brackets as an office picks them.
    std::vector<Bracket> office(std::size_t players);

    /// Leaves this many games open, the last ones to be played: later rounds first, in each from the end.
    Bracket withOpen(Bracket results, std::size_t open);

    /// Leaves this many games open wherever they are.
    Bracket withOpenAnywhere(Bracket results, std::size_t open);

    /// Puts something odd on some places: nobody, another team of the field, another spelling, a name from elsewhere.
    void damage(Bracket& bracket, unsigned percent);

    /// Small ones with many ties, usual ones, negative ones and large ones take turns.
    Payoffs payoffs();

private:
    std::mt19937 m_random;
};

inline constexpr Payoffs kUsualPayoffs{1, 2, 4, 8, 12, 16};

} // namespace tallyhoop::test
