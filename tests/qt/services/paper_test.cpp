// tests/qt/services/paper_test.cpp - the paper that a printout is for.
#include "qt/desk.h"
#include "qt/services/paper.h"
#include "qt/services/qt_printer.h"

#include <QByteArray>
#include <QPrinter>
#include <QPrinterInfo>
#include <gtest/gtest.h>
#include <optional>
#include <utility>

using namespace tallyhoop::qt;

namespace {

/// Sets the locale's variables for a test. An empty value = not set.
class LocaleVariables
{
public:
    LocaleVariables(const char* all, const char* paper, const char* language)
    {
        const std::pair<const char*, const char*> wanted[] = {{"LC_ALL", all}, {"LC_PAPER", paper}, {"LANG", language}};
        for (std::size_t i = 0; i < 3; ++i) {
            m_before[i] = {wanted[i].first, qgetenv(wanted[i].first)};
            qputenv(wanted[i].first, wanted[i].second);
        }
    }
    ~LocaleVariables()
    {
        for (const auto& [name, value] : m_before) {
            if (value.isNull())
                qunsetenv(name);
            else
                qputenv(name, value);
        }
    }
    LocaleVariables(const LocaleVariables&) = delete;
    LocaleVariables& operator=(const LocaleVariables&) = delete;

private:
    std::pair<const char*, QByteArray> m_before[3];
};

} // namespace

TEST(Paper, IsLetterInNorthAmericaAndA4ElsewhereWhenThereIsNoPrinter)
{
    EXPECT_EQ(usualPaper(QLocale::UnitedStates).id(), QPageSize::Letter);
    EXPECT_EQ(usualPaper(QLocale::Canada).id(), QPageSize::Letter);
    EXPECT_EQ(usualPaper(QLocale::Mexico).id(), QPageSize::Letter);
    EXPECT_EQ(usualPaper(QLocale::Germany).id(), QPageSize::A4);
    EXPECT_EQ(usualPaper(QLocale::UnitedKingdom).id(), QPageSize::A4);
    EXPECT_EQ(usualPaper(QLocale::AnyTerritory).id(), QPageSize::A4);
}

TEST(Paper, FollowsTheDesktopsSettings)
{
    {
        const LocaleVariables american{"", "", "en_US.UTF-8"};
        EXPECT_EQ(paperOf(QPageSize{}).id(), QPageSize::Letter);
    }
    {
        const LocaleVariables americanInGermany{"", "de_DE.UTF-8", "en_US.UTF-8"};
        EXPECT_EQ(paperOf(QPageSize{}).id(), QPageSize::A4);
    }
    {
        const LocaleVariables overridden{"en_US.UTF-8", "de_DE.UTF-8", "de_DE.UTF-8"};
        EXPECT_EQ(paperOf(QPageSize{}).id(), QPageSize::Letter);
    }
}

TEST(Paper, IsThePrintersOwnWhereItNamesOne)
{
    const LocaleVariables german{"", "", "de_DE.UTF-8"};
    EXPECT_EQ(paperOf(QPageSize{QPageSize::Letter}).id(), QPageSize::Letter);
    EXPECT_EQ(paperOf(QPageSize{QPageSize::A3}).id(), QPageSize::A3);
}

TEST(Paper, IsWhatAPrintoutIsLaidOutForWithoutAPrinter)
{
    if (!QPrinterInfo::defaultPrinterName().isEmpty())
        GTEST_SKIP() << "there is a printer here, and its own paper counts";
    const auto chosen = [] {
        Desk desk;
        QtPrinter printer{desk};
        return printer.printer().pageLayout().pageSize().id();
    };
    {
        const LocaleVariables american{"", "", "en_US.UTF-8"};
        EXPECT_EQ(chosen(), QPageSize::Letter);
    }
    const LocaleVariables german{"", "", "de_DE.UTF-8"};
    EXPECT_EQ(chosen(), QPageSize::A4);
}
