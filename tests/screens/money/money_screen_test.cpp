// tests/screens/money/money_screen_test.cpp - fees and prizes from the file to the screen and back.
#include "screens/money/money_fixture.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MoneyScreenTest : public MoneyFixture
{
};

TEST_F(MoneyScreenTest, OpensEmptyInAPoolWithoutMoney)
{
    open();
    EXPECT_EQ(screen->txtEntryFee.text, "");
    EXPECT_EQ(screen->txtPrize[0].text, "");
    EXPECT_TRUE(screen->optTies[TieRule::Nearest].selected);
    EXPECT_FALSE(screen->unsaved);
    EXPECT_FALSE(screen->lblMorePrizes.visible);
    EXPECT_EQ(screen->lblPurse.text, "Fees 0.00: kept back 0.00, prizes 0.00, left 0.00.");
    EXPECT_EQ(screen->lblFees.text, "0 of 4 players ticked; there is no entry fee.");
    EXPECT_EQ(screen->grdFees.rows.size(), 4u);
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_EQ(screen->helpTopic(), "money");
}

TEST_F(MoneyScreenTest, ShowsWhatTheFileHolds)
{
    putFile({"Item,Which,Value", "Entry fee,,10.00", "Kept back,,10 %", "Ties,,Not over", "Prize,1,60 %",
             "Prize,3,5.00", "Paid,Baker_C.THC,Yes"});
    open();
    EXPECT_EQ(screen->txtEntryFee.text, "10.00");
    EXPECT_EQ(screen->txtKeptBack.text, "10 %");
    EXPECT_EQ(screen->txtPrize[0].text, "60 %");
    EXPECT_EQ(screen->txtPrize[1].text, "");
    EXPECT_EQ(screen->txtPrize[2].text, "5.00");
    EXPECT_TRUE(screen->optTies[TieRule::NotOver].selected);
    EXPECT_FALSE(screen->unsaved);
    // 40.00 - 4.00 - 5.00 = 31.00 are left for shares, 60 % of them are 18.60.
    EXPECT_EQ(screen->lblAmount[0].text, "18.60");
    EXPECT_EQ(screen->lblAmount[1].text, "");
    EXPECT_EQ(screen->lblAmount[2].text, "5.00");
    EXPECT_EQ(screen->lblPurse.text, "Fees 40.00: kept back 4.00, prizes 23.60, left 12.40.");
    EXPECT_EQ(screen->lblFees.text, "1 of 4 players paid: 10.00 received, 30.00 owed.");
    EXPECT_THAT(screen->grdFees.rows[0], ElementsAre("not ticked", "AB, Adams", "Adams_AB.THC", "10.00"));
    EXPECT_THAT(screen->grdFees.rows[1], ElementsAre("ticked", "C, Baker", "Baker_C.THC", ""));
    EXPECT_THAT(screen->grdFees.muted, ElementsAre(false, true, false, false));
}

TEST_F(MoneyScreenTest, SavesWhatIsOnTheScreen)
{
    open();
    type(screen->txtEntryFee, "10");
    type(screen->txtKeptBack, "2,50");
    type(screen->txtPrize[0], "75%");
    type(screen->txtPrize[2], " 5 ");
    ui::selectOption(screen->optTies, 2);
    screen->grdFees.cellPressed(3, 0);
    screen->showState();
    EXPECT_TRUE(screen->unsaved);
    EXPECT_EQ(news(), "Dunn has paid.");

    screen->cmdSave.click();

    EXPECT_EQ(scratch.get("PRIZES.CSV"),
              crlf({"Item,Which,Value", "Entry fee,,10.00", "Kept back,,2.50", "Ties,,Share", "Prize,1,75 %",
                    "Prize,2,0.00", "Prize,3,5.00", "Paid,Dunn_EF.THC,Yes"}));
    EXPECT_FALSE(screen->unsaved);
    EXPECT_EQ(news(), "Fees and prizes are saved.");
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(MoneyScreenTest, KeepsWhatItDoesNotShow)
{
    // Given: prizes for the first and the twelfth place, of which ten have boxes, and a player whose selection is gone.
    putFile({"Prize,1,5.00", "Prize,12,1.00", "Paid,Gone_G.THC,Yes"});
    open();
    EXPECT_TRUE(screen->lblMorePrizes.visible);
    EXPECT_EQ(screen->lblMorePrizes.text, "and 1 prize for further places, as in PRIZES.CSV");
    type(screen->txtPrize[0], "6");
    screen->cmdSave.click();
    const Read<Prizes> saved = readPrizes(folder);
    EXPECT_EQ(saved.value.table.prizes.size(), 12u);
    EXPECT_EQ(saved.value.table.prizes[0], Prize{Money{600}});
    EXPECT_EQ(saved.value.table.prizes[11], Prize{Money{100}});
    EXPECT_THAT(saved.value.paid, ElementsAre("Gone_G.THC"));
}

TEST_F(MoneyScreenTest, SaysWhatCannotBeUsedWhereItIs)
{
    open();
    type(screen->txtPrize[4], "a lot");
    EXPECT_EQ(screen->lblPurse.text,
              "The prize for place 5 has to be an amount, such as 12.50, or a share, such as 60 %.");
    type(screen->txtKeptBack, "-1");
    EXPECT_EQ(screen->lblPurse.text, "What is kept back has to be an amount, such as 12.50, or a share, such as 5 %.");
    type(screen->txtEntryFee, "5 %");
    EXPECT_EQ(screen->lblPurse.text, "The entry fee has to be an amount, such as 10 or 12.50.");
    EXPECT_TRUE(screen->unsaved);

    screen->focused = &screen->cmdSave;
    screen->cmdSave.click();

    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].text, "The entry fee has to be an amount, such as 10 or 12.50.");
    EXPECT_EQ(platform.dialogs.shown[0].helpTopic, "money");
    EXPECT_EQ(screen->focused, &screen->txtEntryFee);
    EXPECT_FALSE(scratch.has("PRIZES.CSV"));
}

