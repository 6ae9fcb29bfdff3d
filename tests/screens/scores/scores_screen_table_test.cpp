// tests/screens/scores/scores_screen_table_test.cpp - the table of scores: dragged headings, clicked cells, paper,
// clipboard.
#include "screens/scores/scores_screen_fixture.h"

namespace tallyhoop::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(ScoreDisplay, RestoresTheOriginalColumnsWhenCalculatingAgain)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    dragHeading(2, 0);
    screen.cmdOk.click();
    EXPECT_THAT(headings(), ElementsAre("File Name", "Player Name", "Score", "-MAX-", "Winning Pick"));
    EXPECT_THAT(column(0), ElementsAre("Adams_QA.THC", "Brown_TB.THC", "Smith_JS.THC"));
}

TEST_F(ScoreDisplay, SortsAgainInThePresentOrderOnAPressAndReleaseOfOneHeading)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    dragHeading(1, 0); // player name to the front
    EXPECT_THAT(column(0), ElementsAre("JS, Smith", "QA, Adams", "TB, Brown"));
    dragHeading(3, 3);
    EXPECT_THAT(column(0), ElementsAre("JS, Smith", "QA, Adams", "TB, Brown"));
    EXPECT_EQ(screen.msgScoreDisplay.headingPressed, std::nullopt);
}

TEST_F(ScoreDisplay, LeavesTheOrderAloneWhenAHeadingIsDroppedOutside)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    const auto rows = screen.msgScoreDisplay.rows;
    screen.msgScoreDisplay.columnPressed(2);
    EXPECT_EQ(screen.msgScoreDisplay.headingPressed, 2u);
    screen.msgScoreDisplay.columnReleased(std::nullopt);
    EXPECT_EQ(screen.msgScoreDisplay.rows, rows);
    EXPECT_EQ(headings().front(), "File Name");
    EXPECT_EQ(screen.msgScoreDisplay.headingPressed, std::nullopt);

    screen.msgScoreDisplay.columnReleased(1); // a release that nothing was pressed for
    EXPECT_EQ(screen.msgScoreDisplay.rows, rows);
}

TEST_F(ScoreDisplay, MarksThePicksOfThePlayerWhoseFileNameIsClicked)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    EXPECT_FALSE(marked);
    screen.msgScoreDisplay.cellPressed(0, 0); // Adams
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->verdicts[Position{16}], Verdict::Bad);
    screen.msgScoreDisplay.cellPressed(2, 0); // Smith
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->verdicts[Position{16}], Verdict::Good);
    EXPECT_EQ(marked->verdicts[Position{30}], Verdict::Good);
    EXPECT_EQ(marked->verdicts[Position{47}], Verdict::Possible);
}

TEST_F(ScoreDisplay, MarksWhatTheFileHoldsWhenItsNameIsClicked)
{
    putPlayer("Smith_JS.THC", "JS", "Smith", everyLowerTeamWins());
    open();
    screen.cmdOk.click();
    putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
    screen.msgScoreDisplay.cellPressed(0, 0);
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->verdicts[Position{16}], Verdict::Good);
}

TEST_F(ScoreDisplay, MarksNobodyWhenTheClickedFileCannotBeScored)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    markSomebody();
    putPlayer("Adams_QA.THC", "QA", "Adams", everyUpperTeamWins(), "99999");
    screen.msgScoreDisplay.cellPressed(0, 0);
    EXPECT_FALSE(marked);
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);

    markSomebody();
    setPayoffs({"99999", "2", "4", "8", "12", "16"});
    screen.msgScoreDisplay.cellPressed(2, 0);
    EXPECT_FALSE(marked);
    ASSERT_EQ(platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(platform.dialogs.shown[1].text, field.payoffs.points().failure().message);
}

TEST_F(ScoreDisplay, ReportsAClickedFileThatIsGoneAndMarksEmptyPicks)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    std::filesystem::remove(scratch.path() / "Adams_QA.THC");
    screen.msgScoreDisplay.cellPressed(0, 0);
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "** ERROR IN OPENING FILE - ReadSelections Routine **");
    EXPECT_THAT(platform.dialogs.shown[0].text, ::testing::HasSubstr("Adams_QA.THC"));
    ASSERT_TRUE(marked);
    EXPECT_THAT(marked->verdicts.values, ::testing::Each(Verdict::Bad))
        << "64 rows that do not match and 63 games without a pick";
}

