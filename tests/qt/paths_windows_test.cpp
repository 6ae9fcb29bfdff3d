// tests/qt/paths_windows_test.cpp - paths between Qt, which has "/" everywhere, and the core.
#include "qt/paths.h"

#include <gtest/gtest.h>

using namespace tallyhoop::qt;

TEST(Paths, HaveTheSeparatorsOfWindows)
{
    EXPECT_EQ(toPath(QStringLiteral("C:/Our pools/2001")).native(), L"C:\\Our pools\\2001");
    EXPECT_EQ(toPath(QStringLiteral("//server/pools")).native(), L"\\\\server\\pools");
}

TEST(Paths, KeepEveryCharacter)
{
    const std::filesystem::path path{L"C:\\Pools of \u0141\u00f3d\u017a\\\U0001F3C0"};
    EXPECT_EQ(toPath(fromPath(path)).native(), path.native());
}
