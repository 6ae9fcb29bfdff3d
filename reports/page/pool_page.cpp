// reports/page/pool_page.cpp - a pool's brackets in numbers of teams, and everybody's points.
#include "reports/page/pool_page.h"

#include "pool/results.h"
#include "pool/scoring.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace tallyhoop {

namespace {

/// The different names of all brackets, by number.
class PageTeams
{
public:
    PageTeam numberOf(const std::string& name)
    {
        const auto [at, isNew] = m_numbers.try_emplace(name, static_cast<PageTeam>(m_names.size()));
        if (isNew)
            m_names.push_back(name);
        return at->second;
    }

    PageBracket numbersOf(const Bracket& bracket)
    {
        PageBracket numbers;
        for (const Position position : allPositions())
            numbers[position] = numberOf(bracket.at(position));
        return numbers;
    }

    std::vector<std::string> take() { return std::move(m_names); }

private:
    std::vector<std::string> m_names{std::string{}};
    std::unordered_map<std::string, PageTeam> m_numbers{{std::string{}, 0}};
};

std::array<std::int32_t, kRounds> pointsByRound(const Score& score, const Payoffs& payoffs)
{
    std::array<std::int32_t, kRounds> points{};
    for (const Position game : gamePositions()) {
        const std::size_t round = roundIndex(roundOf(game));
        if (score.verdicts[game] == Verdict::Good)
            points.at(round) += payoffs.at(round);
    }
    return points;
}

std::vector<PagePlayer> playersOf(std::span<const Entry> entries, const Bracket& results, const Payoffs& payoffs,
                                  PageTeams& teams)
{
    const std::vector<PlayerStanding> standings = standingsBy(entries, results, payoffs);
    std::vector<PagePlayer> players;
    players.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const Entry& entry = entries[i];
        players.push_back({nameInRow(entry), entry.fileName, entry.finalPoints, teams.numbersOf(entry.picks),
                           pointsByRound(score(entry.picks, results, payoffs), payoffs), standings[i].possible,
                           standings[i].place});
    }
    return players;
}

} // namespace

Result<PoolPage> poolPageOf(const Pool& pool, std::optional<PageOutlook> outlook)
{
    const Field& field = pool.field;
    const Result<Payoffs>& payoffs = field.payoffs.points();
    if (!payoffs)
        return payoffs.failure();
    PageTeams teams;
    PoolPage page;
    page.title = field.title;
    page.comments = {field.comment1, field.comment2};
    page.regions = field.regionTitles;
    std::ranges::copy(*payoffs, page.points.begin());
    page.seeds = field.seeds;
    std::ranges::copy(seedNumbers(field).from(TeamRow{0}, kRowsPerRegion), page.seedNumbers.begin());
    for (const TeamRow row : allTeamRows())
        page.teams[row] = teams.numberOf(field.teams[row]);
    const Bracket results = completedResults(pool.results.value_or(Entry{}), field).picks;
    page.results = teams.numbersOf(results);
    page.players = playersOf(pool.entries, results, *payoffs, teams);
    page.names = teams.take();
    page.outlook = std::move(outlook);
    return page;
}

} // namespace tallyhoop
