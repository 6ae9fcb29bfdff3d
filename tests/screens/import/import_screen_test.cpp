// tests/screens/import/import_screen_test.cpp - ticks, the chosen entry, and leaving.
#include "screens/import/import_fixture.h"

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

using ImportReview = ImportTest;

TEST_F(ImportReview, SpaceTicksTheCurrentEntryInAnyColumn)
{
    open();
    paste(formText(upperEntry("Al", "A")) + formText(upperEntry("Bo", "B")));
    reach(1, EntryColumn::Words);
    pressSpace();
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("ticked", "not ticked"));
    EXPECT_EQ(screen->news().text, "Bo: not ticked.");
    EXPECT_EQ(screen->status, "1 of 2 ticked");
    pressSpace();
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("ticked", "ticked"));
    EXPECT_EQ(screen->news().text, "Bo: ticked.");
}

TEST_F(ImportReview, APressOnTheBoxTicksAndElsewhereOnlyChooses)
{
    open();
    paste(formText(upperEntry("Al", "A")) + formText(upperEntry("Bo", "B")));
    press(1, EntryColumn::Name);
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("ticked", "ticked"));
    EXPECT_EQ(screen->lblEntry.text, "Row 2: Bo");
    press(0, EntryColumn::Tick);
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("not ticked", "ticked"));
}

TEST_F(ImportReview, ARefusedEntryCannotBeTickedAndSaysEveryReason)
{
    open();
    Entry bad = upperEntry("Al", "A", "12");
    bad.picks.put(kChampion, "Harvard");
    choose({inbox.put("bad.THC", selectionFile(bad))});
    pressSpace();
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre(""));
    EXPECT_THAT(screen->news().text, HasSubstr("Al is refused and cannot be ticked: "));
    EXPECT_THAT(screen->txtDetails.text, HasSubstr("\r\n- The predicted total \"12\" is not a number from 50 to 250."));
    EXPECT_THAT(screen->txtDetails.text, HasSubstr("\r\n- Unknown team: \"Harvard\", picked in 1 game."));
    EXPECT_THAT(screen->grdEntries.muted, ElementsAre(true));
    click(screen->cmdTickAll);
    EXPECT_FALSE(screen->cmdImport.enabled);
}

TEST_F(ImportReview, IncompleteEntriesAreTickedByThePersonOnly)
{
    open();
    paste(formText(incomplete(upperEntry("Al", "A"))) + formText(upperEntry("Bo", "B")));
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("not ticked", "ticked"));
    EXPECT_THAT(column(EntryColumn::Picks), ElementsAre("62 of 63", "63 of 63"));
    click(screen->cmdTickAll);
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("not ticked", "ticked"));
    reach(0);
    pressSpace();
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("ticked", "ticked"));
    click(screen->cmdUntickAll);
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("not ticked", "not ticked"));
}

TEST_F(ImportReview, TickingAllSaysHowManyDoubtfulEntriesWereLeftOut)
{
    pool.put("Al_A.THC", "damaged");
    open();
    paste(formText(upperEntry("Al", "A")) + formText(upperEntry("Bo", "B")));
    click(screen->cmdTickAll);
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("not ticked", "ticked"));
    EXPECT_EQ(screen->news().text, "1 entry is ticked. 1 was left out, being doubtful: its row says why.");
    reach(0);
    pressSpace();
    click(screen->cmdTickAll);
    EXPECT_EQ(screen->news().text, "2 entries are ticked.");
}

TEST_F(ImportReview, LateEntriesAreSaidInTheHeadAndMayBeTicked)
{
    putResults(); // 32 games
    open();
    paste(formText(upperEntry("Al", "A")));
    EXPECT_THAT(screen->lblCounts.text, EndsWith("They are late: the results of 32 games are entered already."));
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("not ticked"));
    click(screen->cmdTickAll);
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("ticked"));
    EXPECT_TRUE(screen->cmdImport.enabled);
}

