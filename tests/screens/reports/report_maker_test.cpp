// tests/screens/reports/report_maker_test.cpp - what each report needs, what is said when it is not there, and what
// goes into the lines.
#include "screens/reports/report_maker.h"

#include "files/player_names_file.h"

#include "fakes/fake_platform.h"
#include "files/file_names.h"
#include "reports/report_pool.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

constexpr const char* kNoResults = "Game Results have not been entered, this option\r\n"
                                   "is NOT valid until this activity has been completed";
constexpr const char* kReadingTrouble = "** ERROR IN OPENING FILE - ReadSelections Routine **";
constexpr std::array kScoring{ReportId::TournamentStandings, ReportId::ResultsByPlayer, ReportId::ResultsByTeam};
constexpr std::array kProjections{ReportId::ResultsByPlayer, ReportId::ResultsByTeam};

struct ReportMakerTest : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    Field field = defaultField();
    std::string title = "Pool";

    MadeReport make(ReportId id)
    {
        const std::vector<FolderFile> files = folder.files(file_name::kSelectionExtension);
        return ReportMaker{folder, platform.services, field}.make(reportKind(id), title, files);
    }

    ReportLines linesOf(ReportId id)
    {
        const MadeReport made = make(id);
        const auto* lines = std::get_if<ReportLines>(&made);
        EXPECT_TRUE(lines) << reportKind(id).name;
        return lines != nullptr ? *lines : ReportLines{};
    }

    void expectRefused(ReportId id, const ui::Message& message, WithoutReport consequence = WithoutReport::Untick)
    {
        const MadeReport made = make(id);
        const auto* refusal = std::get_if<NoReport>(&made);
        ASSERT_TRUE(refusal) << reportKind(id).name;
        EXPECT_EQ(refusal->message, message);
        EXPECT_EQ(refusal->consequence, consequence) << reportKind(id).name;
    }

    static ui::Message critical(ReportId id, const std::string& text)
    {
        return {reportKind(id).failureTitle, text, ui::Buttons::Ok, ui::Icon::Critical};
    }

    void putResults(const Entry& results) { scratch.put(file_name::kResults, selectionFile(results)); }
    void removeResults() { std::filesystem::remove(scratch.path() / file_name::kResults); }
};

TEST(ReportFailure, SaysSomethingEvenWithoutAReason)
{
    EXPECT_EQ(reportFailure(reportTable()[1], ""),
              (ui::Message{"TALLYHOOP - frmPoolReports, Player Listing", "General Error Condition", ui::Buttons::Ok,
                           ui::Icon::Critical}));
}

TEST(ReportFailure, GivesTheReason)
{
    EXPECT_EQ(
        reportFailure(reportTable()[6], "too wide"),
        (ui::Message{"Tallyhoop - frmPoolReports, Results by Team", "too wide", ui::Buttons::Ok, ui::Icon::Critical}));
}

TEST_F(ReportMakerTest, NeedsASelectionForEveryReportButThePlayerListing)
{
    putFourPlayers(scratch);
    for (const Entry& player : fourPlayers())
        std::filesystem::remove(scratch.path() / player.fileName);
    const std::string nobody = "There aren't any Player Selection files saved,  so the\r\n";

    expectRefused(ReportId::TournamentStandings, {"Tallyhoop - frmPoolReports, Tournament Standings",
                                                  nobody + "\"Tournament Standings Report\" cannot be prepared.",
                                                  ui::Buttons::Ok, ui::Icon::Critical});
    expectRefused(ReportId::ResultsByPlayer, {"Tallyhoop - frmPoolReports, Results by Player",
                                              nobody + "\"Projected Results by Player\" report cannot be prepared.",
                                              ui::Buttons::Ok, ui::Icon::Critical});
    expectRefused(ReportId::ResultsByTeam, {"Tallyhoop - frmPoolReports, Results by Team",
                                            nobody + "\"Projected Results by Team\" report cannot be prepared.",
                                            ui::Buttons::Ok, ui::Icon::Critical});
    const ui::Message noTeams{"Tallyhoop - TeamSelSetup", nobody + "Team Selection Reports cannot be prepared.",
                              ui::Buttons::Ok, ui::Icon::Exclamation};
    expectRefused(ReportId::TeamSelectionSummary, noTeams);
    expectRefused(ReportId::TeamSelectionDetail, noTeams, WithoutReport::KeepTick);
    expectRefused(ReportId::PlayerSelectionDetail,
                  {"Tallyhoop - frmPoolReports, Player Selection Detail",
                   nobody + "\"Player Selection Detail\" report cannot be prepared.", ui::Buttons::Ok, ui::Icon::None},
                  WithoutReport::KeepTick);
    removeResults();
    EXPECT_EQ(linesOf(ReportId::PlayerListing).size(), 6u + 4u);
}

