// tests/fuzz/score_reports.cpp - the reports that score, now and under projections, on arbitrary pools.
#include "fuzz/fuzzed_pool.h"
#include "fuzz/report_pages.h"

#include "base/text.h"
#include "pool/naive_scorer.h"
#include "pool/projection.h"
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
std::optional<std::vector<PlayerScore>> scoresOf(const FuzzedPool& pool)
{
    const Result<std::vector<PlayerScore>> scores = scoreEntries(pool.entries, pool.results, pool.payoffs);
    return scores ? std::optional{*scores} : std::nullopt;
}

std::string expectedStanding(const PlayerScore& score, std::size_t name, std::size_t file)
{
    return " " + digits(score.points) + "   " + fitted(score.playerName, name) + "   " + fitted(score.fileName, file) +
           "   " + digits(score.maxPoints) + "   " + digits(score.goodPicks) + "   " + digits(score.badPicks) + "   " +
           digits(63 - score.goodPicks - score.badPicks) + "    " + digits(score.finalPoints) + "   " +
           score.winningPick;
}

template <class Items>
bool isSameMultiset(Items left, Items right)
{
    std::ranges::sort(left);
    std::ranges::sort(right);
    return left == right;
}

Complaint checkStandings(const std::vector<PlayerScore>& scores, const ReportLines& lines)
{
    std::size_t name = 0;
    std::size_t file = 0;
    std::size_t pick = 0;
    bool ordinary = true;
    for (const PlayerScore& score : scores) {
        name = std::max(name, score.playerName.size());
        file = std::max(file, score.fileName.size());
        pick = std::max(pick, score.winningPick.size());
        ordinary = ordinary && isOrdinary(score.points) && isOrdinary(score.maxPoints) &&
                   isOrdinary(score.finalPoints) && score.goodPicks + score.badPicks <= 63;
    }
    const ReportLines rows = bodyOf(lines, 7, 7);
    ReportLines expected;
    for (const PlayerScore& score : scores)
        expected.push_back(expectedStanding(score, name, file));
    if (!isSameMultiset(rows, expected))
        return "the standings do not show each player's score once";
    if (!ordinary)
        return std::nullopt; // wider numbers push the columns to the right and are ordered as texts
    for (std::size_t i = 1; i < rows.size(); ++i)
        if (rows[i].substr(1, 3) > rows[i - 1].substr(1, 3))
            return "a player with more points comes after one with fewer";
    return noLongerThan(name + file + pick + 44, rows);
}

Complaint checkTeam(const FuzzedPool& pool, const Bracket& projected, const TeamOutcome& outcome)
{
    if (outcome.workRows.size() != pool.entries.size())
        return "a team's rows have lost or invented players";
    std::vector<std::string> starts;
    std::vector<std::string> expected;
    for (const std::string& row : outcome.workRows)
        starts.push_back(row.substr(0, row.find(',')));
    for (const Entry& entry : pool.entries) {
        const Score score = test::scoreNaively(entry.picks, projected, pool.payoffs);
        expected.push_back(digits(score.points + score.possible));
    }
    return isSameMultiset(starts, expected) ? std::nullopt : Complaint{"the best case of a player is another"};
}

Complaint checkProjections(const FuzzedPool& pool, const ByFinal<FinalOutcome>& outcomes,
                           const std::vector<ResultsByPlayerRow>& rows)
{
    if (rows.size() != pool.entries.size())
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
                const Score score = test::scoreNaively(pool.entries[i].picks, outcome->results, pool.payoffs);
                if (*projected != score.points + score.possible)
                    return "the points under a projection are others";
            }
    return std::nullopt;
}

} // namespace

Complaint standings(std::string_view bytes)
{
    const FuzzedPool pool = decodePool(bytes);
    const auto scores = scoresOf(pool);
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
    if (finalFourState(pool.results) != FinalFourState::Known)
        return std::nullopt;
    const FinalFour finalFour = finalFourOf(pool.results);
    const ByFinal<FinalOutcome> outcomes = finalOutcomes(pool.results);
    const auto rows = resultsByPlayerRows(pool.entries, pool.results, outcomes, pool.payoffs);
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
    if (finalFourState(pool.results) != FinalFourState::Known)
        return std::nullopt;
    const auto outcomes = resultsByTeamOutcomes(pool.entries, pool.results, pool.payoffs);
    if (!outcomes)
        return std::nullopt;
    std::vector<std::string> expected;
    std::size_t rows = 0;
    for (const std::string& team : finalFourOf(pool.results)) {
        const std::optional<Bracket> projected = projectWinner(pool.results, team, FinalOpponent::Open);
        if (!projected)
            continue;
        expected.push_back(team);
        if (outcomes->size() < expected.size() || (*outcomes)[expected.size() - 1].team != team)
            return "a team with a chance has no block, or not its own";
        const TeamOutcome& outcome = (*outcomes)[expected.size() - 1];
        if (Complaint complaint = checkTeam(pool, *projected, outcome))
            return complaint;
        rows += outcome.workRows.size();
    }
    if (outcomes->size() != expected.size())
        return "a team without a chance has a block";
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