TEST_F(ImportReview, ATickSaysThatItIsInsteadOfAnother)
{
    open();
    paste(formText(upperEntry()) + formText(withChampion(upperEntry(), "Arizona")));
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("not ticked", "ticked")) << "the later one";
    reach(0);
    pressSpace();
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("ticked", "not ticked"));
    EXPECT_EQ(screen->news().text, "Ann Smith: ticked, instead of another entry for the same file.");
}

TEST_F(ImportReview, ShowsTheBracketOfTheChosenEntry)
{
    open();
    paste(formText(upperEntry("Al", "A")) + formText(withChampion(upperEntry("Bo", "B"), "Arizona")));
    EXPECT_EQ(screen->lblRegion[kChampion].text, "Duke");
    reach(1);
    EXPECT_EQ(screen->lblRegion[kChampion].text, "Arizona");
    EXPECT_EQ(screen->txtDetails.text, "New.\r\nName: Bo, initials: B, total: 142, picks: 63 of 63.\r\n"
                                       "E-mail: ann@example.org.\r\nFile: Bo_B.THC.\r\nPasted text, entry 2.");
}

TEST_F(ImportReview, TheArrowKeysLeadAlongTheBracket)
{
    open();
    paste(formText(upperEntry()));
    EXPECT_TRUE(key(screen->lblRegion[Position{0}], {.key = ui::Key::Down}));
    EXPECT_EQ(screen->focused, &screen->lblRegion[Position{1}]);
    screen->gotFocus(*screen->focused);
    EXPECT_TRUE(screen->lblRegion[Position{1}].tabStop);
    EXPECT_FALSE(screen->lblRegion[Position{0}].tabStop);
    key(screen->lblRegion[Position{0}], {.key = ui::Key::Character, .character = ' '});
    EXPECT_EQ(screen->lblRegion[kChampion].text, "Duke") << "nothing can be changed";
}

TEST_F(ImportReview, SaysThatTheBoardHoldsUnsavedChangesOfWhatWouldBeReplaced)
{
    board.file = pool.put("Ann Smith_AS.THC", saved(upperEntry()));
    board.unsavedChanges = true;
    open();
    paste(formText(withChampion(upperEntry("Ann Smith", "AS"), "Arizona")) + formText(upperEntry("Bo", "B")));
    EXPECT_THAT(
        column(EntryColumn::Words),
        ElementsAre("Replaces (1 pick differs). It is open on the board with changes that are not saved.", "New."));
    reach(0);
    EXPECT_THAT(screen->txtDetails.text, HasSubstr("It is open on the board with changes that are not saved."));
    board.unsavedChanges = false;
    paste(formText(upperEntry("Cy", "C")));
    EXPECT_EQ(column(EntryColumn::Words).front(), "Replaces (1 pick differs).");
}

TEST_F(ImportReview, InDemoModeEveryEntryIsRefused)
{
    pool.put(file_name::kSettings, "1\r\n");
    open();
    paste(formText(upperEntry()));
    EXPECT_THAT(column(EntryColumn::Words), ElementsAre("Refused: The demo pool takes no new selections."));
}

TEST_F(ImportReview, LeavingAsksAsLongAsSomethingIsTicked)
{
    open();
    paste(formText(upperEntry()));
    platform.dialogs.answer(ui::Answer::Cancel);
    click(screen->cmdExit);
    EXPECT_THAT(screens.unloads, IsEmpty());
    platform.dialogs.answer(ui::Answer::Ok);
    screen->closeRequested();
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Import));
    EXPECT_THAT(platform.dialogs.captionsShown(), ElementsAre("ENTRIES NOT IMPORTED", "ENTRIES NOT IMPORTED"));
}

TEST_F(ImportReview, LeavingAsksAboutATextThatWasNotRead)
{
    open();
    screen->txtPasted.text = "Tallyhoop bracket:";
    platform.dialogs.answer(ui::Answer::Cancel);
    screen->closeRequested();
    EXPECT_THAT(screens.unloads, IsEmpty());
}

TEST_F(ImportReview, LeavingAsksNothingWhenNothingIsLost)
{
    open();
    paste(formText(upperEntry()));
    click(screen->cmdUntickAll);
    click(screen->cmdExit);
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Import));
}

} // namespace
} // namespace tallyhoop::test
