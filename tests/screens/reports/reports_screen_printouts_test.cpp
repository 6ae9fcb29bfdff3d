// tests/screens/reports/reports_screen_printouts_test.cpp - printouts of the board, and the way to the score display.
#include "screens/reports/reports_screen_fixture.h"

namespace tallyhoop::test {
namespace {

constexpr const char* kTitle = "Tallyhoop - frmPoolReports, cmdSelectedPrintouts";
const ui::Message kNoOption = exclamation(kTitle, "You need to make a selection from one of the two options\r\n"
                                                  "for selected printouts.  Please try again.");
const ui::Message kNoResults = exclamation(kTitle, "Game Results have not been entered, this option\r\n"
                                                   "is NOT valid until this activity has been completed");
const ui::Message kNoFile = exclamation(kTitle, "You must select one of the entries from the list \r\n"
                                                "of File Names for display.\r\n\r\n"
                                                "Make a selection and then retry.");

struct ReportsPrintouts : ReportsScreenTest {
    ReportsPrintouts()
    {
        putFourPlayers(folder);
        screen.load();
    }

    void removeResults() { std::filesystem::remove(folder.path() / "TALLYHOOP.THS"); }

    void expectRefused(const ui::Message& message)
    {
        screen.cmdSelectedPrintouts.click();
        EXPECT_EQ(platform.dialogs.shown, std::vector{message});
        EXPECT_TRUE(screens.unloads.empty());
        EXPECT_TRUE(board.calls.empty());
        EXPECT_FALSE(anyReportWritten());
    }
};

TEST_F(ReportsPrintouts, NeedAnOptionFirstOfAll)
{
    removeResults();
    screen.filList.selected = 0;

    expectRefused(kNoOption);
}

TEST_F(ReportsPrintouts, NeedResultsBeforeTheyNeedAFile)
{
    removeResults();
    ui::selectOption(screen.optSelected, 0);

    expectRefused(kNoResults);
}

TEST_F(ReportsPrintouts, NeedResultsForTheResultsSheetToo)
{
    removeResults();
    ui::selectOption(screen.optSelected, 1);

    expectRefused(kNoResults);
}

TEST_F(ReportsPrintouts, NeedAFileForAScoredSelection)
{
    ui::selectOption(screen.optSelected, 0);

    expectRefused(kNoFile);
}

TEST_F(ReportsPrintouts, PrintTheBoardWithTheResults)
{
    ui::selectOption(screen.optSelected, 1);

    screen.cmdSelectedPrintouts.click();

    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Reports});
    EXPECT_EQ(board.calls, (std::vector<std::string>{"EnterGameResults", "PrintForm"}));
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ReportsPrintouts, IgnoreTheChosenFileForTheResultsSheet)
{
    ui::selectOption(screen.optSelected, 1);
    screen.filList.selected = 2;

    screen.cmdSelectedPrintouts.click();

    EXPECT_EQ(board.calls, (std::vector<std::string>{"EnterGameResults", "PrintForm"}));
    EXPECT_TRUE(board.selectionsShown.empty());
}

TEST_F(ReportsPrintouts, ScoreAndPrintTheChosenPlayersBracket)
{
    ui::selectOption(screen.optSelected, 0);
    screen.filList.selected = 1;

    screen.cmdSelectedPrintouts.click();

    EXPECT_EQ(screens.raised, std::vector{ScreenKind::Board});
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Reports});
    EXPECT_EQ(board.calls, (std::vector<std::string>{"showSelection", "ScoreSelections", "PrintForm"}));
    EXPECT_EQ(board.selectionsShown, std::vector{folder.path() / "Baker_C.THC"});
}

TEST_F(ReportsPrintouts, StartWithNeitherOptionWhenTheScreenOpensAgain)
{
    ui::selectOption(screen.optSelected, 1);
    screen.cmdSelectedPrintouts.click();

    ReportsScreen again{dataFolder, platform.services, state, screens, board};
    again.load();

    EXPECT_FALSE(again.optSelected[0].selected);
    EXPECT_FALSE(again.optSelected[1].selected);
}

TEST_F(ReportsPrintouts, AreNotTheOnlyWayToTheResults)
{
    screen.cmdCustomReport.click();

    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Reports});
    EXPECT_EQ(board.calls, std::vector<std::string>{"EnterGameResults"});
    EXPECT_EQ(screens.loads, (std::vector{FakeScreens::Load{ScreenKind::ScoreDisplay, Opening::Plain}}));
}

} // namespace
} // namespace tallyhoop::test
