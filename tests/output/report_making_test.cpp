// tests/output/report_making_test.cpp - all seven reports from a folder's files, byte for byte, and what is told of it.
#include "output/report_making.h"

#include "files/file_names.h"
#include "files/pool_files.h"
#include "reports/approved_reports.h"
#include "reports/report_pool.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down what it is told, and lets the work go on for a number of steps.
class NotingWatcher : public ReportWatcher
{
public:
    std::vector<std::string> damaged;
    std::vector<std::string> listFaults;
    std::vector<std::string> parts;
    int stepsLeft = 1'000'000;

    void fileIsDamaged(const std::filesystem::path& file, const Failure&) override
    {
        damaged.push_back(file.filename().string());
    }
    void listIsFaulty(const Failure& fault) override { listFaults.push_back(fault.message); }
    bool watch(const std::string& what, std::size_t steps, const std::function<void(const Step&)>& work) override
    {
        parts.push_back(what + " " + std::to_string(steps));
        work([this] { return --stepsLeft > 0; });
        return stepsLeft > 0;
    }
};

struct ReportMakingTest : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    NotingWatcher watcher;

    ReportMaking::Made make(ReportId id, const std::string& title = "Pool")
    {
        const Field field = readPool(folder).field;
        return ReportMaking{folder, field, watcher}.make(reportKind(id), title,
                                                         folder.files(file_name::kSelectionExtension));
    }

    void expectAllApproved(const std::string& pool, const std::string& title)
    {
        for (const ReportKind& kind : reportTable()) {
            const ReportMaking::Made made = make(kind.id, title);
            const auto* lines = std::get_if<ReportLines>(&made);
            ASSERT_NE(lines, nullptr) << kind.name;
            expectApproved(fileOf(*lines), pool, kind.file);
        }
    }
};

TEST_F(ReportMakingTest, MakesThoseOfFourPlayersAsWorkedOutByHand)
{
    putFourPlayers(scratch);
    expectAllApproved("small", kSmallTitle);
    EXPECT_THAT(watcher.damaged, IsEmpty());
}

TEST_F(ReportMakingTest, MakesThoseOfAPoolWithAwkwardNamesAsASecondReckoningHasThem)
{
    putMessyPool(scratch);
    expectAllApproved("messy", kMessyTitle);
}

TEST_F(ReportMakingTest, NamesEachDamagedFileOnce)
{
    putFourPlayers(scratch);
    scratch.put("Clark_D.THC", "one line only\r\n");
    make(ReportId::TournamentStandings);
    EXPECT_THAT(watcher.damaged, ElementsAre("Clark_D.THC"));
}

TEST_F(ReportMakingTest, AnnouncesItsSteps)
{
    putFourPlayers(scratch);
    make(ReportId::ResultsByTeam);
    EXPECT_THAT(watcher.parts, ElementsAre("Reading the selections 4", "Projected Results by Team 20"))
        << "each of four players is scored now, and once for each of four teams";
}

TEST_F(ReportMakingTest, StopsAnywhere)
{
    putFourPlayers(scratch);
    for (const int steps : {2, 6}) { // while reading four selections, and while scoring them
        watcher.stepsLeft = steps;
        const ReportMaking::Made made = make(ReportId::TournamentStandings);
        const auto* refusal = std::get_if<ReportRefusal>(&made);
        ASSERT_NE(refusal, nullptr) << steps;
        EXPECT_EQ(refusal->reason, "The report was cancelled: no report was made.");
        EXPECT_EQ(refusal->consequence, WithoutReport::EndRun);
    }
}

TEST_F(ReportMakingTest, SaysWhatIsWrongWithThePlayerList)
{
    putFourPlayers(scratch);
    scratch.put("PLAYERNAMES.CSV", "too short\r\n");
    const ReportMaking::Made made = make(ReportId::PlayerListing);
    const auto* refusal = std::get_if<ReportRefusal>(&made);
    ASSERT_NE(refusal, nullptr);
    EXPECT_TRUE(refusal->isAboutPlayerList);
    EXPECT_THAT(watcher.listFaults, testing::SizeIs(1));
}

TEST_F(ReportMakingTest, MakesTablesUnderTheSameConditions)
{
    const auto makeCsv = [this](ReportId id) {
        const Field field = readPool(folder).field;
        return ReportMaking{folder, field, watcher}.makeCsv(reportKind(id),
                                                            folder.files(file_name::kSelectionExtension));
    };
    const ReportMaking::MadeCsv nobody = makeCsv(ReportId::TournamentStandings);
    ASSERT_TRUE(std::holds_alternative<ReportRefusal>(nobody));
    EXPECT_THAT(std::get<ReportRefusal>(nobody).reason, testing::HasSubstr("There aren't any"));
    putFourPlayers(scratch);
    for (const ReportId id :
         {ReportId::TournamentStandings, ReportId::TeamSelectionSummary, ReportId::TeamSelectionDetail}) {
        const ReportMaking::MadeCsv made = makeCsv(id);
        const auto* table = std::get_if<std::string>(&made);
        ASSERT_NE(table, nullptr) << reportKind(id).name;
        EXPECT_THAT(*table,
                    testing::HasSubstr(id == ReportId::TournamentStandings ? "\r\n128,\"AB, Adams\"" : "\r\nE03,"))
            << reportKind(id).name;
    }
}

TEST_F(ReportMakingTest, ScoresEverybodyInTheOrderOfTheFiles)
{
    putFourPlayers(scratch);
    const Field field = readPool(folder).field;
    const ReportMaking::MadeScores made =
        ReportMaking{folder, field, watcher}.makeScores(folder.files(file_name::kSelectionExtension));
    const auto* scores = std::get_if<std::vector<PlayerScore>>(&made);
    ASSERT_NE(scores, nullptr);
    ASSERT_THAT(*scores, testing::SizeIs(4));
    EXPECT_EQ((*scores)[1].playerName, "C, Baker");
    EXPECT_EQ((*scores)[1].points, 96);
}

} // namespace
} // namespace tallyhoop::test