TEST_F(ScoreDisplay, PutsTheBestFirstWhoeverIsInTheFirstRow)
{
    putThreePlayers();
    open();
    EXPECT_FALSE(screen.cmdBestFirst.enabled);
    screen.cmdOk.click();
    EXPECT_TRUE(screen.cmdBestFirst.enabled);
    EXPECT_EQ(column(2), (std::vector<std::string>{"0", "8", "32"})); // a drag would sort these upwards
    screen.cmdBestFirst.click();
    EXPECT_EQ(headings(), (std::vector<std::string>{"Score", "File Name", "Player Name", "-MAX-", "Winning Pick"}));
    EXPECT_EQ(column(0), (std::vector<std::string>{"32", "8", "0"}));
    EXPECT_EQ(column(1), (std::vector<std::string>{"Smith_JS.THC", "Brown_TB.THC", "Adams_QA.THC"}));
    screen.cmdBestFirst.click();
    EXPECT_EQ(column(0), (std::vector<std::string>{"32", "8", "0"})) << "a second press changes nothing";
}

TEST_F(ScoreDisplay, SaysWhosePicksAreMarked)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    EXPECT_EQ(screen.status, "");
    screen.msgScoreDisplay.cellPressed(2, 0); // Smith: 32 earned; open are 3 regions of 32 and 2 * 12 + 16 = 136 more
    screen.showState();
    EXPECT_EQ(screen.status, "Marked: Smith_JS.THC, 32 of 168");
    screen.cmdOk.click();
    EXPECT_EQ(screen.status, "");
}

TEST_F(ScoreDisplay, DoesNothingWhenAnotherCellIsClicked)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    markSomebody();
    const std::optional<PlayerScore> before = marked;
    for (const std::size_t other : {1u, 2u, 3u, 4u})
        screen.msgScoreDisplay.cellPressed(0, other);
    EXPECT_EQ(marked, before);
}

TEST_F(ScoreDisplay, KnowsAFileNameInWhateverColumnAndCaseItIs)
{
    putPlayer("zorn_z.thc", "Z", "Zorn", everyUpperTeamWins());
    open();
    screen.cmdOk.click();
    dragHeading(0, 4); // to the end
    markSomebody();
    screen.msgScoreDisplay.cellPressed(0, 4);
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->verdicts[Position{16}], Verdict::Good);
}

TEST_F(ScoreDisplay, MarksThePlayerOfTheClickedRowWhenTwoFileNamesLookAlike)
{
    putPlayer("Template.TXT", "N", "Nowak", everyUpperTeamWins());
    std::filesystem::copy_file(scratch.path() / "Template.TXT", scratch.path() / u8"\u0141owak_N.THC");
    putPlayer("Template.TXT", "N", "Nowak", everyLowerTeamWins());
    std::filesystem::copy_file(scratch.path() / "Template.TXT", scratch.path() / u8"\u0143owak_N.THC");
    open();
    screen.cmdOk.click();
    ASSERT_EQ(column(0), (std::vector<std::string>{"?owak_N.THC", "?owak_N.THC"}));
    for (std::size_t row = 0; row < 2; ++row) {
        const bool hasAllRight = screen.msgScoreDisplay.rows[row][2] == "32";
        screen.msgScoreDisplay.cellPressed(row, 0);
        ASSERT_TRUE(marked);
        EXPECT_EQ(marked->verdicts[Position{16}], hasAllRight ? Verdict::Good : Verdict::Bad) << row;
    }
}

TEST_F(ScoreDisplay, MarksTheRowThatIsClickedAfterSorting)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    dragHeading(3, 0); // the maximum: Smith comes first
    ASSERT_EQ(screen.msgScoreDisplay.rows[0][1], "Smith_JS.THC");
    screen.msgScoreDisplay.cellPressed(0, 1);
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->verdicts[Position{30}], Verdict::Good);
    screen.msgScoreDisplay.cellPressed(2, 1); // Adams
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->verdicts[Position{30}], Verdict::Bad);
}

#ifndef _WIN32 // where no file can have such a name
TEST_F(ScoreDisplay, MarksAFileWhoseNameIsNoneOfTheFolder)
{
    putPlayer("Team: Red\\_X.THC", "X", "Red", everyUpperTeamWins());
    open();
    screen.cmdOk.click();
    screen.msgScoreDisplay.cellPressed(0, 0);
    EXPECT_TRUE(platform.dialogs.shown.empty());
    ASSERT_TRUE(marked);
    EXPECT_EQ(marked->verdicts[Position{16}], Verdict::Good);
}
#endif

TEST_F(ScoreDisplay, NeverReadsOutsideTheFolderForACellThatLooksLikeAFileName)
{
    std::filesystem::create_directory(scratch.path() / "sub");
    scratch.put("sub/X.THC", selectionFile({everyUpperTeamWins(), {}, {}, {}, {}}));
    putPlayer("Smith_JS.THC", "JS", "sub/X.THC", everyUpperTeamWins());
    open();
    screen.cmdOk.click();
    ASSERT_THAT(screen.msgScoreDisplay.rows[0], ::testing::Contains("JS, sub/X.THC"));
    markSomebody();
    for (std::size_t column = 1; column < 5; ++column)
        screen.msgScoreDisplay.cellPressed(0, column);
    EXPECT_FALSE(marked);
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
}

