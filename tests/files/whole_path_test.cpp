// tests/files/whole_path_test.cpp - paths of networks stay those of networks.
#include "files/whole_path.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {

namespace fs = std::filesystem;

TEST(WholePath, BeginsAtTheRoot)
{
    std::error_code error;
    EXPECT_EQ(wholePath("a.thc", error), fs::current_path() / "a.thc");
    EXPECT_FALSE(error);
    EXPECT_EQ(wholePath(fs::current_path() / "a.thc", error), fs::current_path() / "a.thc");
}

TEST(WholePath, HasNoStepsAsideInItWhenNormal)
{
    EXPECT_EQ(normalPath("pools/./2000/../2001/a.thc"), fs::path{"pools/2001/a.thc"}.make_preferred());
}

#ifdef _WIN32
TEST(WholePath, OfANetworkKeepsItsComputer)
{
    for (const wchar_t* const text : {L"\\\\server\\share\\pool\\a.thc", L"//server/share/pool/a.thc"}) {
        std::error_code error;
        EXPECT_EQ(wholePath(text, error), fs::path{text});
        EXPECT_FALSE(error);
        EXPECT_EQ(normalPath(text).native(), L"\\\\server\\share\\pool\\a.thc");
    }
    EXPECT_EQ(normalPath(L"\\\\server\\share\\pool\\..\\b").native(), L"\\\\server\\share\\b");
}

TEST(WholePath, OfADriveKeepsItsDrive)
{
    EXPECT_EQ(normalPath(L"Z:\\pool\\.\\a.thc").native(), L"Z:\\pool\\a.thc");
    EXPECT_EQ(normalPath(L"\\pool\\.\\a.thc").native(), L"\\pool\\a.thc");
}
#else
TEST(WholePath, OfThisSystemKnowsNoComputers)
{
    EXPECT_EQ(normalPath("//server/share/a.thc").native(), "/server/share/a.thc");
}
#endif

} // namespace tallyhoop::test
