// pool/outlook/first_count.h - counts every outcome of the open games: who is first in how many of them.
#pragma once

#include "base/step.h"
#include "pool/outlook/chances.h"
#include "pool/outlook/contest.h"
#include "pool/outlook/first_places.h"

#include <cstddef>
#include <memory>

namespace tallyhoop {

/// As many open games can be counted while people wait: some seconds for a pool of an office.
inline constexpr std::size_t kMostCountedGames = 31;

/// A count whose largest tables would take more memory is not made: every two players who may be first have an entry
/// in them for each team that can win a region. There is room for some 1,200 such players after the first round, and
/// for more of them later.
inline constexpr std::size_t kMostCountBytes = 100'000'000;

/// Counts in slices, so that whoever runs it can show progress, stop, or do other things in between. Knows nothing of
/// threads: one object belongs to one thread at a time.
class FirstCount
{
public:
    /// Prepares the count, which takes some milliseconds; some tenths of a second for a thousand players who can all
    /// still be first. The contest is not needed any longer afterwards.
    /// @param step      called often meanwhile; once it has asked to stop, the count is of no use
    /// @param mostBytes see isTooLarge()
    /// @pre the contest has at most 40 open games
    explicit FirstCount(const Contest& contest, const Step& step = goOn, std::size_t mostBytes = kMostCountBytes);
    ~FirstCount();
    FirstCount(FirstCount&&) noexcept;
    FirstCount& operator=(FirstCount&&) noexcept;
    FirstCount(const FirstCount&) = delete;
    FirstCount& operator=(const FirstCount&) = delete;

    /// Nothing can be counted, because the tables for it would take more than mostBytes.
    bool isTooLarge() const;

    bool isDone() const;

    /// How much is done, 0..1, growing steadily.
    double fraction() const;

    /// Does one slice of the work: some milliseconds; a tenth of a second when a thousand players differ by no more
    /// than two regions, so that all are in the race to the end. Nothing when it is done.
    void advance();

    /// @pre isDone(), and not isTooLarge()
    FirstOutlook outlook() const;

private:
    class Work;
    std::unique_ptr<Work> m_work;
};

/// Adds up chances in the same way.
class ChanceCount
{
public:
    /// @param upperChance called while it is prepared and while it counts
    /// @pre as for FirstCount
    ChanceCount(const Contest& contest, const UpperChance& upperChance, const Step& step = goOn,
                std::size_t mostBytes = kMostCountBytes);
    ~ChanceCount();
    ChanceCount(ChanceCount&&) noexcept;
    ChanceCount& operator=(ChanceCount&&) noexcept;
    ChanceCount(const ChanceCount&) = delete;
    ChanceCount& operator=(const ChanceCount&) = delete;

    bool isTooLarge() const;
    bool isDone() const;
    double fraction() const;
    void advance();

    /// @pre isDone(), and not isTooLarge()
    ChanceOutlook outlook() const;

private:
    class Work;
    std::unique_ptr<Work> m_work;
};

/// Counts all at once, for few open games.
FirstOutlook countFirsts(const Contest& contest);
ChanceOutlook countChances(const Contest& contest, const UpperChance& upperChance);

} // namespace tallyhoop
