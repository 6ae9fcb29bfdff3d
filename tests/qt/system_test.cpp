// tests/qt/system_test.cpp - the clock, the clipboard and progress.
#include "qt/services/qt_system.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QProgressDialog>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;

TEST(QtClock, GivesTheLocalDate)
{
    const auto today = QtClock{}.today();
    const QDate date = QDate::currentDate();
    EXPECT_EQ(static_cast<int>(today.year()), date.year());
    EXPECT_EQ(static_cast<unsigned>(today.month()), static_cast<unsigned>(date.month()));
    EXPECT_EQ(static_cast<unsigned>(today.day()), static_cast<unsigned>(date.day()));
}

TEST(QtClock, GivesTheLocalTime)
{
    const auto localSeconds = [] {
        const QDateTime now = QDateTime::currentDateTime();
        return now.date().toJulianDay() * 86400 + now.time().msecsSinceStartOfDay() / 1000;
    };
    constexpr qint64 kJulianDayOf1970 = 2440588;
    const qint64 before = localSeconds();
    const qint64 now = QtClock{}.now().time_since_epoch().count() + kJulianDayOf1970 * 86400;
    EXPECT_LE(before, now);
    EXPECT_LE(now, localSeconds());
}

TEST(QtClipboard, TakesTextWithItsLineBreaks)
{
    QtClipboard{}.put("caf\xe9\r\ntwo");
    EXPECT_EQ(QApplication::clipboard()->text(), QString::fromUtf8("café\ntwo"));
}

TEST(QtProgress, ShowsABusyPointerWhileItRuns)
{
    Desk desk;
    QtProgress progress{desk};
    progress.begin("Scoring", 10);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_TRUE(progress.advance(1));
    progress.begin("Reading", 5); // work inside the work
    EXPECT_TRUE(progress.advance(5));
    progress.end();
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    progress.end();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(QtProgress, AWindowWithCancelOpensWhenTheWorkTakesLong)
{
    Desk desk;
    QtProgress progress{desk, 0};
    progress.begin("Scoring <b>", 10);
    EXPECT_TRUE(progress.advance(1));
    auto* window = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(window, nullptr);
    EXPECT_FALSE(desk.accepts(nullptr));
    window->cancel();
    EXPECT_FALSE(progress.advance(2));
    progress.end();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(desk.accepts(nullptr));
}
