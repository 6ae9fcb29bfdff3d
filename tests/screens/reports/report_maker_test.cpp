// tests/screens/reports/report_maker_test.cpp - what is said when a report fails without a word of its own.
#include "screens/reports/report_maker.h"

#include <gtest/gtest.h>

namespace tallyhoop::test {
namespace {

TEST(ReportFailure, SaysSomethingEvenWithoutAReason)
{
    EXPECT_EQ(reportFailure(reportTable()[1], ""),
              (ui::Message{"TALLYHOOP - frmPoolReports, Player Listing", "General Error Condition", ui::Buttons::Ok,
                           ui::Icon::Critical}));
}

TEST(ReportFailure, GivesTheReason)
{
    EXPECT_EQ(
        reportFailure(reportTable()[6], "too wide"),
        (ui::Message{"Tallyhoop - frmPoolReports, Results by Team", "too wide", ui::Buttons::Ok, ui::Icon::Critical}));
}

} // namespace
} // namespace tallyhoop::test
