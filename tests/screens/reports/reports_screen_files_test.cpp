// tests/screens/reports/reports_screen_files_test.cpp - the files that the screen writes are the approved ones.
#include "reports/approved_reports.h"
#include "screens/reports/reports_screen_fixture.h"

namespace tallyhoop::test {
namespace {

struct ReportsFiles : ReportsScreenTest {
    void expectApprovedFiles(const std::string& title, const std::string& pool)
    {
        screen.load();
        screen.txtReportTitle.text = title;
        tickAll();

        create(kFile);

        for (const ReportKind& kind : reportTable())
            expectApproved(folder.get(kind.file), pool, kind.file);
    }
};

TEST_F(ReportsFiles, OfFourPlayersAreTheApprovedOnes)
{
    putFourPlayers(folder);

    expectApprovedFiles(kSmallTitle, "small");

    EXPECT_TRUE(platform.dialogs.shown.empty());
}

TEST_F(ReportsFiles, OfAPoolWithAwkwardNamesAreTheApprovedOnes)
{
    putMessyPool(folder);

    expectApprovedFiles(kMessyTitle, "messy");

    // One selection is damaged: every report but the player listing names it.
    EXPECT_EQ(platform.dialogs.captionsShown(),
              std::vector<std::string>(6, "** ERROR IN OPENING FILE - ReadSelections Routine **"));
}

} // namespace
} // namespace tallyhoop::test
