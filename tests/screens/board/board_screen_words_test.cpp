// tests/screens/board/board_screen_words_test.cpp - the board for those who listen to it or use its keys.
#include "screens/board/board_fixture.h"

#include <set>

namespace tallyhoop::test {

class BoardScreenWords : public BoardTest
{
};

TEST_F(BoardScreenWords, SaysMarksToThoseWhoCannotSeeColours)
{
    loadFinalized();
    drag(0, 24);
    Verdicts verdicts;
    verdicts.values.fill(Verdict::Open);
    verdicts[Position{16}] = Verdict::Good;
    verdicts[Position{24}] = Verdict::Bad;
    showListedVerdicts(verdicts);
    EXPECT_EQ(board->lblRegion[16].spokenName, "West, winner of first round, game 1, = picked by the player: R1T0");
    EXPECT_EQ(board->lblRegion[24].spokenName, "West, winner of second round, game 1, X missed by the player: R1T0");
    EXPECT_EQ(board->lblResult[0].spokenName, "= picked by the player");
    showListedVerdicts(std::nullopt);
    EXPECT_EQ(board->lblRegion[16].spokenName, "West, winner of first round, game 1: R1T0");
    EXPECT_EQ(board->lblResult[0].spokenName, "");
}

TEST_F(BoardScreenWords, GivesEachPlaceANameOfItsOwn)
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
    board->showState();
    for (std::size_t i = 0; i < 127; ++i)
        EXPECT_EQ(board->lblRegion[i].tabStop, i == 24);
    board->gotFocus(board->txtPlayerName);
    EXPECT_TRUE(board->lblRegion[24].tabStop);
}

TEST_F(BoardScreenWords, EachPlaceSaysWhatCanBeDoneThere)
{
    loadFinalized();
    const auto said = [&](std::size_t position) { return board->lblRegion[position].explanation; };
    const std::string forward = "Click or press Space to send R1T0 to the next round, or drag it as far as it goes."
                                " 1 and 2 fill in the open games, one after another.";
    EXPECT_EQ(said(0), forward);
    EXPECT_EQ(said(16), "1 picks R1T0, 2 picks R1T1, Backspace goes back; or click or drag a team that can get here.");
    drag(0, 126);
    EXPECT_EQ(said(16), "Click or press Space to send R1T0 on, drag it further; right click or Delete takes it away."
                        " 1 and 2 fill in the open games, one after another.");
    EXPECT_EQ(said(126), "R1T0 wins the tournament. A right click or Delete takes the team away.");
    rightPress(16);
    EXPECT_EQ(said(126), "No team picked yet: click or drag a team that can get here.");
    setScoreListOpen(true);
    EXPECT_EQ(said(0), "The list of scores is open; close it to change the bracket.");
    setScoreListOpen(false);
    EXPECT_EQ(said(0), forward);
}

TEST_F(BoardScreenWords, AMarkedPlaceSaysWhatItIsWorth)
{
    loadFinalized();
    drag(0, 24); // the winner of its first two games
    Entry results = emptyBracket("A", "FinalResults", "");
    results.picks.put(Position{16}, "R1T0");
    results.picks.put(Position{24}, "R1T3");
    putSelection(file_name::kResults, results);
    open(putSelection("Smith_JS.THC", {board->bracket(), "JS", "Smith", "150", {}}));
    score();
    const auto said = [&](std::size_t position) { return board->lblRegion[position].explanation; };
    EXPECT_EQ(said(16), "A right pick: 1 point earned."); // the default payoffs: 1, 2, 4, 8, 12, 16
    EXPECT_EQ(said(24), "A wrong pick: R1T3 won, 2 points lost.");
    EXPECT_EQ(said(25), "No pick: 2 points lost.");
    EXPECT_EQ(said(126), "No pick: 16 points lost.");
    EXPECT_EQ(said(0), "The picks are marked; choose Default Colors to change them again.");
    EXPECT_EQ(board->lblResult[0].explanation, said(16));
    EXPECT_EQ(board->lblRegion[16].spokenName, "West, winner of first round, game 1, = right pick: R1T0");
    board->cmdDefaultColors.click();
    EXPECT_EQ(said(25), "No team picked yet: click or drag a team that can get here.");
}

TEST_F(BoardScreenWords, ArrowKeysFollowThePictureAndSpaceAdvances)
{
    loadFinalized();
    const auto press = [&](ui::Key which) { return key(*board->focused, {which}); };
    board->focused = &board->lblRegion[0];
    EXPECT_TRUE(press(ui::Key::Down));
    EXPECT_EQ(board->focused, &board->lblRegion[1]);
    EXPECT_TRUE(key(board->lblRegion[1], {ui::Key::Character, ' '}));
    EXPECT_EQ(at(16), "R1T1");
    EXPECT_TRUE(press(ui::Key::Right));
    EXPECT_EQ(board->focused, &board->lblRegion[16]);
    EXPECT_TRUE(press(ui::Key::Delete));
    EXPECT_EQ(at(16), "");
    EXPECT_TRUE(press(ui::Key::Left));
    EXPECT_TRUE(press(ui::Key::Up));
    EXPECT_EQ(board->focused, &board->lblRegion[0]);
}

TEST_F(BoardScreenWords, LeavesAllOtherKeysAlone)
{
    loadFinalized();
    EXPECT_FALSE(key(board->lblRegion[0], {ui::Key::Character, 'x'}));
    EXPECT_FALSE(key(board->lblRegion[0], {ui::Key::Character, ' ', true, false})) << "a shortcut";
    EXPECT_FALSE(key(board->lblRegion[0], {ui::Key::Character, ' ', false, true}));
    EXPECT_FALSE(key(board->lblRegion[0], {ui::Key::Tab}));
    EXPECT_FALSE(key(board->txtPlayerName, {ui::Key::Character, ' '}));
    EXPECT_FALSE(key(board->txtPlayerName, {ui::Key::Delete}));
    EXPECT_EQ(at(16), "");
}

} // namespace tallyhoop::test
