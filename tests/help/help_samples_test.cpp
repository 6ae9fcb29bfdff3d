// tests/help/help_samples_test.cpp - what the help shows and counts, compared with the program on the sample pool.
#include "base/lines.h"
#include "base/text.h"
#include "demo/sample_pool.h"
#include "fakes/fake_background.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/setup_file.h"
#include "help/help_file.h"
#include "screens/board/board_screen.h"
#include "screens/outlook/outlook_screen.h"
#include "screens/reports/reports_screen.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace tallyhoop::test {

namespace {

class HelpSamples : public testing::Test
{
protected:
    HelpSamples() { EXPECT_TRUE(demo::installSamplePool(folder)); }

    /// Makes every report as a text file.
    void makeReports()
    {
        const Field sample = readField(folder).value;
        MailDraft draft;
        FakeBoard noBoard;
        ReportsScreen reports{folder, platform.services, screens, sample, draft, noBoard};
        reports.load();
        for (const ReportKind& kind : reportTable())
            reports.chkOptions[kind.id].ticked = true;
        ui::selectOption(reports.optDestination, 1);
        reports.cmdPrintSelections.click();
    }

    void saveOutlook()
    {
        FakeBoard board;
        auto made = std::make_unique<FakeBackground>();
        FakeBackground& background = *made;
        OutlookScreen outlook{folder, openPool(folder, platform.services, board), platform.services, screens,
                              std::move(made)};
        outlook.load();
        for (int slice = 0; slice < 30; ++slice) // as many as it takes to count eight outcomes
            background.doSlice();
        outlook.showState();
        outlook.cmdSaveReport.click();
    }

    /// @param caption of the section that shows some lines of the file
    void expectSample(const std::string& caption, const std::string& file) const
    {
        const std::vector<std::string> sample = sampleUnder(caption);
        ASSERT_FALSE(sample.empty()) << caption;
        std::vector<std::string> report = linesOf(scratch.get(file));
        for (std::string& line : report)
            line = trimTrailingBlanks(line);
        auto from = report.begin();
        for (const std::string& line : sample) { // in their order, others may be between them
            const auto at = std::find(from, report.end(), line);
            ASSERT_NE(at, report.end()) << file << " has no line: " << line;
            from = at + 1;
        }
    }

    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    FakeScreens screens;
    Field field; // what the board shares, and reads
    std::optional<SavedPlayer> savedPlayer;
    std::optional<PlayerScore> listedPlayer;
    bool folderTroubleSaid = false;
    std::vector<std::filesystem::path> droppedFiles;
    const BoardScreen::Shared shared{field, savedPlayer, listedPlayer, folderTroubleSaid, droppedFiles};
};

} // namespace

TEST_F(HelpSamples, OfTheReportsAreWhatTheSamplePoolGives)
{
    makeReports();
    for (const ReportKind& kind : reportTable())
        expectSample(kind.caption, kind.file);
}

TEST_F(HelpSamples, OfTheOutlookIsWhatTheSamplePoolGives)
{
    saveOutlook();
    expectSample("The pool outlook", kOutlookFile);
}

TEST_F(HelpSamples, OfTheScoresAreWhatTheBoardSays)
{
    const std::string help = helpText();
    for (const auto& [file, score] :
         {std::pair{"Demo Prophet_DP.THC", "80 / 120"}, std::pair{"Demo Favorite_DF.THC", "59 / 71"},
          std::pair{"Demo Halfway_DH.THC", "55 / 67"}, std::pair{"Demo Longshot_DL.THC", "31 / 31"}}) {
        BoardScreen board{folder, platform.services, screens, shared};
        board.load();
        board.showScored(scratch.path() / file);
        board.showState();
        EXPECT_EQ(board.txtPointScore.text, std::string{"Points: "} + score);
        EXPECT_THAT(help, testing::HasSubstr(std::string{">"} + score + "</td>")) << file;
    }
}

TEST_F(HelpSamples, OfAFinalizedFieldHasItsMarkOnLine95)
{
    EXPECT_THAT(helpText(), testing::HasSubstr("change line 95 from 1 to 0"));
    std::vector<std::string> lines = linesOf(scratch.get(file_name::kSetup));
    ASSERT_EQ(lines.at(94), "1");
    lines[94] = "0";
    scratch.put(file_name::kSetup, joinLines(lines) + "\r\n");
    scratch.put(file_name::kSettings, "0\r\n");
    BoardScreen board{folder, platform.services, screens, shared};
    board.load();
    board.showState();
    EXPECT_TRUE(board.mnuSetup.enabled);
    EXPECT_EQ(board.lblTitle.text, "2000 NCAA Tournament");
}

} // namespace tallyhoop::test
