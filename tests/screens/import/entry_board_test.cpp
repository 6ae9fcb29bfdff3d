// tests/screens/import/entry_board_test.cpp - which picks of an entry are marked, and what is said of them.
#include "screens/import/entry_board.h"

#include "fakes/scratch_folder.h"
#include "intake/field_2000.h"
#include "ui/screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

struct EntryBoardTest : testing::Test {
    ui::Screen screen{"frmTest", "Test"};
    EntryBoard board{&screen};
    ScratchFolder scratch;
    Field field = field2000();

    void show(Entry entry)
    {
        const Review review = reviewOf({HandedIn{std::move(entry), {}, {}, {}, true}}, scratch.folder(), field);
        board.showEntry(field, &review.rows.front());
    }

    std::vector<Position> marked() const
    {
        std::vector<Position> places;
        for (const Position position : allPositions())
            if (board.lblRegion[position].background)
                places.push_back(position);
        return places;
    }
};

TEST_F(EntryBoardTest, ShowsTheFieldWhenNoEntryIsChosen)
{
    board.showEntry(field, nullptr);
    EXPECT_EQ(board.lblRegion[Position{0}].text, "Arizona");
    EXPECT_EQ(board.lblRegion[kChampion].text, "");
    EXPECT_EQ(board.lblRegionTitle[0].text, "West");
}

TEST_F(EntryBoardTest, ShowsThePicksWithoutMarks)
{
    show(upperEntry());
    EXPECT_EQ(board.lblRegion[kChampion].text, "Duke");
    EXPECT_EQ(board.lblRegion[Position{16}].spokenName, "West, winner of first round, game 1: Arizona");
    EXPECT_THAT(marked(), IsEmpty());
}

TEST_F(EntryBoardTest, MarksATeamThatDoesNotPlayInTheGame)
{
    Entry entry = upperEntry();
    entry.picks.put(Position{16}, "Duke");
    show(entry);
    // Arizona, which lost its first game, is still picked in the second: there it was not to be.
    EXPECT_THAT(marked(), ElementsAre(Position{16}, Position{24}));
    EXPECT_THAT(board.lblRegion[Position{16}].spokenName, EndsWith(": Duke, does not play in this game"));
    EXPECT_EQ(board.lblRegion[Position{16}].explanation, "Marked: does not play in this game.");
}

TEST_F(EntryBoardTest, MarksATeamOfAnotherField)
{
    Entry entry = upperEntry();
    entry.picks.put(Position{1}, "Harvard");
    show(entry);
    EXPECT_THAT(marked(), ElementsAre(Position{1}));
    EXPECT_THAT(board.lblRegion[Position{1}].spokenName, EndsWith(", the field has another team here"));
}

TEST_F(EntryBoardTest, MarksWhatDiffersFromTheSelectionThatItReplaces)
{
    Entry here = upperEntry("Ann Smith", "AS");
    here.picks.put(kChampion, "Arizona");
    here.picks.clear(Position{17});
    scratch.put("Ann Smith_AS.THC", bytesToWrite({here, {}, {}, {}, true}));
    show(upperEntry("Ann Smith", "AS"));
    EXPECT_THAT(marked(), ElementsAre(Position{17}, kChampion));
    EXPECT_THAT(board.lblRegion[kChampion].spokenName, EndsWith(": Duke, in the selection that is here: Arizona"));
    EXPECT_THAT(board.lblRegion[Position{17}].spokenName, EndsWith(", open in the selection that is here"));
}

TEST_F(EntryBoardTest, AnIncompleteEntryHasNoMarks)
{
    Entry entry = upperEntry();
    entry.picks.clear(kChampion);
    show(entry);
    EXPECT_THAT(marked(), IsEmpty());
    EXPECT_EQ(board.lblRegion[kChampion].explanation, "This game has no pick.");
}

TEST_F(EntryBoardTest, AnOpenGameOfARefusedEntryHasNoMark)
{
    Entry entry = upperEntry("Ann Smith", "AS", "12");
    entry.picks.clear(kChampion);
    show(entry);
    EXPECT_THAT(marked(), IsEmpty());
}

TEST_F(EntryBoardTest, TheMarksOfAnEntryGoAwayWithIt)
{
    Entry entry = upperEntry();
    entry.picks.put(kChampion, "Harvard");
    show(entry);
    ASSERT_THAT(marked(), ElementsAre(kChampion));
    show(upperEntry());
    EXPECT_THAT(marked(), IsEmpty());
    EXPECT_FALSE(board.lblRegion[kChampion].colour);
}

TEST_F(EntryBoardTest, ATeamOfAThousandLinesIsOneOfModerateLength)
{
    Entry entry = upperEntry();
    entry.picks.put(Position{16}, std::string(5000, '\n') + "X");
    show(entry);
    EXPECT_EQ(board.lblRegion[Position{16}].text, std::string(200, ' ') + "...");
}

} // namespace
} // namespace tallyhoop::test
