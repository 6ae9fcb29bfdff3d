// tests/screens/reports/reports_screen_files_test.cpp - the files that the screen writes are the approved ones.
#include "reports/approved_reports.h"
#include "screens/reports/reports_screen_fixture.h"

namespace tallyhoop::test {
namespace {

TEST_F(ReportsScreenTest, WritesTheApprovedReportsOfFourPlayers)
{
    putFourPlayers(folder);
    screen.load();
    screen.txtReportTitle.text = kSmallTitle;
    tickAll();

    create(kFile);

    for (const ReportKind& kind : reportTable())
        expectApproved(folder.get(kind.file), "small", kind.file);
    EXPECT_TRUE(platform.dialogs.shown.empty());
}

} // namespace
} // namespace tallyhoop::test
