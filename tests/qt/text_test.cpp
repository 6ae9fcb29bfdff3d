// tests/qt/text_test.cpp - texts converted for Qt and back.
#include "qt/text.h"

#include <QLineEdit>
#include <gtest/gtest.h>

using namespace tallyhoop::qt;

TEST(QtText, EveryByteSurvivesTheConversionToQtAndBack)
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_EQ(fromQString(toQString(all)), all);
    EXPECT_EQ(toQString(all).size(), 256);
}

TEST(QtText, ShowsTheCharactersOfWindows1252)
{
    EXPECT_EQ(toQString("\x80\x93x\x94\xe9"), QString::fromUtf8("\u20ac\u201cx\u201d\u00e9"));
}

TEST(QtText, ComposesLettersAndTheirAccents) { EXPECT_EQ(fromQString(QString::fromUtf8("e\u0301")), "\xe9"); }

TEST(QtText, ReplacesWhatWindows1252LacksOneForOne)
{
    EXPECT_EQ(fromQString(QString::fromUtf8("a\u4e2db")), "a?b");
    EXPECT_EQ(fromQString(QString::fromUtf8("\U0001F3C0!")), "?!"); // one character, two UTF-16 units
}

TEST(QtText, LineBreaksAreConvertedBothWays)
{
    EXPECT_EQ(toLines("a\r\nb\rc\nd"), QStringLiteral("a\nb\nc\nd"));
    EXPECT_EQ(fromLines(QStringLiteral("a\nb\u2029c\u2028d")), "a\r\nb\r\nc\r\nd");
    EXPECT_EQ(withCrLf("\r\r\n\n"), "\r\n\r\n\r\n");
}

TEST(QtText, MarksTheMnemonicOfACaptionThatHasNone)
{
    EXPECT_EQ(withMnemonic(QStringLiteral("Create Selected Reports"), 's'), QStringLiteral("Create &Selected Reports"));
    EXPECT_EQ(withMnemonic(QStringLiteral("Complete"), 'o'), QStringLiteral("C&omplete"));
    EXPECT_EQ(withMnemonic(QStringLiteral("Preview"), 'p'), QStringLiteral("&Preview"));
    EXPECT_EQ(withMnemonic(QStringLiteral("De&lete"), 'd'), QStringLiteral("De&lete"));
    EXPECT_EQ(withMnemonic(QStringLiteral("Preview"), 'z'), QStringLiteral("Preview"));
    EXPECT_EQ(withMnemonic(QStringLiteral("Preview"), 0), QStringLiteral("Preview"));
}

TEST(QtText, DataIsNeitherMarkupNorMnemonicNorMark)
{
    EXPECT_EQ(withoutMnemonics(QStringLiteral("A&M")), QStringLiteral("A&&M"));
    EXPECT_EQ(plainToolTip(QStringLiteral("<b>A&M</b>")), QStringLiteral("<qt>&lt;b&gt;A&amp;M&lt;/b&gt;</qt>"));
    EXPECT_EQ(plainToolTip({}), QString{});
    EXPECT_EQ(plainToolTip(QStringLiteral("A & M")), QStringLiteral("A & M"));
    EXPECT_EQ(titleText(QStringLiteral("a[*]b")), QStringLiteral("a[*][*]b"));
}