TEST_F(ReportMakerTest, NeedsResultsForTheReportsThatScore)
{
    putFourPlayers(scratch);
    removeResults();
    for (const ReportId id : kScoring)
        expectRefused(id, critical(id, kNoResults));
    for (const ReportId id : {ReportId::TeamSelectionSummary, ReportId::PlayerSelectionDetail})
        EXPECT_FALSE(linesOf(id).empty());
}

TEST_F(ReportMakerTest, NeedsAllOfTheFinalFourForTheProjections)
{
    putFourPlayers(scratch);
    const ui::Message explanation{"Tallyhoop - frmPoolReports, ChkFinalFour",
                                  "You will need to enter the four teams that have\r\n"
                                  "progressed to the Final Four before this option\r\n"
                                  "can be selected.\r\n\r\n"
                                  "Please correct and re-select this option.",
                                  ui::Buttons::Ok, ui::Icon::Exclamation};
    for (int region = 0; region < kRegions; ++region) {
        Entry results = fourPlayersResults();
        results.picks.clear(regionWinner(region));
        putResults(results);
        for (const ReportId id : kProjections)
            expectRefused(id, explanation);
    }
}

TEST_F(ReportMakerTest, ProjectsNothingOnceTheChampionIsKnown)
{
    putFourPlayers(scratch);
    putResults(EntryBuilder{}.upperRowsWinEverywhere().finals("OLD HARBOR", "SALT LAKE", "SALT LAKE").entry);
    for (const ReportId id : kProjections)
        expectRefused(id, {"Tallyhoop - frmPoolReports, ChkFinalFour",
                           "You have already scored the tournament winner, so\r\na projection isn't meaningful",
                           ui::Buttons::Ok, ui::Icon::Exclamation});
}

TEST_F(ReportMakerTest, RefusesThePlayerListingOfAFaultyListAndPointsToTheHelp)
{
    scratch.put("PLAYERNAMES.CSV", "nonsense\r\n");
    ui::Message refusal{"TALLYHOOP - frmPoolReports, Player Listing",
                        "Problems found with PLAYERNAMES.CSV file\r\n"
                        "This condition must be corrected, See Help content",
                        ui::Buttons::Ok, ui::Icon::Critical};
    refusal.helpTopic = "repair";
    expectRefused(ReportId::PlayerListing, refusal);
    EXPECT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{"** ERROR Found in PLAYERNAMES.CSV file **"});
}

TEST_F(ReportMakerTest, RefusesThePlayerListingOfAListWithoutEvenItsHeadings)
{
    ui::Message refusal{"TALLYHOOP - frmPoolReports, Player Listing",
                        "Problems found with PLAYERNAMES.CSV file\r\n"
                        "This condition must be corrected, See Help content",
                        ui::Buttons::Ok, ui::Icon::Critical};
    refusal.helpTopic = "repair";
    const std::string blankRecord = recordLine({}) + "\r\n";
    for (const std::string& bytes :
         {std::string{}, std::string{"\r\n"}, std::string{"\r\n  \r\n\r\n"}, blankRecord, blankRecord + blankRecord}) {
        scratch.put("PLAYERNAMES.CSV", bytes);
        expectRefused(ReportId::PlayerListing, refusal);
    }
}

