// tests/qt/board_and_scores_test.cpp - what a command on the list of scores changes is seen on the board at once.
#include "app/wiring.h"
#include "demo/sample_pool.h"
#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "qt/main_frame.h"
#include "qt/screen_host.h"
#include "screens/board/board_screen.h"
#include "screens/scores/scores_screen.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

/// The sample pool with the results on the board and the list of scores open and calculated.
class BoardAndScores : public testing::Test
{
protected:
    BoardAndScores()
    {
        EXPECT_TRUE(demo::installSamplePool(folder));
        wireScreens(host, desk, folder, platform.services, shared);
        frame.open();
        host.load(ScreenKind::Board);
        desk.runInside(board(), [this] { board().showGameResults(); });
        desk.runInside(board(), [this] { board().mnuScoreSelections.click(); });
        desk.runInside(scores(), [this] { scores().cmdOk.click(); });
    }

    BoardScreen& board() { return *host.find<BoardScreen>(ScreenKind::Board); }
    ScoresScreen& scores() { return *host.find<ScoresScreen>(ScreenKind::Scores); }

    QAbstractButton& marker(Game game)
    {
        return *qobject_cast<QAbstractButton*>(host.page(ScreenKind::Board)->widgetOf(board().lblResult[game]));
    }
    QWidget& finalPoints() { return *host.page(ScreenKind::Board)->widgetOf(board().txtFinalPoints); }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    SharedValues shared;
    MainFrame frame;
    Desk desk{&frame};
    ScreenHost host{desk, frame};
};

TEST_F(BoardAndScores, TheBoardIsLockedWhileTheListIsOpenAndFreeWhenItIsClosed)
{
    EXPECT_FALSE(finalPoints().isEnabled());
    desk.runInside(scores(), [this] { scores().cmdExit.click(); });
    ASSERT_FALSE(host.isLoaded(ScreenKind::Scores));
    EXPECT_TRUE(finalPoints().isEnabled());
}

TEST_F(BoardAndScores, AFileNameMarksThePicksOnTheBoardAndClosingTheListUnmarksThem)
{
    // Arizona won its first game, and all four players but the longshot had picked it.
    EXPECT_EQ(marker(Game{0}).text(), QString{});
    desk.runInside(scores(), [this] { scores().msgScoreDisplay.cellPressed(0, 0); });
    EXPECT_EQ(marker(Game{0}).text(), QStringLiteral("="));
    EXPECT_FALSE(board().mnuHighSeed.enabled);
    desk.runInside(scores(), [this] { scores().cmdExit.click(); });
    EXPECT_EQ(marker(Game{0}).text(), QString{});
    EXPECT_TRUE(board().mnuHighSeed.enabled);
}

TEST_F(BoardAndScores, TheReportsCannotBeOpenedTwice)
{
    desk.runInside(board(), [this] { board().mnuReports.click(); });
    EXPECT_FALSE(board().mnuReports.enabled);
    host.unload(ScreenKind::Reports);
    EXPECT_TRUE(board().mnuReports.enabled);
}

} // namespace
} // namespace tallyhoop::qt
