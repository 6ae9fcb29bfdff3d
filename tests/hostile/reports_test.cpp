// tests/hostile/reports_test.cpp - reports take every name as it is: of a team, of a player, of a file, as the title.
#include "hostile/hostile_names.h"

#include "pool/projection.h"
#include "pool/scoring.h"
#include "reports/four_players.h"
#include "reports/player_listing.h"
#include "reports/player_selection_detail.h"
#include "reports/report_table.h"
#include "reports/results_by_player.h"
#include "reports/results_by_team.h"
#include "reports/standings.h"
#include "reports/team_selection_detail.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

/// The lines of a report as one text; empty = the report is refused.
std::string reportText(const Result<ReportLines>& lines)
{
    std::string all;
    if (lines)
        for (const std::string& line : *lines)
            all += line + "\n";
    return all;
}

struct SmallPool {
    std::string title = "Office Pool";
    std::vector<PlayerListingRow> list{{"Name", "FileName", "Email", "Phone"}, {"Adams", "Adams_AB.THC", "", ""}};
    std::vector<Entry> players = fourPlayers();
    Bracket results = fourPlayersResults().picks;

    std::string report(ReportId id) const
    {
        switch (id) {
        case ReportId::TournamentStandings:
            return reportText(standingsLines(title, *scoreEntries(players, results, kUsualPayoffs, goOn)));
        case ReportId::PlayerListing:
            return reportText(playerListingLines(title, list));
        case ReportId::TeamSelectionSummary:
            return reportText(teamSelectionSummaryLines(title, pickEntries(players)));
        case ReportId::TeamSelectionDetail:
            return reportText(teamSelectionDetailLines(title, pickEntries(players)));
        case ReportId::PlayerSelectionDetail:
            return reportText(playerSelectionDetailLines(title, playersByFileName(players)));
        case ReportId::ResultsByPlayer: {
            const ByFinal<FinalOutcome> outcomes = finalOutcomes(results);
            return reportText(resultsByPlayerLines(title, finalFourOf(results), outcomes,
                                                   *resultsByPlayerRows(players, results, outcomes, kUsualPayoffs)));
        }
        case ReportId::ResultsByTeam:
            return reportText(resultsByTeamLines(title, *resultsByTeamOutcomes(players, results, kUsualPayoffs)));
        }
        return {};
    }
};

class HostileNamesInReports : public testing::TestWithParam<HostileName>
{
protected:
    const std::string& hostileName() const { return GetParam().text; }

    /// The same bracket with this name for one of the teams, wherever that is.
    Bracket renamed(Bracket bracket) const
    {
        for (const Position position : allPositions())
            if (bracket.at(position) == teamName(kWest, 5))
                bracket.put(position, hostileName());
        return bracket;
    }

    /// The four players, one of whom bears the name, sends a team of the name on, and picked it as champion.
    SmallPool namedPool() const
    {
        SmallPool pool;
        for (Entry& player : pool.players)
            player.picks = renamed(player.picks);
        Entry& clark = pool.players[2];
        clark.name = clark.initials = hostileName();
        clark.picks.put(kChampion, hostileName());
        clark.fileName = hostileName() + "_x.THC";
        pool.results = renamed(pool.results);
        pool.list.push_back({hostileName(), hostileName(), hostileName(), hostileName()});
        return pool;
    }

    /// Whether the layouts have room for it and none of their separators is in it.
    bool isOrdinary() const
    {
        return hostileName().size() <= 29 && hostileName().find_first_of(",;") == std::string::npos &&
               hostileName() != "   ";
    }
};

TEST_P(HostileNamesInReports, AreWrittenLetterForLetter)
{
    const SmallPool pool = namedPool();
    for (const ReportKind& kind : reportTable()) {
        const std::string report = pool.report(kind.id);
        if (!isOrdinary()) {
            // There is a report of all players or none: no name makes it end early.
            EXPECT_TRUE(report.empty() || report.find("Office Pool") != std::string::npos) << kind.name;
            continue;
        }
        const bool narrow = kind.id == ReportId::PlayerSelectionDetail; // its columns hold 14 characters
        EXPECT_NE(report.find(narrow ? hostileName().substr(0, 14) : hostileName()), std::string::npos) << kind.name;
    }
}

TEST_P(HostileNamesInReports, AreTheTitleAndNothingElse)
{
    SmallPool pool;
    pool.title = hostileName();
    for (const ReportKind& kind : reportTable()) {
        const std::string report = pool.report(kind.id);
        constexpr std::size_t kFitsEverywhere = 60;
        EXPECT_TRUE(report.find(hostileName()) != std::string::npos ||
                    (report.empty() && hostileName().size() > kFitsEverywhere))
            << kind.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesInReports, testing::ValuesIn(hostileNames()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::test
