// tests/qt/views/outlook_live_test.cpp - the outlook's page follows by itself what its thread finds.
#include "qt/views/outlook_view.h"

#include "demo/sample_pool.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/pool_files.h"
#include "ui/background_thread.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

constexpr int kPatience = 120'000; ///< milliseconds; only a failing test ever waits that long

/// The sample pool when 20 games are open: the later rounds, and five of the second one. Nothing here asks the screen
/// for its state: what the widgets show has come there by itself.
class OutlookLiveTest : public testing::Test
{
protected:
    OutlookLiveTest()
    {
        view.show();
        desk.run(outlook, [this] { outlook.load(); });
    }

    OpenedPool samplePool() const
    {
        EXPECT_TRUE(demo::installSamplePool(folder));
        OpenedPool opened{.pool = readPool(folder)};
        int openOfSecondRound = 0;
        for (const Position position : gamePositions())
            if (roundOf(position) > 2 || (roundOf(position) == 2 && ++openOfSecondRound <= 5))
                opened.pool.results->picks.clear(position);
        return opened;
    }

    template <class Widget>
    Widget& widget(const ui::Control& control) const
    {
        return *dynamic_cast<Widget*>(view.widgetOf(control));
    }

    QString outcomes() const { return widget<QLabel>(outlook.lblOutcomes).text(); }

    QStringList column(OutlookColumn column) const
    {
        const QAbstractItemModel& model = *widget<QTableView>(outlook.grdPlayers).model();
        QStringList cells;
        for (int row = 0; row < model.rowCount(); ++row)
            cells.append(model.index(row, static_cast<int>(column)).data().toString());
        return cells;
    }

    bool areFiguresWhole() const
    {
        return outcomes().startsWith(QStringLiteral("All alike: 1048576 outcomes left, every one counted.")) &&
               !outcomes().contains(QStringLiteral("verdicts and places"));
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    test::FakeScreens screens;
    OutlookScreen outlook{folder, samplePool(), platform.services, screens, std::make_unique<ui::BackgroundThread>()};
    Desk desk;
    OutlookView view{outlook, desk};
};

TEST_F(OutlookLiveTest, ShowsWhatIsFoundUntilTheFiguresAreWhole)
{
    EXPECT_FALSE(areFiguresWhole()) << "counting 2^20 outcomes takes longer than opening the screen";
    ASSERT_TRUE(QTest::qWaitFor([this] { return areFiguresWhole(); }, kPatience)) << outcomes().toStdString();
    EXPECT_FALSE(column(OutlookColumn::Share).isEmpty());
    for (const QString& share : column(OutlookColumn::Share))
        EXPECT_TRUE(share.endsWith(QStringLiteral(" %"))) << share.toStdString();
    for (const OutlookColumn places : {OutlookColumn::Best, OutlookColumn::Worst})
        for (const QString& place : column(places))
            EXPECT_GE(place.toInt(), 1) << "a number, no longer a range: " << place.toStdString();
}

TEST_F(OutlookLiveTest, ShowsThatItHasStopped)
{
    auto& stop = widget<QPushButton>(outlook.cmdStop);
    ASSERT_TRUE(stop.isEnabled());
    stop.click();
    EXPECT_FALSE(stop.isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !outlook.isWorking(); }, kPatience));
    EXPECT_TRUE(outcomes().startsWith(QStringLiteral("Stopped. "))) << outcomes().toStdString();
}

} // namespace
} // namespace tallyhoop::qt
