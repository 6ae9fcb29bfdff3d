// tests/screens/money/final_sheet_output_test.cpp - the final sheet in a file, on paper and in the preview.
#include "base/lines.h"
#include "screens/money/money_fixture.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

class FinalSheetOutput : public MoneyFixture
{
protected:
    void openWithPrizes()
    {
        putFile({"Entry fee,,10.01", "Kept back,,10 %", "Prize,1,60 %", "Prize,2,30 %", "Prize,3,10 %"});
        open();
    }
};

TEST_F(FinalSheetOutput, IsPossibleFromTheLastFourOn)
{
    open();
    for (const ui::Command* command : {&screen->cmdFinalSheet, &screen->cmdPrint, &screen->cmdPreview})
        EXPECT_TRUE(command->enabled) << command->name;
    opened.pool.results->picks.clear(regionWinner(kEast));
    open();
    for (const ui::Command* command : {&screen->cmdFinalSheet, &screen->cmdPrint, &screen->cmdPreview})
        EXPECT_FALSE(command->enabled) << command->name;
    opened.pool.results.reset();
    EXPECT_FALSE(open().cmdFinalSheet.enabled);
}

TEST_F(FinalSheetOutput, IsWrittenAsItIsOnTheScreen)
{
    openWithPrizes();
    screen->cmdFinalSheet.click();
    EXPECT_EQ(news(), "Written to the program's folder: FINAL.TXT.");
    // As in the approved sheet; what is typed and not saved counts, too.
    EXPECT_THAT(linesOf(scratch.get("FINAL.TXT")), Contains("    1   AB, Adams       128        150  21.63"));
    type(screen->txtPrize[0], "12");
    screen->cmdFinalSheet.click();
    EXPECT_THAT(linesOf(scratch.get("FINAL.TXT")), Contains("    1   AB, Adams       128        150  12.00"));
    EXPECT_TRUE(screen->unsaved);
}

TEST_F(FinalSheetOutput, IsPrintedInColumns)
{
    openWithPrizes();
    screen->cmdPrint.click();
    ASSERT_EQ(platform.printer.texts.size(), 1u);
    EXPECT_EQ(platform.printer.texts[0].title, "Final Sheet");
    EXPECT_EQ(platform.printer.texts[0].font.name, "Courier New");
    EXPECT_EQ(platform.printer.texts[0].orientation, ui::Orientation::Portrait);
    EXPECT_THAT(platform.printer.texts[0].lines, Contains("    1   AB, Adams       128        150  21.63"));
    EXPECT_EQ(platform.printer.printerDialogs, 1);
    EXPECT_EQ(news(), "Printed Final Sheet.");
    EXPECT_FALSE(scratch.has("FINAL.TXT"));

    platform.printer.dialogAccepted = false;
    screen->cmdPrint.click();
    EXPECT_EQ(platform.printer.texts.size(), 1u);
}

TEST_F(FinalSheetOutput, IsPreviewed)
{
    openWithPrizes();
    screen->cmdPreview.click();
    ASSERT_EQ(platform.printer.previewedTexts.size(), 1u);
    EXPECT_EQ(platform.printer.previewedTexts[0].title, "Final Sheet");
    EXPECT_EQ(platform.printer.printerDialogs, 0);
}

TEST_F(FinalSheetOutput, SaysWhoIsMissing)
{
    opened.missing = 1;
    opened.pool.trouble = {Failure{"Gone_G.THC"}};
    open();
    EXPECT_THAT(platform.dialogs.shown.at(0).text, HasSubstr("1 player is missing: the selection cannot be read"));
    screen->cmdFinalSheet.click();
    EXPECT_THAT(linesOf(scratch.get("FINAL.TXT")), Contains("1 player is missing: the selection cannot be read"));
}

TEST_F(FinalSheetOutput, SaysUntilTheSaveThatThePrizesWereNotReadWhole)
{
    constexpr const char* kRemark = "PRIZES.CSV could not be read whole: these prizes are not final";
    putFile({"Entry fee,,10.00", "Prize,first,60 %"});
    open();
    screen->cmdFinalSheet.click();
    EXPECT_THAT(linesOf(scratch.get("FINAL.TXT")),
                IsSupersetOf({kRemark, "PRIZES.CSV: Row 2 is not understood: Prize, first, 60 %"}));
    screen->cmdSave.click();
    screen->cmdFinalSheet.click();
    EXPECT_THAT(linesOf(scratch.get("FINAL.TXT")), Not(Contains(kRemark)));
}

TEST_F(FinalSheetOutput, IsNotMadeOfWhatCannotBeUsed)
{
    open();
    type(screen->txtEntryFee, "ten");
    screen->cmdFinalSheet.click();
    screen->cmdPreview.click();
    EXPECT_EQ(platform.dialogs.captionsShown(), (std::vector<std::string>{"Money", "Money"}));
    EXPECT_FALSE(scratch.has("FINAL.TXT"));
    EXPECT_EQ(platform.printer.previews, 0);
}

TEST_F(FinalSheetOutput, SaysWhyItCannotBeMade)
{
    opened.pool.entries[0].finalPoints = "99999";
    open();
    screen->cmdFinalSheet.click();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "Tallyhoop - frmMoney, Final Sheet");
    EXPECT_THAT(platform.dialogs.shown[0].text, HasSubstr("Adams_AB.THC"));
}

TEST_F(FinalSheetOutput, SaysThatItCannotBeWritten)
{
    open();
    std::filesystem::create_directory(scratch.path() / "FINAL.TXT");
    screen->cmdFinalSheet.click();
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_THAT(platform.dialogs.shown[0].text, HasSubstr("FINAL.TXT could not be written.\r\n"));
    EXPECT_EQ(news(), "");
}

TEST_F(FinalSheetOutput, SaysThatTheBoardHasNewerResults)
{
    opened.unsavedResults = true;
    EXPECT_EQ(open().status, "The results as saved, not as shown on the board");
}

} // namespace
} // namespace tallyhoop::test
