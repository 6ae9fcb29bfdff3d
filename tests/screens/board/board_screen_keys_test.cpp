// tests/screens/board/board_screen_keys_test.cpp - filling a whole bracket in with two keys, and going back.
#include "screens/board/board_fixture.h"

#include <string_view>

namespace tallyhoop::test {

class BoardScreenKeys : public BoardTest
{
protected:
    /// Presses a key where the focus is.
    bool type(char character) { return key(*board->focused, {ui::Key::Character, character}); }
    void typeAll(std::string_view characters)
    {
        for (const char character : characters)
            EXPECT_TRUE(type(character)) << character;
    }
    void goBack() { EXPECT_TRUE(key(*board->focused, {ui::Key::Backspace})); }

    void focus(int position) { board->focused = &board->lblRegion[Position{position}]; }
    int focused() const
    {
        const std::optional<Position> position = board->positionOfLabel(*board->focused);
        return position ? index(*position) : -1;
    }

    const std::string& news() const { return board->news().text; }

    static constexpr const char* kNothingOpen = "Every game has a winner.";
};

TEST_F(BoardScreenKeys, OneAndTwoPickTheUpperAndTheLowerTeamOfTheFirstOpenGame)
{
    loadFinalized();
    focus(0);
    typeAll("12");
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(at(17), "R1T3");
    EXPECT_EQ(at(18), "");
    EXPECT_EQ(focused(), 18);
    EXPECT_TRUE(board->unsaved);
    EXPECT_EQ(board->status, "2 of 63 picked");
}

TEST_F(BoardScreenKeys, TheFocusGoesRegionByRegionEachRoundByRound)
{
    loadFinalized();
    focus(7);
    typeAll("11111111");
    EXPECT_EQ(focused(), 24) << "after the eight games of the first round";
    typeAll("2121");
    EXPECT_EQ(focused(), 28);
    typeAll("12");
    EXPECT_EQ(focused(), 30);
    EXPECT_EQ(at(24), "R1T2");
    EXPECT_EQ(at(25), "R1T4");
    EXPECT_EQ(at(28), "R1T2");  // the upper of R1T2 and R1T4
    EXPECT_EQ(at(29), "R1T12"); // the lower of R1T10 and R1T12
    typeAll("2");
    EXPECT_EQ(at(30), "R1T12");
    EXPECT_EQ(focused(), 47) << "the first game of the second region";
}

TEST_F(BoardScreenKeys, SixtyThreeKeysMakeTheFileThatClicksMake)
{
    const std::string keys = "121122121112212" // a region: eight games, four, two, one
                             "221211112122111" // one after another
                             "112212221211212" //
                             "212122121221121" //
                             "212";            // the semi-finals and the final
    ASSERT_EQ(keys.size(), 63U);
    const std::filesystem::path typed = scratch.path() / "Typed_T.THC";
    const std::filesystem::path clicked = scratch.path() / "Clicked_C.THC";
    loadFinalized();
    focus(0);
    typeAll(keys);
    EXPECT_EQ(board->status, "63 of 63 picked");
    EXPECT_EQ(focused(), 126);
    EXPECT_EQ(news(), kNothingOpen);
    fill("JS", "Smith", "150");
    saveAs(typed);

    board->mnuNewSelection.click();
    for (std::size_t game = 0; game < keys.size(); ++game)
        click(index(feeders(gamePositions().at(game))->at(keys[game] == '1' ? 0 : 1)));
    fill("JS", "Smith", "150");
    saveAs(clicked);
    EXPECT_EQ(scratch.get("Typed_T.THC"), scratch.get("Clicked_C.THC"));
    // By hand: 1 2 1 1 let T0, T3, T4 and T6 win the first four games.
    EXPECT_EQ(savedAt(saved("Typed_T.THC"), 17), "R1T3");
    EXPECT_EQ(savedAt(saved("Typed_T.THC"), 19), "R1T6");
}

TEST_F(BoardScreenKeys, AnotherKeyAfterTheLastGameChangesNothing)
{
    loadFinalized();
    focus(0);
    typeAll(std::string(63, '1'));
    const Bracket whole = board->bracket();
    typeAll("2");
    EXPECT_EQ(board->bracket(), whole);
    EXPECT_EQ(at(126), "R1T0");
    EXPECT_EQ(news(), kNothingOpen);
    focus(3);
    typeAll("2");
    EXPECT_EQ(board->bracket(), whole);
    EXPECT_EQ(focused(), 3);
}

TEST_F(BoardScreenKeys, AnOpenGameThatHasTheFocusIsTheOneThatIsPicked)
{
    loadFinalized();
    focus(53);
    typeAll("2");
    EXPECT_EQ(at(53), "R2T13");
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(focused(), 54);
    focus(53); // has a winner now
    typeAll("1");
    EXPECT_EQ(at(53), "R2T13");
    EXPECT_EQ(at(16), "R1T0") << "the first open game";
    EXPECT_EQ(focused(), 17);
}

TEST_F(BoardScreenKeys, TheLastGamesAreFollowedByTheOpenOnesBeforeThem)
{
    loadFinalized();
    focus(0);
    typeAll(std::string(63, '1'));
    rightPress(92); // the third region's winner, who is in the semi-final as well
    EXPECT_EQ(at(125), "");
    focus(92);
    typeAll("2");
    EXPECT_EQ(at(92), "R3T8");
    EXPECT_EQ(focused(), 125);
    typeAll("2");
    EXPECT_EQ(at(125), "R4T0");
    EXPECT_EQ(news(), kNothingOpen);
    rightPress(31 + 16);
    focus(125);
    rightPress(125);
    typeAll("1");
    EXPECT_EQ(focused(), 47);
}

TEST_F(BoardScreenKeys, AGameWithoutItsTeamsWaitsForThem)
{
    loadFinalized();
    click(0);
    focus(24);
    typeAll("2");
    EXPECT_EQ(at(24), "");
    EXPECT_EQ(focused(), 24);
    EXPECT_EQ(news(), "Nobody has come here yet: the games before this one are open.");
    typeAll("1");
    EXPECT_EQ(at(24), "R1T0") << "who has come already";
}

TEST_F(BoardScreenKeys, BackspaceTakesThePicksBackOneByOne)
{
    loadFinalized();
    click(4); // by mouse: 18
    focus(0);
    typeAll("121");
    EXPECT_EQ(at(19), "R1T6");
    EXPECT_EQ(focused(), 20);
    goBack();
    EXPECT_EQ(at(19), "");
    EXPECT_EQ(focused(), 19);
    goBack();
    EXPECT_EQ(at(17), "");
    EXPECT_EQ(focused(), 17);
    goBack();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(focused(), 16);
    goBack();
    EXPECT_EQ(at(18), "R1T4") << "the mouse's pick is none of these";
    EXPECT_EQ(focused(), 16);
    typeAll("2");
    EXPECT_EQ(at(16), "R1T1");
}

TEST_F(BoardScreenKeys, BackspaceTakesTheChampionBackAndGoesOn)
{
    loadFinalized();
    focus(0);
    typeAll(std::string(63, '1'));
    goBack();
    EXPECT_EQ(at(126), "");
    EXPECT_EQ(focused(), 126);
    goBack();
    EXPECT_EQ(at(125), "");
    EXPECT_EQ(focused(), 125);
    EXPECT_EQ(at(124), "R1T0");
}

TEST_F(BoardScreenKeys, BackspaceOnAnotherPickEmptiesThatPlaceAsBefore)
{
    loadFinalized();
    focus(0);
    typeAll("12");
    focus(16);
    goBack();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(at(17), "R1T3");
    EXPECT_EQ(focused(), 16);
    focus(17);
    goBack();
    EXPECT_EQ(at(17), "") << "what was changed last was not typed: the place itself is meant";
}

TEST_F(BoardScreenKeys, BackspaceWithoutAnyTypedPickEmptiesThePlace)
{
    loadFinalized();
    drag(0, 24);
    focus(16);
    goBack();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(at(24), "");
    focus(0);
    goBack();
    EXPECT_EQ(at(0), "R1T0");
}

TEST_F(BoardScreenKeys, UndoAndRedoTakeTheFocusAlong)
{
    loadFinalized();
    focus(0);
    typeAll("12");
    board->mnuUndo.click();
    EXPECT_EQ(at(17), "");
    EXPECT_EQ(focused(), 17);
    board->mnuUndo.click();
    EXPECT_EQ(focused(), 16);
    board->mnuRedo.click();
    EXPECT_EQ(at(16), "R1T0");
    EXPECT_EQ(focused(), 17);
    board->mnuRedo.click();
    EXPECT_EQ(at(17), "R1T3");
    EXPECT_EQ(focused(), 18);
    goBack();
    EXPECT_EQ(at(17), "") << "what was made again can be taken back like that, too";
}

TEST_F(BoardScreenKeys, UndoLeavesTheFocusWhereItIsWhenThatIsNotTheBracket)
{
    loadFinalized();
    focus(0);
    typeAll("1");
    board->focused = &board->txtPlayerName;
    board->mnuUndo.click();
    EXPECT_EQ(at(16), "");
    EXPECT_EQ(board->focused, &board->txtPlayerName);
}

TEST_F(BoardScreenKeys, NothingOfOneBoardIsTakenBackOnTheNext)
{
    loadFinalized();
    const auto file = putSelection("Smith_JS.THC", emptyBracket("JS", "Smith", "150"));
    focus(0);
    typeAll("1");
    open(file);
    goBack();
    EXPECT_EQ(board->document, "Smith_JS.THC");
    EXPECT_FALSE(board->unsaved);
    typeAll("1");
    board->mnuNewSelection.click();
    goBack();
    EXPECT_EQ(board->document, "") << "New Selection is not what Backspace takes back";
    EXPECT_EQ(at(16), "");
}

TEST_F(BoardScreenKeys, ResultsAreTypedInTheSameWay)
{
    putNoResultsYet();
    loadFinalized();
    enterResults();
    ASSERT_EQ(focused(), 0);
    typeAll("21");
    EXPECT_EQ(at(16), "R1T1");
    EXPECT_EQ(at(17), "R1T2");
    goBack();
    save();
    EXPECT_EQ(savedAt(saved(file_name::kResults), 16), "R1T1");
    EXPECT_EQ(savedAt(saved(file_name::kResults), 17), "");
}

TEST_F(BoardScreenKeys, ChangeNothingWhileThePicksAreMarked)
{
    putNoResultsYet();
    loadFinalized();
    focus(0);
    typeAll("1");
    score();
    ASSERT_TRUE(marksShown());
    focus(17);
    type('1');
    EXPECT_EQ(at(17), "");
    EXPECT_EQ(focused(), 17);
    goBack();
    EXPECT_EQ(at(16), "R1T0");
    board->cmdDefaultColors.click();
    focus(17);
    goBack();
    EXPECT_EQ(at(16), "");
}

TEST_F(BoardScreenKeys, AreDigitsElsewhereAndWithAModifier)
{
    loadFinalized();
    EXPECT_FALSE(key(board->txtFinalPoints, {ui::Key::Character, '1'}));
    EXPECT_FALSE(key(board->txtPlayerName, {ui::Key::Backspace}));
    EXPECT_FALSE(key(board->lblRegion[0], {ui::Key::Character, '1', true, false})) << "a shortcut";
    EXPECT_FALSE(key(board->lblRegion[0], {ui::Key::Character, '2', false, true}));
    EXPECT_FALSE(key(board->lblRegion[0], {ui::Key::Character, '3'}));
    EXPECT_FALSE(key(board->lblRegion[0], {ui::Key::Character, '0'}));
    EXPECT_EQ(at(16), "");
}

} // namespace tallyhoop::test
