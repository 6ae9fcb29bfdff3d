// tests/screens/printouts_test.cpp - the names that are proposed for PDF files.
#include "screens/printouts.h"

#include "fakes/fake_platform.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

std::string proposedName(const std::string& title)
{
    FakePlatform platform;
    platform.dialogs.pick(std::nullopt);
    saveAsPdf(platform.services, "/pool", {ui::DrawingPrintout{title, {}, ui::Orientation::Landscape}});
    return platform.dialogs.fileChoices.at(0).proposedName;
}

TEST(PdfName, IsTheTitleWithoutTheExtensionOfASelection)
{
    EXPECT_EQ(proposedName("Demo Prophet_DP.THC"), "Demo Prophet_DP.PDF");
    EXPECT_EQ(proposedName("Demo Prophet_DP.thc"), "Demo Prophet_DP.PDF");
    EXPECT_EQ(proposedName("Tournament Standings"), "Tournament Standings.PDF");
}

TEST(PdfName, HasNothingThatAFileSystemDoesNotTake)
{
    EXPECT_EQ(proposedName("Our <first> pool: 9/10?"), "Our _first_ pool_ 9_10_.PDF");
    EXPECT_EQ(proposedName("a\x7F"
                           "b\tc"),
              "a_b_c.PDF");
    EXPECT_EQ(proposedName("AUX"), "AUX_.PDF") << "a device on some systems, whatever its extension";
}

} // namespace
} // namespace tallyhoop::test
