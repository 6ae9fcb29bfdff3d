// tests/reports/approved_reports_test.cpp - whole reports, byte for byte, through the screen that makes them.
//
// What is expected was not taken from the program: tests/approved/WORKSHEET.md says how each file came about.
#include "base/lines.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "reports/report_pool.h"
#include "screens/reports/reports_screen.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace tallyhoop::test {
namespace {

const std::filesystem::path kApproved{TALLYHOOP_APPROVED_REPORTS};

std::string bytesOf(const std::filesystem::path& file)
{
    std::ifstream stream{file, std::ios::binary};
    EXPECT_TRUE(stream) << "cannot read " << file;
    return {std::istreambuf_iterator<char>{stream}, {}};
}

/// Fails on the first line that differs, which says more than two whole reports would.
void expectSameReport(const std::string& made, const std::string& approved, const std::string& name)
{
    const std::vector<std::string> madeLines = linesOf(made);
    const std::vector<std::string> approvedLines = linesOf(approved);
    for (std::size_t i = 0; i < std::min(madeLines.size(), approvedLines.size()); ++i)
        ASSERT_EQ(madeLines[i], approvedLines[i]) << name << ", line " << i + 1;
    ASSERT_EQ(madeLines.size(), approvedLines.size()) << name;
    ASSERT_EQ(made, approved) << name;
}

void createAllReports(const ScratchFolder& folder, const std::string& title)
{
    FakePlatform platform;
    modTallyhoop state;
    FakeScreens screens;
    FakeBoard board{state};
    const DataFolder dataFolder = folder.folder();
    ReportsScreen screen{dataFolder, platform.services, state, screens, board};
    screen.load();
    screen.txtReportTitle.text = title;
    for (std::size_t i = 0; i < kReports; ++i)
        screen.chkOptions[i].ticked = true;
    ui::selectOption(screen.optDestination, 1);
    screen.cmdPrintSelections.click();
}

void expectApproved(const ScratchFolder& folder, const std::string& pool)
{
    for (int number = 1; number <= 7; ++number) {
        const std::string name = "RPTOPT" + std::to_string(number) + ".TXT";
        expectSameReport(folder.get(name), bytesOf(kApproved / pool / name), pool + "/" + name);
    }
}

TEST(ApprovedReports, OfFourPlayersAreAsWorkedOutByHand)
{
    ScratchFolder folder;
    putFourPlayers(folder);

    createAllReports(folder, "Office Pool 2001");

    expectApproved(folder, "small");
}

TEST(ApprovedReports, OfAPoolWithAwkwardNamesAreAsASecondReckoningHasThem)
{
    ScratchFolder folder;
    for (const auto& file : std::filesystem::directory_iterator{kApproved / "messy"})
        if (!file.path().filename().string().starts_with("RPTOPT"))
            std::filesystem::copy_file(file.path(), folder.path() / file.path().filename());

    createAllReports(folder, "B\xFCro-Pool \x84M\xE4rz\x93 2001");

    expectApproved(folder, "messy");
}

} // namespace
} // namespace tallyhoop::test
