// tests/screens/outlook/outlook_screen_output_test.cpp - that what goes out is what the screen shows.
#include "fakes/fake_background.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "pool/outlook/final_pool.h"
#include "screens/outlook/outlook_screen.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

std::vector<std::string> captionsOf(const ui::DrawingPrintout& printout)
{
    std::vector<std::string> texts;
    for (const ui::Drawing& page : printout.drawings)
        for (const ui::Caption& caption : page.captions)
            texts.push_back(caption.text);
    return texts;
}

/// The players are Ann, Bob and Cleo; only the final is open.
struct OutlookWaysOut : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    std::unique_ptr<FakeBackground> made = std::make_unique<FakeBackground>();
    FakeBackground& background = *made;
    OutlookScreen screen{folder, officePool(), platform.services, screens, std::move(made)};

    static OpenedPool officePool()
    {
        OpenedPool opened{.pool = finalPool()};
        opened.pool.field.title = "Office Pool";
        opened.areResultsDamaged = true;
        opened.missing = 1;
        return opened;
    }

    OutlookWaysOut()
    {
        screen.load();
        workItOut();
    }

    /// Does as much as it takes to know all about one open game, and little of the road.
    void workItOut()
    {
        for (int slice = 0; slice < 30; ++slice)
            background.doSlice();
        screen.showState();
    }

    void suppose(Position position)
    {
        screen.pressPosition(position);
        workItOut();
    }

    void choose(std::size_t row)
    {
        screen.grdPlayers.cellPressed(row, 0);
        screen.showState();
    }

    void sortByPlayerBackwards()
    {
        const auto column = static_cast<std::size_t>(OutlookColumn::Player);
        for (int press = 0; press < 2; ++press) {
            screen.grdPlayers.columnPressed(column);
            screen.grdPlayers.columnReleased(column);
        }
        screen.showState();
    }
};

TEST_F(OutlookWaysOut, BringsOutWhatItShows)
{
    sortByPlayerBackwards();
    screen.cmdSaveReport.click();
    EXPECT_EQ(screen.news().text, "Written to the program's folder: OUTLOOK.TXT.");
    const std::string report = scratch.get("OUTLOOK.TXT");
    EXPECT_THAT(report, HasSubstr("Office Pool\r\n"));
    EXPECT_THAT(report, HasSubstr("Counted: all 2 outcomes of 1 open game\r\n"
                                  "The results file is damaged: some winners may be missing\r\n"
                                  "1 player is missing: the selection cannot be read\r\n"));
    EXPECT_LT(report.find("X, Cleo"), report.find("X, Bob")) << "in the order of the table";
    EXPECT_THAT(report, Not(HasSubstr("What if")));
    screen.cmdCopy.click();
    EXPECT_THAT(platform.clipboard.text, HasSubstr("1\tX, Ann\t152\t168\t50.0\t50.0\t0.00\tAlive\t1\t3\t\r\n"));
    EXPECT_THAT(platform.clipboard.text, HasSubstr("The results file is damaged: some winners may be missing. 1 player "
                                                   "is missing: the selection cannot be read."));
    EXPECT_EQ(screen.news().text, "Copied 3 rows, to be pasted into a spreadsheet.");
}

TEST_F(OutlookWaysOut, SavesTheTableAsItIsShown)
{
    platform.dialogs.pick(scratch.path() / "mine.CSV").pick(std::nullopt);
    screen.cmdSaveCsv.click();
    EXPECT_EQ(platform.dialogs.fileChoices.at(0).proposedName, "OUTLOOK.CSV");
    EXPECT_THAT(scratch.get("mine.CSV"), HasSubstr("\r\n1,\"X, Ann\",152,168,50.0,50.0,0.00,Alive,1,3,\r\n"));
    EXPECT_EQ(screen.news().text, "Saved mine.CSV.");

    suppose(kSemifinalB);
    screen.cmdSaveCsv.click();
    EXPECT_EQ(platform.dialogs.fileChoices.at(1).proposedName, "OUTLOOK-WHAT-IF.CSV");
    EXPECT_EQ(screen.news().text, "") << "cancelled";
}

TEST_F(OutlookWaysOut, SaysInWhatItBringsOutThatItIsSupposed)
{
    suppose(kSemifinalB);
    screen.cmdSaveReport.click();
    EXPECT_THAT(scratch.get("OUTLOOK.TXT"),
                HasSubstr("What if: 1 supposed winner; these are not the results as entered\r\n"
                          "Supposed: Team 35 (round 6)\r\n"
                          "No game is open: these are the places if it ends so\r\n"));
    EXPECT_THAT(scratch.get("OUTLOOK.TXT"), HasSubstr("-50.0"));
    screen.cmdCopy.click();
    EXPECT_THAT(platform.clipboard.text, HasSubstr("What if: 1 supposed winner"));
    screen.cmdPreview.click();
    ASSERT_THAT(platform.printer.previewedDrawings, SizeIs(1));
    EXPECT_THAT(captionsOf(platform.printer.previewedDrawings[0]), Contains(StartsWith("What if: 1 supposed winner")));
}

TEST_F(OutlookWaysOut, PrintsTheChosenPlayersRoadAndGames)
{
    choose(0);
    screen.cmdPrint.click();
    EXPECT_EQ(screen.news().text, "Printed Pool Outlook.");
    ASSERT_THAT(platform.printer.drawings, SizeIs(1));
    const std::vector<std::string> captions = captionsOf(platform.printer.drawings[0]);
    EXPECT_THAT(captions, Contains("The results file is damaged: some winners may be missing"));
    EXPECT_THAT(captions, Contains("The road of Ann, by the results as entered"));
    EXPECT_THAT(captions, Contains("Ann: Alive. First in 1 of 2 outcomes, alone or together with others."));
    EXPECT_THAT(captions, Contains("not worked out")) << "the road before this round";
    EXPECT_THAT(captions, Not(Contains("working")));
    EXPECT_THAT(captions, IsSupersetOf({"Team 1 - Team 35", "Team 1", "+100.0", "200.0"}));
    platform.dialogs.pick(scratch.path() / "A.PDF");
    screen.cmdSavePdf.click();
    EXPECT_EQ(screen.news().text, "Saved A.PDF.");
}

TEST_F(OutlookWaysOut, PrintsWhichSideHelpsAlsoWhereItIsTheLowerOne)
{
    choose(1);
    screen.cmdPreview.click();
    EXPECT_THAT(captionsOf(platform.printer.previewedDrawings.at(0)), IsSupersetOf({"Team 35", "+50.0"}));
}

} // namespace
} // namespace tallyhoop::test
