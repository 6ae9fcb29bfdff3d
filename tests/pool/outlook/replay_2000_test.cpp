// tests/pool/outlook/replay_2000_test.cpp - the tournament of 2000, game by game: what is once certain stays so, and
// the chances move as they were foretold to.
#include "pool/outlook/first_count.h"
#include "pool/outlook/forecast.h"
#include "pool/outlook/prospects.h"
#include "pool/outlook/results_2000.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace tallyhoop {
namespace {

/// Holds what is found against what was found before, and against how it ended.
class Record
{
public:
    void add(const std::vector<PlayerProspect>& prospects, std::size_t open)
    {
        ASSERT_EQ(prospects.size(), m_places.size());
        for (std::size_t player = 0; player < prospects.size(); ++player) {
            const PlayerProspect& now = prospects[player];
            Prospect& last = m_last[player];
            ASSERT_TRUE(last != Prospect::Out || now.prospect == Prospect::Out)
                << "player " << player << " is back with " << open << " open";
            ASSERT_TRUE(last != Prospect::Clinched || now.prospect == Prospect::Clinched)
                << "player " << player << " has lost with " << open << " open";
            ASSERT_TRUE(now.prospect != Prospect::Out || m_places[player] > 1) << "player " << player << " has won";
            ASSERT_TRUE(now.prospect != Prospect::Clinched || m_places[player] == 1)
                << "player " << player << " has not won";
            ASSERT_LE(now.best.least, m_places[player]) << "player " << player << " with " << open << " open";
            ASSERT_GE(now.worst.most, m_places[player]) << "player " << player << " with " << open << " open";
            last = now.prospect;
        }
    }

    std::size_t count(Prospect prospect) const
    {
        return static_cast<std::size_t>(std::ranges::count(m_last, prospect));
    }

private:
    std::vector<std::size_t> m_places = test::placesOf2000();
    std::vector<Prospect> m_last = std::vector<Prospect>(m_places.size(), Prospect::Open);
};

TEST(ReplayOf2000, NeverTakesBackWhatIsProvenWithoutCounting)
{
    Record record;
    for (std::size_t played = 0; played <= kGames; ++played) {
        ASSERT_NO_FATAL_FAILURE(record.add(findProspects(test::contestOf2000(played)), kGames - played));
        if (played == 48) {
            EXPECT_GE(record.count(Prospect::Out), 10U) << "some are out long before the end";
            EXPECT_GE(record.count(Prospect::Alive), 10U);
        }
    }
}

TEST(ReplayOf2000, NeverTakesBackWhatIsCounted)
{
    Record record;
    for (std::size_t open = 13; open-- > 0;) {
        const Contest contest = test::contestOf2000(kGames - open);
        std::vector<PlayerProspect> prospects = findProspects(contest);
        addCount(prospects, countFirsts(contest));
        addCount(prospects, countPlaces(contest));
        ASSERT_NO_FATAL_FAILURE(record.add(prospects, open));
        ASSERT_EQ(record.count(Prospect::Open), 0U);
    }
    EXPECT_EQ(record.count(Prospect::Clinched), 1U);
    EXPECT_EQ(record.count(Prospect::Out), test::picksOf2000().size() - 1);
}

/// The open game that is played next, and who wins it.
struct NextGame {
    std::size_t openGame = 0;
    Side winner = Side::Upper;
};

NextGame nextGame(const Contest& contest, std::size_t played)
{
    const Position game = test::gamesOf2000()[played];
    const std::vector<Position>& open = contest.games().games();
    const Bracket results = test::resultsOf2000();
    const bool isUpper = results.at(game) == results.at(feeders(game)->front());
    return {static_cast<std::size_t>(std::ranges::lower_bound(open, game) - open.begin()),
            isUpper ? Side::Upper : Side::Lower};
}

TEST(ReplayOf2000, CountsAfterEachGameWhatWasCountedBeforeIfItEndedSo)
{
    std::optional<FirstOutlook> foretold;
    NextGame next;
    for (std::size_t open = 16; open-- > 0;) {
        const Contest contest = test::contestOf2000(kGames - open);
        FirstOutlook counted = countFirsts(contest);
        for (std::size_t player = 0; foretold && player < counted.players.size(); ++player)
            ASSERT_EQ(counted.players[player].all, foretold->players[player].given(next.openGame, next.winner))
                << "player " << player << " with " << open << " open";
        foretold = std::move(counted);
        if (open > 0)
            next = nextGame(contest, kGames - open);
    }
}

/// The share of first place of one player, as well as one knows it.
struct Estimate {
    double share = 0;
    double error = 0; ///< standard error; 0 = exact
};

/// The forecasts of the tournament, with few samples each.
class Forecasts
{
public:
    /// @returns everybody's shares after so many games
    std::vector<Estimate> after(std::size_t played)
    {
        const Contest contest = test::contestOf2000(played);
        m_latest.emplace(contest, alikeChances());
        m_latest->add(150);
        if (played < kGames)
            m_next = nextGame(contest, played);
        const ChanceOutlook outlook = m_latest->outlook();
        std::vector<Estimate> estimates;
        for (std::size_t player = 0; player < contest.players(); ++player)
            estimates.push_back({outlook.players[player].all.share, m_latest->standardError(player)});
        return estimates;
    }

    /// @returns the shares after the game that follows, as foretold by what is known before it
    std::vector<Estimate> foretold() const
    {
        const ChanceOutlook outlook = m_latest->outlook();
        const double upperWins = outlook.upperWins[m_next.openGame];
        const double wins = m_next.winner == Side::Upper ? upperWins : 1 - upperWins;
        std::vector<Estimate> estimates;
        for (std::size_t player = 0; player < outlook.players.size(); ++player) {
            const double share = outlook.given(player, m_next.openGame, m_next.winner).share;
            estimates.push_back({share, m_latest->standardErrorGiven(share, wins)});
        }
        return estimates;
    }

private:
    std::optional<Forecast> m_latest;
    NextGame m_next;
};

void expectAgreement(const std::vector<Estimate>& some, const std::vector<Estimate>& others)
{
    for (std::size_t player = 0; player < some.size(); ++player)
        ASSERT_NEAR(some[player].share, others[player].share,
                    5 * std::hypot(some[player].error, others[player].error) + 1e-9)
            << "player " << player;
}

std::vector<Estimate> exactShares(const Contest& contest)
{
    std::vector<Estimate> shares;
    for (const PlayerChances& player : countChances(contest, alikeChances()).players)
        shares.push_back({player.all.share, 0});
    return shares;
}

TEST(ReplayOf2000, MovesEverybodysChanceAsForetoldUntilOneIsCertain)
{
    Forecasts forecasts;
    std::vector<Estimate> now = forecasts.after(0);
    for (std::size_t played = 1; played <= kGames; ++played) {
        const std::vector<Estimate> foretold = forecasts.foretold();
        now = forecasts.after(played);
        ASSERT_NO_FATAL_FAILURE(expectAgreement(now, foretold)) << "after " << played << " games";
        if (kGames - played <= 15) {
            ASSERT_NO_FATAL_FAILURE(expectAgreement(now, exactShares(test::contestOf2000(played))))
                << "after " << played << " games";
        }
    }
    const std::vector<std::size_t> places = test::placesOf2000();
    for (std::size_t player = 0; player < places.size(); ++player)
        EXPECT_NEAR(now[player].share, places[player] == 1 ? 1 : 0, 1e-9);
}

} // namespace
} // namespace tallyhoop
