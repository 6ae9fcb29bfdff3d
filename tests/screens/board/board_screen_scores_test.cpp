// tests/screens/board/board_screen_scores_test.cpp - game results and scoring.
#include "screens/board/board_fixture.h"

#include "pool/sample_brackets.h"

#include <algorithm>
#include <string_view>

namespace tallyhoop::test {

class BoardScreenScores : public BoardTest
{
protected:
    /// Results in which R1T0 has won its first game and R1T3 its own.
    void putResults()
    {
        Entry results = emptyBracket("A", "FinalResults", "");
        results.picks.put(Position{16}, "R1T0");
        results.picks.put(Position{17}, "R1T3");
        putSelection(file_name::kResults, results);
    }
};

TEST_F(BoardScreenScores, TheFirstResultsEntryStartsFromAnEmptyBracket)
{
    loadFinalized();
    drag(0, 126);
    enterResults();
    for (const Position position : gamePositions())
        EXPECT_EQ(at(position), "");
    EXPECT_EQ(board->txtPlayerInitials.text, "A");
    EXPECT_EQ(board->txtPlayerName.text, "FinalResults");
    EXPECT_TRUE(board->txtPlayerInitials.locked);
    EXPECT_TRUE(board->txtPlayerName.locked);
    EXPECT_FALSE(board->txtPlayerName.tabStop);
    EXPECT_FALSE(board->txtFinalPoints.locked);
    EXPECT_TRUE(board->txtFinalPoints.tabStop);
    EXPECT_TRUE(resultsMode());
    EXPECT_FALSE(board->mnuGameResults.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_EQ(board->document, "Game results");
}

TEST_F(BoardScreenScores, TheSecondEntryShowsTheSavedWinnersWithoutMarks)
{
    putResults();
    loadFinalized();
    score();
    ASSERT_TRUE(marksShown());
    enterResults();
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(at(17), "R1T3");
    EXPECT_EQ(at(18), "");
    EXPECT_FALSE(marksShown());
    EXPECT_EQ(board->lblResult[0].text, "");
    EXPECT_EQ(board->txtPointScore.text, "");
    EXPECT_FALSE(board->cmdDefaultColors.visible);
    EXPECT_TRUE(board->mnuSaveSelection.enabled);
}

TEST_F(BoardScreenScores, ADamagedResultsFileIsCompletedSoThatItCanBeSaved)
{
    scratch.put(file_name::kResults, crlf({"", "R1T1"}));
    loadFinalized();
    enterResults();
    EXPECT_EQ(at(0), "R1T0");
    EXPECT_EQ(at(93), "R4T0");
    EXPECT_EQ(board->txtPlayerInitials.text, "A");
    save();
    EXPECT_EQ(saved("TALLYHOOP.THS").name, "FinalResults");
    EXPECT_EQ(savedAt(saved("TALLYHOOP.THS"), 1), "R1T1") << "what is there stays";
    EXPECT_TRUE(scratch.get("TALLYHOOP.THS").ends_with("\r\n*END*\r\n"));
}

TEST_F(BoardScreenScores, InResultsModeScoringOpensTheListOfScores)
{
    putResults();
    loadFinalized();
    enterResults();
    score();
    EXPECT_EQ(screens.loads, std::vector{ScreenKind::Scores});
    EXPECT_FALSE(marksShown());
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
}

TEST_F(BoardScreenScores, ScoringMarksThePicksAndShowsThePoints)
{
    putResults();
    loadFinalized();
    click(0);
    click(2);
    score();
    EXPECT_EQ(board->lblResult[0].text, "=");
    EXPECT_EQ(board->lblResult[1].text, "X");
    // R1T0 is right: 1 point. R1T2 is wrong. All other games are open without a pick, which is bad at once: nothing
    // more is possible, and the most is what is earned.
    EXPECT_EQ(board->txtPointScore.text, "Points: 1 / 1");
    EXPECT_TRUE(board->cmdDefaultColors.visible);
    EXPECT_TRUE(board->cmdDefaultColors.enabled);
    EXPECT_TRUE(board->cmdDefaultColors.isDefault);
    for (const ui::TextBox* box : {&board->txtPlayerInitials, &board->txtPlayerName, &board->txtFinalPoints}) {
        EXPECT_TRUE(box->locked);
        EXPECT_FALSE(box->tabStop);
    }
    EXPECT_FALSE(board->mnuSaveSelection.enabled);
    EXPECT_FALSE(board->mnuScoreSelections.enabled);
    EXPECT_FALSE(board->mnuHighSeed.enabled);
}

TEST_F(BoardScreenScores, ScoringWithoutResultsIsRefused)
{
    putResults();
    loadFinalized();
    std::filesystem::remove(scratch.path() / file_name::kResults);
    score();
    EXPECT_EQ(platform.dialogs.shown.back(),
              (ui::Message{"INVALID REQUEST TO LOAD FILE",
                           "The file TALLYHOOP.THS is not present in the application directory!", ui::Buttons::Ok,
                           ui::Icon::Exclamation}));
    EXPECT_FALSE(board->mnuScoreSelections.enabled);
    EXPECT_FALSE(marksShown());
}

TEST_F(BoardScreenScores, DefaultColorsGivesTheBoardBack)
{
    putResults();
    loadFinalized();
    click(0);
    score();
    board->cmdDefaultColors.click();
    EXPECT_FALSE(marksShown());
    EXPECT_FALSE(board->cmdDefaultColors.visible);
    EXPECT_FALSE(board->cmdDefaultColors.isDefault);
    EXPECT_FALSE(board->cmdDefaultColors.enabled);
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
    EXPECT_TRUE(board->mnuSaveSelection.enabled);
    EXPECT_TRUE(board->mnuHighSeed.enabled);
    EXPECT_FALSE(board->txtFinalPoints.locked);
    EXPECT_TRUE(board->txtFinalPoints.tabStop);
}

TEST_F(BoardScreenScores, APayoffThatIsFarTooLargeIsAnErrorWithAMessage)
{
    putResults();
    Field made = fieldOfTeams("1");
    made.payoffs = PayoffTexts{{"99999999999999999999", "2", "4", "8", "12", "16"}};
    putField(made);
    load();
    score();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "");
    EXPECT_EQ(platform.dialogs.shown[0].icon, ui::Icon::Critical);
    EXPECT_EQ(platform.dialogs.shown[0].text, made.payoffs.points().failure().message);
    EXPECT_FALSE(marksShown());
    EXPECT_TRUE(board->mnuScoreSelections.enabled);
}

TEST_F(BoardScreenScores, ATieBreakerThatDoesNotFitIsAnErrorWithAMessage)
{
    putResults();
    loadFinalized();
    click(0);
    fill("JS", "Smith", "99999");
    score();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_TRUE(
        platform.dialogs.shown[0].text.starts_with("The predicted total points of this selection cannot be used."))
        << platform.dialogs.shown[0].text;
    EXPECT_FALSE(marksShown());
    EXPECT_EQ(board->txtPointScore.text, "");
    EXPECT_EQ(at(16), "R1T0");
}

TEST_F(BoardScreenScores, TakesThePicksFromTheBoardAndTheResultsFromTheFile)
{
    putSelection("Smith_JS.THC", {everyUpperTeamWins(), "JS", "Smith", "145", {}});
    putSelection(file_name::kResults, {without(everyUpperTeamWins(), 31, 126), "A", "FinalResults", "", {}});
    loadFinalized();
    open(scratch.path() / "Smith_JS.THC");
    score();
    EXPECT_EQ(board->txtPointScore.text, "Points: 32 / 168") << "region 1 is right";
    EXPECT_EQ(board->bracket(), everyUpperTeamWins());
    EXPECT_EQ(board->txtPlayerName.text, "Smith");
}

TEST_F(BoardScreenScores, ADamagedResultsFileIsReportedAndScoredAsFarAsItGoes)
{
    putResults();
    std::string bytes = scratch.get(file_name::kResults);
    bytes.resize(bytes.size() - std::string_view{"*END*\r\n"}.size());
    scratch.put(file_name::kResults, bytes);
    loadFinalized();
    click(0);
    score();
    EXPECT_EQ(platform.dialogs.captionsShown(),
              std::vector<std::string>{"** ERROR IN OPENING FILE - ReadSelections Routine **"});
    EXPECT_EQ(board->txtPointScore.text, "Points: 1 / 1");
}

TEST_F(BoardScreenScores, ScoresAPlayersFileForTheReports)
{
    putResults();
    Entry entry = emptyBracket("JS", "Smith", "150");
    entry.picks.put(Position{16}, "R1T0");
    const auto file = putSelection("Smith_JS.THC", entry);
    loadFinalized();
    enterResults();
    board->showScored(file);
    board->printForm(); // as the reports do: both in one command
    ASSERT_EQ(platform.printer.drawings.size(), 1u);
    EXPECT_EQ(platform.printer.drawings[0].title, "Smith_JS.THC");
    const auto& captions = platform.printer.drawings[0].drawings[0].captions;
    for (const char* text : {"Smith", "Points: 1 / 1", "="})
        EXPECT_TRUE(std::ranges::any_of(captions, [text](const ui::Caption& caption) { return caption.text == text; }))
            << text;
    board->showState();
    EXPECT_TRUE(marksShown());
    EXPECT_FALSE(resultsMode());
    EXPECT_EQ(board->document, "Smith_JS.THC");
}

} // namespace tallyhoop::test
