// tests/qt/views/outlook_view_test.cpp - the outlook fits its display, and mouse and keys on it reach the model.
#include "qt/views/outlook_view.h"

#include "app/wiring.h"
#include "demo/sample_pool.h"
#include "fakes/fake_background.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/pool_files.h"
#include "qt/widgets/outlook_canvas.h"
#include "qt/widgets/page_area.h"
#include "qt/widgets/slot_label.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

constexpr QSize kSmallDisplay{1366, 768 - 36}; ///< without a title bar
constexpr QSize kLargeDisplay{1920, 1080 - 36};

const Position kTeam = *next(*next(firstRoundPosition(0, 0))); ///< the first winner of the second round
const Position kTeamOnTheRight = *next(*next(firstRoundPosition(3, 0)));
const Position kThirdRound = *next(kTeam);

/// The sample pool after two rounds: 15 games are open, of which eight can be played next.
class OutlookViewTest : public testing::Test
{
protected:
    OutlookViewTest()
    {
        view.resize(kSmallDisplay);
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        outlook.load();
        for (int slice = 0; slice < 40; ++slice)
            background->doSlice();
        desk.run(outlook, [] {});
    }

    OpenedPool samplePool() const
    {
        EXPECT_TRUE(demo::installSamplePool(folder));
        OpenedPool opened{.pool = readPool(folder)};
        for (const Position position : gamePositions())
            if (roundOf(position) > 2)
                opened.pool.results->picks.clear(position);
        return opened;
    }

    std::unique_ptr<ui::Background> makeBackground()
    {
        auto fake = std::make_unique<test::FakeBackground>();
        background = fake.get();
        return fake;
    }

    template <class Widget = QWidget>
    Widget& widget(const ui::Control& control) const
    {
        return *dynamic_cast<Widget*>(view.widgetOf(control));
    }

    QTableView& players() const { return widget<QTableView>(outlook.grdPlayers); }
    QTableView& games() const { return widget<QTableView>(outlook.grdGames); }
    QWidget& canvas() const { return *view.findChild<OutlookCanvas*>(); }

    void click(Position position, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&canvas(), button, {}, widget(outlook.lblRegion[position]).geometry().center());
    }

    void clickRow(QTableView& table, int row)
    {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualRect(table.model()->index(row, 1)).center());
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    test::FakeScreens screens;
    test::FakeBackground* background = nullptr;
    OutlookScreen outlook{folder, samplePool(), platform.services, screens, makeBackground()};
    Desk desk;
    OutlookView view{outlook, desk};
};

TEST_F(OutlookViewTest, FitsTheDisplayWithoutScrollingAndShowsEveryColumn)
{
    for (const QSize display : {QSize{1280, 860}, kSmallDisplay, kLargeDisplay}) {
        view.resize(display);
        QApplication::processEvents();
        const auto* const area = dynamic_cast<PageArea*>(view.centralWidget());
        ASSERT_NE(area, nullptr);
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << display.width();
        EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << display.width();
        EXPECT_EQ(players().horizontalScrollBar()->maximum(), 0) << display.width();
        EXPECT_EQ(games().horizontalScrollBar()->maximum(), 0) << display.width();
        EXPECT_GE(canvas().width(), 580) << display.width();
        EXPECT_GE(widget(outlook.lblRegion[Position{0}]).font().pixelSize(), 9) << display.width();
    }
    EXPECT_GE(canvas().width(), 900) << "on the large display";
    EXPECT_GT(players().width(), players().minimumSizeHint().width() + 40) << "which has room for longer names, too";
}

TEST_F(OutlookViewTest, AClickForwardsAndARightPressTakesBack)
{
    click(kThirdRound); // nobody is there yet
    EXPECT_FALSE(outlook.cmdUndo.enabled);
    click(kTeam);
    EXPECT_EQ(outlook.lblRegion[kThirdRound].text, outlook.lblRegion[kTeam].text);
    EXPECT_EQ(outlook.lblWhatIf.text, "What if: nothing here is saved");
    click(kThirdRound, Qt::RightButton);
    EXPECT_EQ(outlook.lblRegion[kThirdRound].text, "");
    click(kTeam);
    click(kTeam);
    EXPECT_EQ(outlook.lblRegion[kThirdRound].text, "") << "once more takes it back";
}

TEST_F(OutlookViewTest, AFrameAroundTheBoardSaysThatItIsSupposed)
{
    const auto corner = [this] { return canvas().grab().toImage().pixelColor(1, 1); };
    const QColor before = corner();
    click(kTeam);
    EXPECT_EQ(corner(), (QColor{255, 231, 172}));
    desk.run(outlook, [this] { outlook.cmdAsEntered.click(); });
    EXPECT_EQ(corner(), before);
}

TEST_F(OutlookViewTest, ASwingIsBesideItsTeamAndCoversNothing)
{
    for (const Position team : {kTeam, kTeamOnTheRight}) {
        const auto& swing = widget<SlotLabel>(outlook.lblSwing[team]);
        ASSERT_TRUE(swing.isVisible());
        EXPECT_FALSE(swing.isElided());
        EXPECT_TRUE(swing.geometry().intersected(widget(outlook.lblRegion[team]).geometry()).isEmpty());
        EXPECT_TRUE(swing.text().startsWith(QLatin1Char{'+'}) || swing.text().startsWith(QLatin1Char{'-'}) ||
                    swing.text() == QStringLiteral("0.0"));
    }
}

TEST_F(OutlookViewTest, TheArrowKeysOfTheTableChooseThePlayer)
{
    players().setFocus();
    const std::string first = outlook.lblPlayer.text;
    QTest::keyClick(&players(), Qt::Key_Down);
    EXPECT_NE(outlook.lblPlayer.text, first);
    const std::string second = outlook.lblPlayer.text;
    QTest::keyClick(&players(), Qt::Key_Return, Qt::ControlModifier); // sorts by the current column
    EXPECT_EQ(outlook.lblPlayer.text, second);
    const std::size_t row = outlook.grdPlayers.current->row;
    EXPECT_EQ(players().currentIndex().row(), static_cast<int>(row));
    EXPECT_EQ(players().selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(second.find(outlook.grdPlayers.rows[row][1].substr(outlook.grdPlayers.rows[row][1].find(", ") + 2)), 0u);
}

TEST_F(OutlookViewTest, APressOnAGameMarksItOnTheBoardAndGoesThere)
{
    ASSERT_FALSE(outlook.grdGames.rows.empty());
    clickRow(games(), 0);
    ASSERT_TRUE(outlook.markedGame.has_value());
    const QWidget* const focused = QApplication::focusWidget();
    ASSERT_NE(focused, nullptr);
    EXPECT_TRUE(focused->objectName().startsWith(QStringLiteral("lblRegion_")));
    const auto edgeOf = [this](Position position) {
        return widget(outlook.lblRegion[position]).grab().toImage().pixelColor(0, 0);
    };
    EXPECT_EQ(edgeOf(*outlook.markedGame), edgeOf(feeders(*outlook.markedGame)->front()));
    EXPECT_NE(edgeOf(*outlook.markedGame), edgeOf(Position{0}));
}

} // namespace
} // namespace tallyhoop::qt
