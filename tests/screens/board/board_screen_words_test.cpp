// tests/screens/board/board_screen_words_test.cpp - the board for those who listen to it or use its keys.
#include "screens/board/board_fixture.h"

#include <set>

namespace tallyhoop::test {

class BoardScreenWords : public BoardTest
{
};

TEST_F(BoardScreenWords, TellsVerdictsToThoseWhoCannotSeeColours)
{
    loadFinalized();
    drag(0, 24);
    state.verdict.SlotStatus.fill(Verdict::Open);
    state.verdict.SlotStatus[17] = Verdict::Good;
    state.verdict.SlotStatus[25] = Verdict::Bad;
    board->MarkScores();
    EXPECT_EQ(board->lblRegion[16].spokenName, "West, winner of first round, game 1, = right pick: R1T0");
    EXPECT_EQ(board->lblRegion[24].spokenName, "West, winner of second round, game 1, X wrong pick: R1T0");
    EXPECT_EQ(board->lblResult[0].spokenName, "= right pick");
    board->ClearMarks();
    EXPECT_EQ(board->lblRegion[16].spokenName, "West, winner of first round, game 1: R1T0");
    EXPECT_EQ(board->lblResult[0].spokenName, "");
}

TEST_F(BoardScreenWords, TellsEachPlaceApartByItsName)
{
    loadFinalized();
    EXPECT_EQ(board->lblRegion[2].spokenName, "West, first round, row 3, seed 8: R1T2");
    EXPECT_EQ(board->lblRegion[23].spokenName, "West, winner of first round, game 8: no team");
    EXPECT_EQ(board->lblRegion[29].spokenName, "West, winner of regional semi-final, game 2: no team");
    EXPECT_EQ(board->lblRegion[30].spokenName, "West, winner of regional final: no team");
    EXPECT_EQ(board->lblRegion[125].spokenName, "winner of semi-final, game 2: no team");
    EXPECT_EQ(board->lblRegion[126].spokenName, "winner of final: no team");
    std::set<std::string> names;
    for (std::size_t i = 0; i < board->lblRegion.size(); ++i)
        names.insert(board->lblRegion[i].spokenName);
    EXPECT_EQ(names.size(), board->lblRegion.size());
}

TEST_F(BoardScreenWords, TheBracketIsOneStopOfTheTabOrder)
{
    loadFinalized();
    board->gotFocus(board->lblRegion[24]);
    for (std::size_t i = 0; i < 127; ++i)
        EXPECT_EQ(board->lblRegion[i].tabStop, i == 24);
}

TEST_F(BoardScreenWords, EachPlaceSaysWhatCanBeDoneThere)
{
    loadFinalized();
    const auto said = [&](std::size_t position) { return board->lblRegion[position].explanation; };
    EXPECT_EQ(said(0), "Click or press Space to send R1T0 to the next round, or drag it as far as it goes.");
    EXPECT_EQ(said(16), "Nobody stands here yet: click or drag a team that can get here.");
    drag(0, 126);
    EXPECT_EQ(said(16), "Click or press Space to send R1T0 on, drag it further; right click or Delete takes it away.");
    EXPECT_EQ(said(126), "R1T0 wins the tournament. A right click or Delete takes the team away.");
    rightPress(16);
    EXPECT_EQ(said(126), "Nobody stands here yet: click or drag a team that can get here.");
    board->setScoreDisplayOpen(true);
    EXPECT_EQ(said(0), "The list of scores is open; close it to change the bracket.");
    board->setScoreDisplayOpen(false);
    EXPECT_EQ(said(0), "Click or press Space to send R1T0 to the next round, or drag it as far as it goes.");
}

TEST_F(BoardScreenWords, AMarkedPlaceSaysWhatItIsWorth)
{
    loadFinalized();
    drag(0, 24); // the winner of its first two games
    state.verdict.SlotStatus[17] = Verdict::Good;
    state.verdict.SlotStatus[25] = Verdict::Bad;
    state.verdict.SlotStatus[26] = Verdict::Bad;
    board->MarkScores();
    const auto said = [&](std::size_t position) { return board->lblRegion[position].explanation; };
    EXPECT_EQ(said(16), "A right pick: 1 point earned."); // the default payoffs: 1, 2, 4, 8, 12, 16
    EXPECT_EQ(said(24), "A wrong pick: 2 points lost.");
    EXPECT_EQ(said(25), "Nobody was picked: 2 points lost.");
    EXPECT_EQ(said(126), "Not decided yet: worth 16 points.");
    EXPECT_EQ(said(0), "The picks are marked; choose Default Colors to change them again.");
    EXPECT_EQ(board->lblResult[0].explanation, said(16));
    board->ClearMarks();
    EXPECT_EQ(said(25), "Nobody stands here yet: click or drag a team that can get here.");
}

TEST_F(BoardScreenWords, ArrowKeysFollowThePictureAndSpaceAdvances)
{
    loadFinalized();
    const auto press = [&](ui::Key key) { return board->keyPressed(*board->focused, {key}); };
    board->focused = &board->lblRegion[0];
    EXPECT_TRUE(press(ui::Key::Down));
    EXPECT_EQ(board->focused, &board->lblRegion[1]);
    EXPECT_TRUE(board->keyPressed(board->lblRegion[1], {ui::Key::Character, ' '}));
    EXPECT_EQ(at(16), "R1T1");
    EXPECT_TRUE(press(ui::Key::Right));
    EXPECT_EQ(board->focused, &board->lblRegion[16]);
    EXPECT_TRUE(press(ui::Key::Delete));
    EXPECT_EQ(at(16), "");
}

} // namespace tallyhoop::test
