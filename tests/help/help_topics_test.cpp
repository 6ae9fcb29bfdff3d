// tests/help/help_topics_test.cpp - which topic F1 shows on each screen, in each of its states.
#include "demo/sample_pool.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/setup_file.h"
#include "screens/board/board_screen.h"
#include "screens/help_topics.h"
#include "screens/import/import_screen.h"
#include "screens/players/email_screen.h"
#include "screens/players/players_screen.h"
#include "screens/reports/reports_screen.h"
#include "screens/scores/scores_screen.h"
#include "screens/setup/seeds_screen.h"
#include "screens/setup/setup_screen.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {

namespace {

class HelpTopic : public testing::Test
{
protected:
    /// A pool of the organiser's own: the sample's files without demo mode.
    void putOwnPool()
    {
        ASSERT_TRUE(demo::installSamplePool(folder));
        ASSERT_TRUE(folder.remove(file_name::kSettings));
    }

    void putFaultyPlayerList() { scratch.put(file_name::kPlayerNames, "saved by a spreadsheet\r\n"); }

    BoardScreen& board()
    {
        if (!m_board) {
            m_board = std::make_unique<BoardScreen>(
                folder, platform.services, screens,
                BoardScreen::Shared{field, savedPlayer, listedPlayer, folderTroubleSaid, droppedFiles});
            m_board->load();
            m_board->showState();
        }
        return *m_board;
    }

    void openProphet()
    {
        platform.dialogs.pick(scratch.path() / "Demo Prophet_DP.THC");
        board().mnuOpenSelection.click();
    }

    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    Field field;
    std::optional<SavedPlayer> savedPlayer;
    std::optional<PlayerScore> listedPlayer;
    bool folderTroubleSaid = false;
    std::vector<std::filesystem::path> droppedFiles;
    MailDraft draft;
    std::unique_ptr<BoardScreen> m_board;
};

} // namespace

TEST_F(HelpTopic, OfABoardWithoutAFieldIsHowToStart) { EXPECT_EQ(board().helpTopic(), "start"); }

TEST_F(HelpTopic, OfABoardIsHowToEnterSelections)
{
    putOwnPool();
    EXPECT_EQ(board().helpTopic(), "selections");
    openProphet();
    EXPECT_EQ(board().helpTopic(), "selections");
}

TEST_F(HelpTopic, OfTheSamplePoolIsDemoModeUntilThereIsABracketToWorkOn)
{
    ASSERT_TRUE(demo::installSamplePool(folder));
    EXPECT_EQ(board().helpTopic(), "demo");
    openProphet();
    EXPECT_EQ(board().helpTopic(), "selections");
    board().mnuNewSelection.click();
    EXPECT_EQ(board().helpTopic(), "demo");
    board().pressPosition(Position{0}, MouseButton::Left);
    board().dropOnPosition(Position{0});
    EXPECT_EQ(board().helpTopic(), "selections");
}

TEST_F(HelpTopic, OfGameResultsIsHowToEnterThem)
{
    putOwnPool();
    board().mnuGameResults.click();
    EXPECT_EQ(board().helpTopic(), "results");
    board().mnuNewSelection.click();
    EXPECT_EQ(board().helpTopic(), "selections");
}

TEST_F(HelpTopic, OfAScoredSelectionIsWhatTheMarksMean)
{
    putOwnPool();
    openProphet();
    board().mnuScoreSelections.click();
    EXPECT_EQ(board().helpTopic(), "scores");
    board().cmdDefaultColors.click();
    EXPECT_EQ(board().helpTopic(), "selections");
}

TEST_F(HelpTopic, OfTheListOfScoresIsHowToReadItAlsoOnTheBoardBelowIt)
{
    putOwnPool();
    board().mnuGameResults.click();
    board().mnuScoreSelections.click();
    ScoresScreen scores{folder, platform.services, screens, field, board().bracket(), listedPlayer};
    scores.load();
    EXPECT_EQ(scores.helpTopic(), "ranking");
    EXPECT_EQ(board().helpTopic(), "ranking");
    scores.cmdExit.click();
    EXPECT_EQ(board().helpTopic(), "results");
}

TEST_F(HelpTopic, OfABoardWithAFaultyPlayerListIsHowToRepairIt)
{
    putOwnPool();
    putFaultyPlayerList();
    EXPECT_EQ(board().helpTopic(), "repair");
    EXPECT_EQ(platform.dialogs.shown.at(0).helpTopic, "repair");
    board().mnuGameResults.click();
    EXPECT_EQ(board().helpTopic(), "results");
}

TEST_F(HelpTopic, OfTheSetupIsHowToSetUpAndInDemoModeWhyItCannotBeSaved)
{
    SetupScreen setup{folder, platform.services, screens, field};
    EXPECT_EQ((setup.load(), setup.helpTopic()), "setup");
    SeedTexts seedTexts;
    SeedsScreen seeds{{}, seedTexts, platform.dialogs, screens};
    seeds.load();
    EXPECT_EQ(seeds.helpTopic(), "seeds");

    ASSERT_TRUE(demo::installSamplePool(folder));
    SetupScreen sample{folder, platform.services, screens, field};
    sample.load();
    EXPECT_EQ(sample.helpTopic(), "demo");
}

TEST_F(HelpTopic, OfThePlayerListIsTheListOrItsRepair)
{
    putOwnPool();
    PlayersScreen sound{folder, platform.services, screens, savedPlayer, field};
    sound.load();
    EXPECT_EQ(sound.helpTopic(), "players");
    putFaultyPlayerList();
    PlayersScreen faulty{folder, platform.services, screens, savedPlayer, field};
    faulty.load();
    EXPECT_EQ(faulty.helpTopic(), "repair");
}

TEST_F(HelpTopic, OfTheEMailDialogIsEMailOrTheRepairOfItsPlayers)
{
    putOwnPool();
    EmailScreen sound{folder, platform.services, screens, draft};
    sound.load();
    EXPECT_EQ(sound.helpTopic(), "email");
    putFaultyPlayerList();
    EmailScreen faulty{folder, platform.services, screens, draft};
    faulty.load();
    EXPECT_EQ(faulty.helpTopic(), "repair");
    EXPECT_EQ(platform.dialogs.shown.back().helpTopic, "repair");
}

TEST_F(HelpTopic, OfTheImportIsHowEntriesComeIn)
{
    FakeOpenSelection below;
    const ImportScreen import{folder, platform.services, screens, {field, below, droppedFiles}, nullptr};
    EXPECT_EQ(import.helpTopic(), "import");
}

TEST_F(HelpTopic, OfTheReportsIsTheReportsUnlessOneFailedForAReasonOfItsOwn)
{
    putOwnPool();
    ReportsScreen reports{folder, platform.services, screens, field, draft, board()};
    reports.load();
    EXPECT_EQ(reports.helpTopic(), "reports");
    putFaultyPlayerList();
    reports.chkOptions[1].ticked = true;
    ui::selectOption(reports.optDestination, 1);
    reports.cmdPrintSelections.click();
    EXPECT_EQ(reports.helpTopic(), "repair");
    reports.chkOptions[0].ticked = true;
    reports.cmdPrintSelections.click();
    EXPECT_EQ(reports.helpTopic(), "reports");
}

} // namespace tallyhoop::test