TEST_F(MoneyScreenTest, RefusesSharesOfMoreThanEverything)
{
    open();
    type(screen->txtPrize[0], "60 %");
    type(screen->txtPrize[1], "50 %");
    EXPECT_EQ(screen->lblPurse.text, "The shares of the prizes come to 110 %: together they can be 100 % at most.");
    EXPECT_EQ(screen->lblAmount[0].text, "");
    screen->cmdSave.click();
    EXPECT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(screen->focused, &screen->txtPrize[1]);
    EXPECT_FALSE(scratch.has("PRIZES.CSV"));
}

TEST_F(MoneyScreenTest, TicksByClickBySpaceAndAllAtOnce)
{
    open();
    screen->grdFees.cellPressed(0, 1); // on the name
    screen->showState();
    EXPECT_EQ(screen->grdFees.rows[0][0], "not ticked");
    EXPECT_FALSE(screen->cmdUntickAll.enabled);

    const ui::KeyPress space{.key = ui::Key::Character, .character = ' '};
    EXPECT_FALSE(screen->keyPressed(screen->grdFees, space)) << "nowhere yet";
    screen->grdFees.current = ui::GridCell{2, 1};
    EXPECT_TRUE(screen->keyPressed(screen->grdFees, space));
    EXPECT_FALSE(screen->keyPressed(screen->txtEntryFee, space)) << "a blank in a box";
    screen->showState();
    EXPECT_EQ(screen->grdFees.rows[2][0], "ticked");
    EXPECT_EQ(news(), "Clark has paid.");
    EXPECT_TRUE(screen->keyPressed(screen->grdFees, space));
    EXPECT_EQ(news(), "Clark has not paid.");

    screen->cmdTickAll.click();
    EXPECT_EQ(screen->lblFees.text, "4 of 4 players ticked; there is no entry fee.");
    EXPECT_FALSE(screen->cmdTickAll.enabled);
    screen->cmdUntickAll.click();
    EXPECT_EQ(screen->lblFees.text, "0 of 4 players ticked; there is no entry fee.");
    EXPECT_FALSE(screen->unsaved) << "as in the file again";
}

TEST_F(MoneyScreenTest, AsksBeforeChangesAreForgotten)
{
    open();
    screen->cmdExit.click();
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Money));
    type(screen->txtEntryFee, "10");
    platform.dialogs.answer(ui::Answer::Cancel);
    screen->cmdExit.click();
    EXPECT_EQ(screens.unloads.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown.back().caption, "MONEY NOT SAVED");
    EXPECT_TRUE(platform.dialogs.shown.back().refusalIsDefault);
    platform.dialogs.answer(ui::Answer::Ok);
    screen->closeRequested();
    EXPECT_EQ(screens.unloads.size(), 2u);
    EXPECT_FALSE(scratch.has("PRIZES.CSV"));
}

TEST_F(MoneyScreenTest, KeepsADamagedFileBeforeItIsReplaced)
{
    putFile({"Entry fee,,10.00", "Prize,first,60 %", "Ties,,closest"});
    open();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "Money");
    EXPECT_EQ(platform.dialogs.shown[0].text, "PRIZES.CSV: Row 2 is not understood:\r\nPrize, first, 60 %\r\n"
                                              "PRIZES.CSV: Row 3 is not understood:\r\nTies, , closest\r\n \r\n"
                                              "What could be read is on the screen.");
    EXPECT_EQ(screen->txtEntryFee.text, "10.00");

    screen->cmdSave.click();

    EXPECT_THAT(readPrizes(folder).value.table.prizes, IsEmpty());
    std::string kept;
    for (const auto& entry : std::filesystem::recursive_directory_iterator{scratch.path()})
        if (entry.path().parent_path() != scratch.path() && entry.is_regular_file())
            kept = entry.path().filename().string();
    EXPECT_EQ(kept, "PRIZES.CSV");
}

TEST_F(MoneyScreenTest, AsksBeforeSomebodyElsesChangesAreReplaced)
{
    open();
    type(screen->txtEntryFee, "10");
    putFile({"Entry fee,,20.00"});
    platform.dialogs.answer(ui::Answer::No);
    screen->cmdSave.click();
    EXPECT_EQ(scratch.get("PRIZES.CSV"), crlf({"Entry fee,,20.00"}));
    EXPECT_EQ(news(), "Not saved.");
    EXPECT_TRUE(screen->unsaved);
}

TEST_F(MoneyScreenTest, OpensWithoutPlayers)
{
    opened.pool.entries.clear();
    opened.pool.results.reset();
    open();
    EXPECT_THAT(screen->grdFees.rows, IsEmpty());
    EXPECT_EQ(screen->lblFees.text, "There are no players yet.");
    EXPECT_FALSE(screen->cmdTickAll.enabled);
    EXPECT_FALSE(screen->cmdFinalSheet.enabled);
    const ui::KeyPress space{.key = ui::Key::Character, .character = ' '};
    screen->grdFees.current = ui::GridCell{0, 0};
    EXPECT_FALSE(screen->keyPressed(screen->grdFees, space));
}

} // namespace
} // namespace tallyhoop::test
