// tests/screens/outlook/outlook_output_test.cpp - what goes out of the outlook, and what is said of it.
#include "screens/outlook/outlook_output.h"

#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

struct OutlookOutputTest : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    OutlookOutput output{folder, platform.services};
    OutlookSheet sheet;

    OutlookOutputTest()
    {
        sheet.heading = {"Office Pool", {}, {"Chances: all outcomes alike", "Counted: all 2 outcomes of 1 open game"}};
        sheet.rows = {{0, "X, Ann", {1, 152, 168}, 50, 48.44, 0, {1, 1}, {3, 3}, Prospect::Alive, std::nullopt},
                      {1, "X, Bob", {2, 9, 168}, 0.04, 0.04, 0.261, {1, 2}, {2, 5}, Prospect::Open, -12.5}};
    }
};

TEST_F(OutlookOutputTest, WritesTheReportIntoThePoolsFolder)
{
    EXPECT_EQ(output.saveReport(sheet), "Written to the program's folder: OUTLOOK.TXT.");
    EXPECT_THAT(scratch.get("OUTLOOK.TXT"), HasSubstr("Chances: all outcomes alike\r\n"));
    EXPECT_THAT(scratch.get("OUTLOOK.TXT"),
                HasSubstr("    1  X, Ann          152    168     50.0     48.4              1      3  Alive\r\n"));
    EXPECT_FALSE(scratch.has("TEMPPRT.TXT"));
    EXPECT_THAT(platform.dialogs.shown, IsEmpty());
}

TEST_F(OutlookOutputTest, SaysWhyTheReportCannotBeWritten)
{
    std::filesystem::create_directory(scratch.path() / "OUTLOOK.TXT");
    EXPECT_EQ(output.saveReport(sheet), "");
    ASSERT_THAT(platform.dialogs.shown, SizeIs(1));
    EXPECT_EQ(platform.dialogs.shown[0].caption, "Tallyhoop - frmPoolOutlook, cmdSaveReport");
    EXPECT_EQ(platform.dialogs.shown[0].text, "OUTLOOK.TXT could not be written.\r\nIs a directory");
    EXPECT_EQ(platform.dialogs.shown[0].icon, ui::Icon::Critical);
}

TEST_F(OutlookOutputTest, PrintsOnThePrinterThatIsChosen)
{
    EXPECT_EQ(output.print(sheet), "Printed Pool Outlook.");
    EXPECT_EQ(platform.printer.printerDialogs, 1);
    ASSERT_THAT(platform.printer.drawings, SizeIs(1));
    EXPECT_EQ(platform.printer.drawings[0].orientation, ui::Orientation::Portrait);
    EXPECT_THAT(platform.printer.drawings[0].drawings, SizeIs(1));
    EXPECT_EQ(platform.printer.drawings[0].drawings[0].captions.at(1).text, "5-March-01");
}

TEST_F(OutlookOutputTest, PrintsNothingWhenNoPrinterIsChosen)
{
    platform.printer.dialogAccepted = false;
    EXPECT_EQ(output.print(sheet), "");
    EXPECT_THAT(platform.printer.drawings, IsEmpty());
}

TEST_F(OutlookOutputTest, SaysThatThereIsNoPrinter)
{
    platform.printer.there = false;
    EXPECT_EQ(output.print(sheet), "No printer is installed: Preview and Save as PDF work without one.");
    EXPECT_THAT(platform.dialogs.shown, SizeIs(1));
    EXPECT_THAT(platform.printer.drawings, IsEmpty());
}

TEST_F(OutlookOutputTest, SavesItselfAsPdf)
{
    platform.dialogs.pick(scratch.path() / "Ours");
    EXPECT_EQ(output.savePdf(sheet), "Saved Ours.PDF.");
    EXPECT_THAT(platform.printer.pdfs, ElementsAre(scratch.path() / "Ours.PDF"));
    EXPECT_THAT(platform.printer.drawings, SizeIs(1));
}

TEST_F(OutlookOutputTest, ShowsItsPages)
{
    EXPECT_EQ(output.preview(sheet), "");
    EXPECT_THAT(platform.printer.previewedDrawings, SizeIs(1));
}

TEST_F(OutlookOutputTest, CopiesFiguresAsNumbers)
{
    EXPECT_EQ(output.copy(sheet), "Copied 2 rows, to be pasted into a spreadsheet.");
    EXPECT_EQ(platform.clipboard.text,
              "Pool Outlook: Office Pool. Chances: all outcomes alike. Counted: all 2 outcomes of 1 open game.\r\n"
              "Now\tPlayer\tPoints\tPossible\tFirst %\tShare %\tError %\tVerdict\tBest\tWorst\tChange\r\n"
              "1\tX, Ann\t152\t168\t50.0\t48.4\t0.00\tAlive\t1\t3\t\r\n"
              "2\tX, Bob\t9\t168\t0.04\t0.04\t0.27\tOpen\t1 to 2\t2 to 5\t-12.5\r\n");
}

TEST_F(OutlookOutputTest, CopiesNoNothingForWhoIsAlive)
{
    sheet.rows[0].first = sheet.rows[0].share = 0;
    sheet.rows[0].error = 0.001;
    output.copy(sheet);
    EXPECT_THAT(platform.clipboard.text, HasSubstr("1\tX, Ann\t152\t168\t<0.1\t<0.1\t0.01\tAlive\t"));
}

TEST_F(OutlookOutputTest, CopiesWhatIsSupposedWithIt)
{
    sheet.heading.whatIf = {"What if: 1 supposed winner; these are not the results as entered"};
    sheet.rows.pop_back();
    EXPECT_EQ(output.copy(sheet), "Copied 1 row, to be pasted into a spreadsheet.");
    EXPECT_THAT(platform.clipboard.text,
                testing::StartsWith("Pool Outlook: Office Pool. What if: 1 supposed winner; these are not the results "
                                    "as entered. Chances: "));
}

TEST_F(OutlookOutputTest, CopiesNoFormulas)
{
    sheet.heading.title = "=1+1";
    sheet.rows[0].name = "=cmd, Ann";
    sheet.rows[1].name = "-5, Bob";
    output.copy(sheet);
    EXPECT_THAT(platform.clipboard.text, testing::StartsWith("Pool Outlook: =1+1."));
    EXPECT_THAT(platform.clipboard.text, HasSubstr("1\t'=cmd, Ann\t"));
    EXPECT_THAT(platform.clipboard.text, HasSubstr("2\t'-5, Bob\t"));
}

TEST_F(OutlookOutputTest, LeavesEmptyInACopyWhatIsNotKnown)
{
    sheet.rows = {{.name = "X, Ann", .best = {1, 3}, .worst = {1, 3}}};
    output.copy(sheet);
    EXPECT_THAT(platform.clipboard.text, HasSubstr("1\tX, Ann\t0\t0\t\t\t\tOpen\t1 to 3\t1 to 3\t\r\n"));
}

} // namespace
} // namespace tallyhoop::test
