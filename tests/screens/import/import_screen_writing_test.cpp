// tests/screens/import/import_screen_writing_test.cpp - what Import writes, says, and leaves in the list.
#include "base/text.h"
#include "files/player_names_file.h"
#include "screens/import/import_fixture.h"

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

struct ImportWriting : ImportTest {
    std::vector<std::string> players() const
    {
        std::vector<std::string> names;
        for (const PlayerRecord& record : readPlayerNames(folder))
            names.push_back(trimTrailingBlanks(record.name));
        return names;
    }
};

TEST_F(ImportWriting, WritesWhatIsTickedAndEntersThePlayers)
{
    open();
    paste(formText(upperEntry("Al", "a")) + formText(upperEntry("Bo", "B")) + formText(upperEntry("Cy", "C")));
    reach(1);
    pressSpace();
    click(screen->cmdImport);
    EXPECT_EQ(pool.get("Al_a.THC"), saved(upperEntry("Al", "A")));
    EXPECT_TRUE(pool.has("Cy_C.THC"));
    EXPECT_FALSE(pool.has("Bo_B.THC"));
    EXPECT_THAT(players(), ElementsAre("Al,a", "Cy,C"));
    EXPECT_EQ(platform.progress.begun, platform.progress.ended);
}

TEST_F(ImportWriting, EndsWithOneSummaryThatCanBeCopied)
{
    open();
    paste(formText(upperEntry("Al", "A")) + formText(upperEntry("Bo", "B")));
    click(screen->cmdImport);
    EXPECT_THAT(platform.dialogs.shown, IsEmpty());
    EXPECT_TRUE(screen->txtSummary.visible);
    EXPECT_EQ(screen->txtSummary.text,
              "2 of 2 entries imported.\r\n  2 new\r\n\r\n2 players were added to the player list.");
    EXPECT_EQ(screen->news().text, "2 of 2 entries imported.");
    EXPECT_EQ(screen->focused, &screen->txtSummary);
    click(screen->cmdCopy);
    EXPECT_EQ(platform.clipboard.text, screen->txtSummary.text);
}

TEST_F(ImportWriting, WhatWasWrittenLeavesTheList)
{
    open();
    paste(formText(upperEntry("Al", "A")) + formText(incomplete(upperEntry("Bo", "B"))));
    click(screen->cmdImport);
    EXPECT_THAT(column(EntryColumn::Name), ElementsAre("Bo"));
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("not ticked"));
    EXPECT_EQ(screen->lblEntry.text, "Row 1: Bo");
    EXPECT_FALSE(screen->cmdImport.enabled);
    EXPECT_TRUE(screen->cmdTickAll.enabled);
}

TEST_F(ImportWriting, AnEarlierEntryDoesNotReplaceTheLaterOneAfterwards)
{
    open();
    paste(formText(upperEntry()) + formText(withChampion(upperEntry(), "Arizona")));
    click(screen->cmdImport);
    EXPECT_THAT(column(EntryColumn::Words), ElementsAre("Replaces (1 pick differs)."));
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("not ticked"));
    EXPECT_FALSE(screen->cmdImport.enabled);
}

TEST_F(ImportWriting, StoppingKeepsTheRestInTheListAndTicked)
{
    open();
    std::string text;
    for (int i = 0; i < 100; ++i)
        text += formText(upperEntry("P" + std::to_string(i), "X"));
    paste(text);
    platform.progress.cancelAt = 1;
    click(screen->cmdImport);
    const std::size_t written = folder.files(file_name::kSelectionExtension).size();
    EXPECT_LT(written, 100u);
    EXPECT_EQ(screen->grdEntries.rows.size(), 100 - written);
    EXPECT_THAT(column(EntryColumn::Tick), testing::Each("ticked"));
    EXPECT_THAT(screen->txtSummary.text, HasSubstr("The import was stopped before."));
    platform.progress.cancelAt.reset();
    click(screen->cmdImport);
    EXPECT_EQ(folder.files(file_name::kSelectionExtension).size(), 100u);
    EXPECT_THAT(screen->grdEntries.rows, IsEmpty());
}

TEST_F(ImportWriting, WhatSomebodyElseHasChangedMeanwhileStaysAndIsSaid)
{
    pool.put("Al_A.THC", saved(upperEntry("Al", "A", "99")));
    open();
    paste(formText(upperEntry("Al", "A")));
    const std::string theirs = saved(withChampion(upperEntry("Al", "A"), "Arizona"));
    pool.put("Al_A.THC", theirs);
    click(screen->cmdImport);
    EXPECT_EQ(pool.get("Al_A.THC"), theirs);
    EXPECT_THAT(screen->txtSummary.text, HasSubstr("Al_A.THC: The file has been changed since the review."));
    EXPECT_THAT(column(EntryColumn::Words), ElementsAre("Replaces (1 pick differs)."));
    click(screen->cmdImport);
    EXPECT_EQ(pool.get("Al_A.THC"), saved(upperEntry("Al", "A"))) << "now that it was seen";
}

TEST_F(ImportWriting, TellsTheBoardWhichSelectionsWereWritten)
{
    open();
    paste(formText(upperEntry("Al", "A")) + formText(incomplete(upperEntry("Bo", "B"))));
    click(screen->cmdImport);
    EXPECT_THAT(board.written, ElementsAre(pool.path() / "Al_A.THC"));
}

TEST_F(ImportWriting, TheSummarySaysThatTheBoardHoldsUnsavedChanges)
{
    board.file = pool.put("Al_A.THC", saved(upperEntry("Al", "A", "99")));
    board.unsavedChanges = true;
    open();
    paste(formText(upperEntry("Al", "A")));
    click(screen->cmdImport);
    EXPECT_THAT(screen->txtSummary.text,
                EndsWith("\r\n\r\nAl_A.THC is open on the board with changes that are not saved: they are still there. "
                         "Saving them asks before it replaces what was imported."));
    paste(formText(upperEntry("Bo", "B")));
    click(screen->cmdImport);
    EXPECT_THAT(screen->txtSummary.text, Not(HasSubstr("board")));
}

TEST_F(ImportWriting, TheSummarySaysNothingOfABoardWithoutChanges)
{
    board.file = pool.put("Al_A.THC", saved(upperEntry("Al", "A", "99")));
    open();
    paste(formText(upperEntry("Al", "A")));
    click(screen->cmdImport);
    EXPECT_THAT(screen->txtSummary.text, Not(HasSubstr("board")));
}

TEST_F(ImportWriting, AFaultyPlayerListStaysAndTheSummarySaysSo)
{
    pool.put(file_name::kPlayerNames, "saved by a spreadsheet\r\n");
    open();
    paste(formText(upperEntry("Al", "A")));
    click(screen->cmdImport);
    EXPECT_TRUE(pool.has("Al_A.THC"));
    EXPECT_EQ(pool.get(file_name::kPlayerNames), "saved by a spreadsheet\r\n");
    EXPECT_THAT(screen->txtSummary.text, HasSubstr("No player was added to the player list."));
}

} // namespace
} // namespace tallyhoop::test
