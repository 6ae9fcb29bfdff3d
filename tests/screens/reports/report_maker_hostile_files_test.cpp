// tests/screens/reports/report_maker_hostile_files_test.cpp - files whose names or sizes nobody meant.
#include "screens/reports/report_maker.h"

#include "fakes/fake_platform.h"
#include "files/file_names.h"
#include "reports/report_pool.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

struct HostileFilesInReports : testing::Test {
    ScratchFolder scratch;
    DataFolder folder = scratch.folder();
    FakePlatform platform;
    Field field = defaultField();

    ReportLines made(const ReportKind& kind)
    {
        const std::vector<FolderFile> files = folder.files(file_name::kSelectionExtension);
        const MadeReport made = ReportMaker{folder, platform.services, field}.make(kind, "Pool", files);
        const auto* lines = std::get_if<ReportLines>(&made);
        EXPECT_TRUE(lines) << kind.name;
        return lines != nullptr ? *lines : ReportLines{};
    }
};

#ifndef _WIN32 // where no name may have one
TEST_F(HostileFilesInReports, ALineBreakInAFilesNameMakesNoLineOfItsOwn)
{
    putFourPlayers(scratch);
    const std::string forged = "Eve\r\n 168   AB, Adams    Adams_AB.THC\n_E.THC";
    scratch.put(forged, scratch.get("Adams_AB.THC"));
    for (const ReportKind& kind : reportTable()) {
        for (const std::string& line : made(kind))
            EXPECT_TRUE(line == kFormFeedLine || line.find_first_of("\r\n\f") == std::string::npos)
                << kind.name << ": " << line;
    }
    const ReportLines standings = made(reportKind(ReportId::TournamentStandings));
    const auto isForged = [](const std::string& line) { return line.find(" 168   AB") != std::string::npos; };
    const auto line = std::ranges::find_if(standings, isForged);
    ASSERT_NE(line, standings.end());
    EXPECT_NE(line->find("Eve   168   AB, Adams    Adams_AB.THC _E.THC"), std::string::npos)
        << "each control character is a blank, and the columns after it are where they were: " << *line;
}
#endif

TEST_F(HostileFilesInReports, AFileLargerThanAnySelectionIsNamedAndNotRead)
{
    putFourPlayers(scratch);
    scratch.put("Baker_C.THC", std::string((std::size_t{1} << 20) + 1, 'x'));
    made(reportKind(ReportId::TeamSelectionSummary));
    ASSERT_EQ(platform.dialogs.shown.size(), 2u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "** ERROR IN OPENING FILE - ReadSelections Routine **");
    EXPECT_EQ(platform.dialogs.shown[1].text,
              "This file is larger than 1 MB, and no selection is as large as that:\r\n" +
                  (scratch.path() / "Baker_C.THC").string() + "\r\n \r\nNothing of it was read.");
}

TEST_F(HostileFilesInReports, AFileOfTheLargestSizeIsRead)
{
    putFourPlayers(scratch);
    scratch.put("Baker_C.THC", std::string(std::size_t{1} << 20, 'x'));
    made(reportKind(ReportId::TeamSelectionSummary));
    EXPECT_EQ(platform.dialogs.captionsShown(),
              std::vector<std::string>{"** ERROR IN OPENING FILE - ReadSelections Routine **"})
        << "it is no sound selection, but its size is not what is wrong with it";
}

} // namespace
} // namespace tallyhoop::test