TEST_F(ScoreDisplay, PrintsTheTableInCourierNewPortraitWithoutAsking)
{
    putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
    open();
    screen.cmdOk.click();
    screen.cmdPrint.click();
    EXPECT_EQ(platform.printer.printerDialogs, 0);
    ASSERT_EQ(platform.printer.texts.size(), 1u);
    const ui::TextPrintout& printout = platform.printer.texts[0];
    EXPECT_EQ(printout.font, (ui::PrinterFont{"Courier New", 10, false, false}));
    EXPECT_EQ(printout.orientation, ui::Orientation::Portrait);
    EXPECT_THAT(printout.lines, ElementsAre("                TALLYHOOP POINT SUMMARY: 5-March-01", "", "",
                                            "     File Name     Player Name   Score   -MAX-  Winning Pick", "",
                                            "     Smith_JS.THC  JS, Smith        32     168  Team 1      "));
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ScoreDisplay, PreviewsAndSavesTheTableAsItIsPrinted)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    screen.cmdPrint.click();
    platform.dialogs.pick(scratch.path() / "scores");

    screen.cmdPreview.click();
    screen.cmdSavePdf.click();

    ASSERT_EQ(platform.printer.texts.size(), 2u);
    ASSERT_EQ(platform.printer.previewedTexts.size(), 1u);
    EXPECT_EQ(platform.printer.previewedTexts[0].lines, platform.printer.texts[0].lines);
    EXPECT_EQ(platform.printer.texts[1].lines, platform.printer.texts[0].lines);
    EXPECT_EQ(platform.printer.pdfs, std::vector{scratch.path() / "scores.PDF"});
    EXPECT_EQ(platform.dialogs.fileChoices.at(0).proposedName, "Tallyhoop Point Summary.PDF");
    EXPECT_EQ(screen.news().text, "Saved scores.PDF.");
}

TEST_F(ScoreDisplay, NamesTheWayOutWhenThereIsNoPrinter)
{
    open();
    platform.printer.there = false;

    screen.cmdPrint.click();

    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(screen.news().text, "No printer is installed: Preview and Save as PDF work without one.");
}

TEST_F(ScoreDisplay, PrintsNothingWhenTheFontDialogIsCancelled)
{
    platform.printer.fonts.clear();
    open();
    screen.cmdPrint.click();
    EXPECT_EQ(platform.printer.fontDialogs, 1);
    EXPECT_THAT(platform.printer.texts, IsEmpty());
    EXPECT_EQ(platform.dialogs.shown.size(), 1u) << "the missing font, and no word about the cancel";
}

TEST_F(ScoreDisplay, SaysWhenPrintingFails)
{
    platform.printer.trouble = Failure{"no printer"};
    open();
    screen.cmdPrint.click();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "");
    EXPECT_EQ(platform.dialogs.shown[0].text, "Error in attempting to print to the printer\r\n"
                                              "Check you printer for proper attachment");
}

TEST_F(ScoreDisplay, CopiesTheTableForASpreadsheet)
{
    putPlayer("Smith_JS.THC", "JS", "Smith", everyUpperTeamWins());
    open();
    screen.cmdOk.click();
    dragHeading(2, 0);
    screen.cmdCopy.click();
    EXPECT_EQ(platform.clipboard.text, "Score\tFile Name\tPlayer Name\t-MAX-\tWinning Pick\r\n"
                                       "32\tSmith_JS.THC\tJS, Smith\t168\tTeam 1\r\n");
    EXPECT_EQ(screen.news().text, "Copied 1 row, to be pasted into a spreadsheet.");
}

TEST_F(ScoreDisplay, SaysNothingOfACopyOfAnotherTable)
{
    putThreePlayers();
    open();
    screen.cmdOk.click();
    const auto expectForgottenAfter = [this](const std::function<void()>& change, const char* news = "") {
        screen.cmdCopy.click();
        ASSERT_TRUE(screen.news().text.starts_with("Copied")) << screen.news().text;
        change();
        EXPECT_EQ(screen.news().text, news);
    };
    expectForgottenAfter([this] { screen.cmdOk.click(); }, "3 selections are scored.");
    expectForgottenAfter([this] { screen.cmdBestFirst.click(); });
    expectForgottenAfter([this] { dragHeading(2, 1); });
    platform.printer.fonts.clear();
    expectForgottenAfter([this] { screen.cmdPrint.click(); });
}

} // namespace
} // namespace tallyhoop::test
