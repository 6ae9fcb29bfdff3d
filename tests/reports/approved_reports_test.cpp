// tests/reports/approved_reports_test.cpp - whole reports, byte for byte, from files to lines, without a screen.
#include "reports/approved_reports.h"

#include "files/player_names_file.h"
#include "files/pool_files.h"
#include "pool/projection.h"
#include "pool/scoring.h"
#include "reports/player_listing.h"
#include "reports/player_selection_detail.h"
#include "reports/report_pool.h"
#include "reports/report_table.h"
#include "reports/results_by_player.h"
#include "reports/results_by_team.h"
#include "reports/standings.h"
#include "reports/team_selection_detail.h"

namespace tallyhoop::test {
namespace {

Result<ReportLines> standings(const std::string& title, const Pool& pool)
{
    return standingsLines(title, *scoreEntries(pool.entries, pool.results->picks, *pool.field.payoffs.points()));
}

Result<ReportLines> playerListing(const std::string& title, const ScratchFolder& folder)
{
    std::vector<PlayerListingRow> rows;
    for (const std::string& line : linesOf(folder.get("PLAYERNAMES.CSV"))) {
        const PlayerRecord record = parseRecord(line);
        rows.push_back({record.name, record.fileName, record.email, record.phone});
    }
    return playerListingLines(title, rows);
}

Result<ReportLines> resultsByPlayer(const std::string& title, const Pool& pool)
{
    const Bracket& results = pool.results->picks;
    const ByFinal<FinalOutcome> outcomes = finalOutcomes(results);
    const auto rows = resultsByPlayerRows(pool.entries, results, outcomes, *pool.field.payoffs.points());
    return resultsByPlayerLines(title, finalFourOf(results), outcomes, *rows);
}

Result<ReportLines> resultsByTeam(const std::string& title, const Pool& pool)
{
    return resultsByTeamLines(title,
                              *resultsByTeamOutcomes(pool.entries, pool.results->picks, *pool.field.payoffs.points()));
}

/// Makes all seven reports of a folder.
/// @param damaged how many of its files are not whole
void expectAllApproved(const ScratchFolder& folder, const std::string& title, const std::string& poolName,
                       std::size_t damaged)
{
    const Pool pool = readPool(folder.folder());
    ASSERT_TRUE(pool.results);
    EXPECT_EQ(pool.trouble.size(), damaged);
    const std::vector<std::string> picks = pickEntries(pool.entries);
    const std::array<Result<ReportLines>, kReports> reports{
        standings(title, pool),
        playerListing(title, folder),
        teamSelectionSummaryLines(title, picks),
        teamSelectionDetailLines(title, picks),
        playerSelectionDetailLines(title, playersByFileName(pool.entries)),
        resultsByPlayer(title, pool),
        resultsByTeam(title, pool),
    };
    for (std::size_t i = 0; i < reports.size(); ++i) {
        ASSERT_TRUE(reports[i]) << reports[i].failure().message;
        expectApproved(fileOf(*reports[i]), poolName, reportTable()[i].file);
    }
}

TEST(ApprovedReports, OfFourPlayersAreAsWorkedOutByHand)
{
    ScratchFolder folder;
    putFourPlayers(folder);

    expectAllApproved(folder, kSmallTitle, "small", 0);
}

TEST(ApprovedReports, OfAPoolWithAwkwardNamesAreAsASecondReckoningHasThem)
{
    ScratchFolder folder;
    putMessyPool(folder);

    expectAllApproved(folder, kMessyTitle, "messy", 1);
}

} // namespace
} // namespace tallyhoop::test