TEST_F(ReportMakerTest, RefusesATitleThatIsTooWideWhereItIsNotLetThrough)
{
    putFourPlayers(scratch);
    title = std::string(130, 'T');
    for (const ReportId id : {ReportId::TeamSelectionSummary, ReportId::TeamSelectionDetail,
                              ReportId::PlayerSelectionDetail, ReportId::ResultsByPlayer, ReportId::ResultsByTeam})
        expectRefused(id, critical(id, "This text is too wide for the report:\r\n" + title));
    for (const ReportId id : {ReportId::TournamentStandings, ReportId::PlayerListing})
        EXPECT_EQ(linesOf(id)[1], title);
}

TEST_F(ReportMakerTest, RefusesATieBreakerBeyondSixteenBitsAndNamesTheFile)
{
    putFourPlayers(scratch);
    scratch.put("Baker_C.THC", selectionFile(EntryBuilder{}.player("C", "Baker", "99999").entry));
    for (const ReportId id : kScoring)
        expectRefused(id, critical(id, "The predicted total points of Baker_C.THC cannot be used. The number \"99999\" "
                                       "is out of range: it must lie between -32768 and 32767."));
}

TEST_F(ReportMakerTest, ScoresWithThePayoffsOfTheField)
{
    putFourPlayers(scratch);
    field.payoffs = PayoffTexts{{"2", "0", "0", "0", "0", "0"}};
    EXPECT_TRUE(linesOf(ReportId::TournamentStandings)[7].starts_with(" 064   AB, Adams")); // 32 games at 2

    field.payoffs = PayoffTexts{{"1", "2", "4", "8", "12", "40000"}};
    for (const ReportId id : kScoring)
        expectRefused(
            id,
            critical(id,
                     "The payoff of round 6 cannot be used. The number \"40000\" is out of range: it must lie between "
                     "-32768 and 32767."));
}

TEST_F(ReportMakerTest, NamesADamagedSelectionOnceAndGoesOnWithWhatWasRead)
{
    putFourPlayers(scratch);
    scratch.put("Baker_C.THC", "only one line\r\n");
    for (const ReportKind& kind : reportTable()) {
        if (kind.id == ReportId::PlayerListing)
            continue;
        platform.dialogs.shown.clear();
        EXPECT_FALSE(linesOf(kind.id).empty());
        ASSERT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{kReadingTrouble}) << kind.name;
        EXPECT_NE(platform.dialogs.shown[0].text.find("Baker_C.THC"), std::string::npos);
    }
}

TEST_F(ReportMakerTest, NamesADamagedResultsFileAndScoresAsFarAsItGoes)
{
    putFourPlayers(scratch);
    std::string results = scratch.get(file_name::kResults);
    scratch.put(file_name::kResults, results.substr(0, results.size() - std::string{"*END*\r\n"}.size()));
    for (const ReportId id : kScoring) {
        platform.dialogs.shown.clear();
        EXPECT_FALSE(linesOf(id).empty());
        ASSERT_EQ(platform.dialogs.captionsShown(), std::vector<std::string>{kReadingTrouble});
        EXPECT_NE(platform.dialogs.shown[0].text.find("TALLYHOOP.THS"), std::string::npos);
    }
}

TEST_F(ReportMakerTest, EndsAtAnyStepAtWhichThePersonCancels)
{
    putFourPlayers(scratch);
    for (const ReportKind& kind : reportTable()) {
        if (kind.id == ReportId::PlayerListing)
            continue;
        for (const int step : {1, 4}) { // of reading the four files, and of scoring where that follows
            platform.progress.cancelAt = step;
            expectRefused(kind.id,
                          {kind.failureTitle, "The report was cancelled: no report was made.", ui::Buttons::Ok,
                           ui::Icon::Information},
                          WithoutReport::EndRun);
            EXPECT_EQ(platform.progress.begun, platform.progress.ended);
        }
    }
}

} // namespace
} // namespace tallyhoop::test
