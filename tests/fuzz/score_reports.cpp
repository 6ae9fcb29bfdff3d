// tests/fuzz/score_reports.cpp - the reports that score, now and under projections, on arbitrary pools.
#include "fuzz/fuzzed_pool.h"
#include "fuzz/report_pages.h"

#include "base/text.h"
#include "fakes/no_progress.h"
#include "pool/naive_scorer.h"
#include "reports/results_by_player.h"
#include "reports/results_by_team.h"
#include "reports/standings.h"

#include <algorithm>
#include <fmt/format.h>

namespace tallyhoop::fuzz {
namespace {

/// Three digits as the reports print them, formatted another way than theirs.
std::string digits(int number) { return (number < 0 ? "-" : "") + fmt::format("{:03}", std::abs(number)); }

bool isOrdinary(int number) { return number >= 0 && number <= 999; }

/// Every player's score, or nothing when a number is beyond what the program counts.
std::optional<std::vector<ScoreLine>> scoresOf(const FuzzedPool& pool, const SelectionLines& results)
{
    test::NoProgress progress;
    Work work{progress, "scoring", pool.pool.players.size()};
    const Result<std::vector<ScoreLine>> scores = scorePool(pool.pool, results, pool.payoffs, work);
    if (!scores)
        return std::nullopt;
    return *scores;
}

std::string expectedStanding(const ScoreLine& score, std::size_t name, std::size_t file)
{
    return " " + digits(score.Points) + "   " + fitted(score.PlayerName, name) + "   " + fitted(score.FileName, file) +
           "   " + digits(score.MaxPoints) + "   " + digits(score.GoodPicks) + "   " + digits(score.BadPicks) + "   " +
           digits(63 - score.GoodPicks - score.BadPicks) + "    " + digits(score.FinalPoints) + "   " +
           score.WinningPick;
}

template <class Items>
bool isSameMultiset(Items left, Items right)
{
    std::ranges::sort(left);
    std::ranges::sort(right);
    return left == right;
}

Complaint checkStandings(const std::vector<ScoreLine>& scores, const ReportLines& lines)
{
    std::size_t name = 0;
    std::size_t file = 0;
    std::size_t pick = 0;
    bool ordinary = true;
    for (const ScoreLine& score : scores) {
        name = std::max(name, score.PlayerName.size());
        file = std::max(file, score.FileName.size());
        pick = std::max(pick, score.WinningPick.size());
        ordinary = ordinary && isOrdinary(score.Points) && isOrdinary(score.MaxPoints) &&
                   isOrdinary(score.FinalPoints) && score.GoodPicks + score.BadPicks <= 63;
    }
    const ReportLines rows = bodyOf(lines, 7, 7);
    ReportLines expected;
    for (const ScoreLine& score : scores)
        expected.push_back(expectedStanding(score, name, file));
    if (!isSameMultiset(rows, expected))
        return "the standings do not show each player's score once";
    if (!ordinary)
        return std::nullopt; // wider numbers push the columns to the right and are ordered as texts
    for (std::size_t i = 1; i < rows.size(); ++i)
        if (rows[i].substr(1, 3) > rows[i - 1].substr(1, 3))
            return "a player with more points stands below one with fewer";
    return noLongerThan(name + file + pick + 44, rows);
}

Complaint checkTeam(const FuzzedPool& pool, const SelectionLines& projected, const TeamOutcome& outcome)
{
    if (outcome.workRows.size() != pool.pool.players.size())
        return "a team's rows have lost or invented players";
    std::vector<std::string> starts;
    std::vector<std::string> expected;
    for (const std::string& row : outcome.workRows)
        starts.push_back(row.substr(0, row.find(',')));
    for (const PoolEntry& player : pool.pool.players) {
        const ScoredPicks score = test::scoreNaively(player.lines, projected, pool.payoffs);
        expected.push_back(digits(score.points + score.possible));
    }
    return isSameMultiset(starts, expected) ? std::nullopt : Complaint{"the best case of a player is another"};
}

Complaint checkProjections(const FuzzedPool& pool, const ByFinal<FinalOutcome>& outcomes,
                           const std::vector<ResultsByPlayerRow>& rows)
{
    if (rows.size() != pool.pool.players.size())
        return "players are lost or invented";
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (std::size_t team = 0; team < outcomes.size(); ++team)
            for (std::size_t opponent = 0; opponent < 2; ++opponent) {
                const auto& outcome = outcomes[team][opponent];
                const auto& projected = rows[i].projected[team][opponent];
                if (outcome.has_value() != projected.has_value())
                    return "an outcome is not scored, or one that cannot happen is";
                if (!outcome)
                    continue;
                const ScoredPicks score =
                    test::scoreNaively(pool.pool.players[i].lines, outcome->results, pool.payoffs);
                if (*projected != score.points + score.possible)
                    return "the points under a projection are others";
            }
    return std::nullopt;
}

} // namespace

Complaint standings(std::string_view bytes)
{
    const FuzzedPool pool = decodePool(bytes);
    const auto scores = scoresOf(pool, pool.results);
    if (!scores)
        return std::nullopt;
    const Result<ReportLines> lines = standingsLines(pool.title, *scores);
    if (!lines)
        return pool.isFreeOf(';') ? Complaint{"there is no report of a sound pool"} : std::nullopt;
    if (Complaint complaint = readsBack(*lines))
        return complaint;
    for (const ReportLines& page : pagesOf(*lines))
        if (page.size() > 48)
            return "a page is too long";
    return pool.isFreeOf(';') ? checkStandings(*scores, *lines) : std::nullopt;
}

Complaint results_by_player(std::string_view bytes)
{
    const FuzzedPool pool = decodePool(bytes);
    FinalFour finalFour;
    if (ChkFinalFour(pool.results, finalFour) != FinalFourState::Known)
        return std::nullopt;
    const ByFinal<FinalOutcome> outcomes = finalOutcomes(pool.results, finalFour);
    test::NoProgress progress;
    Work work{progress, "scoring", pool.pool.players.size()};
    const auto rows = resultsByPlayerRows(pool.pool, pool.results, outcomes, pool.payoffs, work);
    if (!rows)
        return std::nullopt;
    if (Complaint complaint = checkProjections(pool, outcomes, *rows))
        return complaint;
    const Result<ReportLines> lines = resultsByPlayerLines(pool.title, finalFour, outcomes, *rows);
    if (!lines) {
        const bool longEnough =
            std::ranges::any_of(finalFour, [](const std::string& team) { return team.size() >= 11; });
        return longEnough && pool.title.size() <= 50 ? Complaint{"there is no report of a sound pool"} : std::nullopt;
    }
    if (Complaint complaint = readsBack(*lines))
        return complaint;
    const auto players = std::ranges::count_if(
        *lines, [](const std::string& line) { return line.find("  Final Game Selection:  ") != std::string::npos; });
    return static_cast<std::size_t>(players) >= rows->size() ? std::nullopt : Complaint{"a player has no block"};
}

Complaint results_by_team(std::string_view bytes)
{
    const FuzzedPool pool = decodePool(bytes);
    FinalFour finalFour;
    if (ChkFinalFour(pool.results, finalFour) != FinalFourState::Known)
        return std::nullopt;
    test::NoProgress progress;
    Work work{progress, "scoring", finalFour.size() * pool.pool.players.size()};
    const auto outcomes = resultsByTeamOutcomes(pool.pool, pool.results, finalFour, pool.payoffs, work);
    if (!outcomes)
        return std::nullopt;
    std::size_t team = 1;
    std::size_t rows = 0;
    for (const TeamOutcome& outcome : *outcomes) {
        while (team < finalFour.size() && !ProjectWinner(pool.results, finalFour, team, FinalOpponent::Open))
            ++team;
        if (team >= finalFour.size() || outcome.team != finalFour[team])
            return "a team without a chance has a block, or one with a chance has none";
        if (Complaint complaint =
                checkTeam(pool, *ProjectWinner(pool.results, finalFour, team, FinalOpponent::Open), outcome))
            return complaint;
        ++team;
        rows += outcome.workRows.size();
    }
    const Result<ReportLines> lines = resultsByTeamLines(pool.title, *outcomes);
    if (!lines)
        return pool.title.size() <= 57 ? Complaint{"there is no report of a sound pool"} : std::nullopt;
    if (Complaint complaint = readsBack(*lines))
        return complaint;
    const auto picks =
        std::ranges::count_if(*lines, [](const std::string& line) { return line.find(" over ") != std::string::npos; });
    return static_cast<std::size_t>(picks) >= rows ? std::nullopt : Complaint{"a player has no row"};
}

} // namespace tallyhoop::fuzz
