// tests/qt/services/mail_library_test.cpp - the library for message files where it is installed, and where it is not.
#include "qt/services/mail_library.h"

#include "qt/services/gmime_message.h"

#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

TEST(MailLibrary, IsFoundByItsName)
{
    ASSERT_NE(mailLibrary(), nullptr);
    EXPECT_EQ(mailLibrary(), mailLibrary()) << "loaded once";
}

TEST(MailLibrary, IsNoneWhenItIsNotInstalledOrLacksAFunction)
{
    EXPECT_FALSE(loadMailLibrary(QStringLiteral("no-such-library")));
    EXPECT_TRUE(loadMailLibrary(QStringLiteral("gmime-3.0")));
    EXPECT_FALSE(loadMailLibrary(QStringLiteral("gobject-2.0"))) << "which has g_object_unref only";
}

TEST(MailLibrary, IsNamedByAMessageThatCannotBeWrittenWithoutIt)
{
    const Result<std::string> message = gmimeMessage({}, {}, nullptr);
    ASSERT_FALSE(message);
    EXPECT_EQ(message.failure().message, "The library for mail messages, gmime 3, could not be loaded.");
}

} // namespace
} // namespace tallyhoop::qt
