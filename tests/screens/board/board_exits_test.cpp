// tests/screens/board/board_exits_test.cpp - what is closed before another screen opens, and when the board stays.
#include "screens/board/board_exits.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct BoardExitsTest : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    BoardExits exits{folder, platform.services, screens};

    void expectThatTheListOfScoresWasClosedBefore(ScreenKind kind, const std::function<void()>& leave)
    {
        screens.open = {ScreenKind::Board, ScreenKind::Scores};
        screens.loads.clear();
        screens.whenLoaded = [this](ScreenKind) { EXPECT_FALSE(screens.isLoaded(ScreenKind::Scores)); };
        leave();
        EXPECT_THAT(screens.loads, ElementsAre(kind));
    }
};

TEST_F(BoardExitsTest, CloseTheListOfScoresFirst)
{
    expectThatTheListOfScoresWasClosedBefore(ScreenKind::Players, [this] { exits.toPlayers(); });
    expectThatTheListOfScoresWasClosedBefore(ScreenKind::Reports, [this] { exits.toReports(); });
    EXPECT_TRUE(screens.isLoaded(ScreenKind::Board));
}

TEST_F(BoardExitsTest, TheSetupTakesTheBoardsPlace)
{
    expectThatTheListOfScoresWasClosedBefore(ScreenKind::Setup, [this] { exits.toSetup(); });
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Scores, ScreenKind::Board));
}

TEST_F(BoardExitsTest, DemoModeIsShownOnAFreshBoard)
{
    platform.dialogs.answer(ui::Answer::Ok);
    platform.programs.whenStarted = [this] { scratch.put("TALLYHOOP.INI", "1\r\n"); };
    expectThatTheListOfScoresWasClosedBefore(ScreenKind::Board, [this] { exits.toDemo(); });
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Scores, ScreenKind::Board));
    EXPECT_THAT(screens.news, ElementsAre(""));
}

TEST_F(BoardExitsTest, NothingIsClosedForADemoThatIsNotWanted)
{
    platform.dialogs.answer(ui::Answer::Cancel);
    exits.toDemo();
    EXPECT_THAT(screens.unloads, IsEmpty());
    EXPECT_THAT(screens.loads, IsEmpty());
}

TEST_F(BoardExitsTest, AFreshBoardSaysWhereChangesMadeInDemoModeAreKept)
{
    scratch.put("TALLYHOOP.INI", "1\r\n");
    expectThatTheListOfScoresWasClosedBefore(ScreenKind::Board, [this] { exits.fromDemo(); });
    scratch.put("TALLYHOOP.INI", "1\r\n");
    scratch.put("TALLYHOOP.THS", "my results");
    expectThatTheListOfScoresWasClosedBefore(ScreenKind::Board, [this] { exits.fromDemo(); });
    EXPECT_THAT(
        screens.news,
        ElementsAre("", "Files that you changed in demo mode are kept in the folder Backup 2001-03-05 101530."));
}

TEST_F(BoardExitsTest, TheBoardStaysWhenDemoModeCannotBeLeft)
{
    scratch.put("TALLYHOOP.INI", "1\r\n");
    std::filesystem::resize_file(scratch.put("TALLYHOOP.THS", ""), (64u << 20) + 1); // more than the program reads
    exits.fromDemo();
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Scores));
    EXPECT_THAT(screens.loads, IsEmpty());
}

} // namespace
} // namespace tallyhoop::test
