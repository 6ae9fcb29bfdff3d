// tests/qt/views/scores_view_test.cpp - the mouse and the keys on the scores reach the model, which is shown.
#include "qt/views/scores_view.h"

#include "app/wiring.h"
#include "demo/sample_pool.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"

#include <QHeaderView>
#include <QTableView>
#include <QTest>
#include <gmock/gmock.h>

namespace tallyhoop::qt {
namespace {

using testing::ElementsAre;

class ScoresViewTest : public testing::Test
{
protected:
    ScoresViewTest()
    {
        EXPECT_TRUE(demo::installSamplePool(folder));
        shared.field = demo::sampleField();
        scores.load();
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        desk.push();
    }

    QTableView& table() const { return *view.findChild<QTableView*>(QStringLiteral("msgScoreDisplay")); }

    void press(const char* button)
    {
        QTest::mouseClick(view.findChild<QPushButton*>(QString::fromLatin1(button)), Qt::LeftButton);
    }

    QPoint headingAt(int column) const
    {
        const QHeaderView& header = *table().horizontalHeader();
        return {header.sectionViewportPosition(column) + header.sectionSize(column) / 2, header.height() / 2};
    }

    void dragHeading(int from, int to)
    {
        QWidget* header = table().horizontalHeader()->viewport();
        QTest::mousePress(header, Qt::LeftButton, {}, headingAt(from));
        QTest::mouseMove(header, headingAt(to));
        QTest::mouseRelease(header, Qt::LeftButton, {}, headingAt(to));
    }

    void pressCell(int row, int column)
    {
        const QModelIndex cell = table().model()->index(row, column);
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(cell).center());
    }

    /// A column's texts as shown, from top to bottom.
    std::vector<std::string> shown(int column) const
    {
        std::vector<std::string> texts;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            texts.push_back(table().model()->index(row, column).data().toString().toStdString());
        return texts;
    }

    std::string heading(int column) const
    {
        return table().model()->headerData(column, Qt::Horizontal).toString().toStdString();
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    SharedValues shared;
    test::FakeScreens screens;
    const Bracket results{demo::sampleResults().picks};
    ScoresScreen scores{folder, platform.services, screens, shared.field, results, shared.listedPlayer};
    Desk desk;
    ScoresView view{scores, desk};
};

TEST_F(ScoresViewTest, ShowsEveryControl)
{
    EXPECT_EQ(view.controlsWithoutWidget(), std::vector<std::string>{});
    EXPECT_FALSE(view.findChild<QWidget*>(QStringLiteral("filList"))->isVisible());
    EXPECT_EQ(view.windowTitle(), QStringLiteral("Display Scores (Total, Possible)"));
}

TEST_F(ScoresViewTest, CalculatesAtThePressOfTheButton)
{
    EXPECT_EQ(table().model()->rowCount(), 0);
    press("cmdOk");
    EXPECT_THAT(shown(0), ElementsAre("Demo Favorite_DF.THC", "Demo Halfway_DH.THC", "Demo Longshot_DL.THC",
                                      "Demo Prophet_DP.THC"));
    EXPECT_THAT(shown(2), ElementsAre("59", "55", "31", "80"));
    EXPECT_THAT(shown(3), ElementsAre("71", "67", "31", "120"));
}

TEST_F(ScoresViewTest, SortsByAHeadingThatIsDraggedToTheFront)
{
    press("cmdOk");
    dragHeading(2, 0);
    EXPECT_EQ(heading(0), "Score");
    EXPECT_EQ(heading(1), "File Name");
    EXPECT_THAT(shown(0), ElementsAre("80", "59", "55", "31"));
    EXPECT_EQ(scores.msgScoreDisplay.columns[0].heading, "Score");
    // As texts, 120 would come last, or between 31 and 67.
    dragHeading(3, 0);
    EXPECT_THAT(shown(0), ElementsAre("120", "71", "67", "31"));
}

TEST_F(ScoresViewTest, MarksTheBoardWhenAFileNameIsPressedAndOnlyThen)
{
    press("cmdOk");
    pressCell(0, 2);
    EXPECT_FALSE(shared.listedPlayer);
    pressCell(0, 0);
    ASSERT_TRUE(shared.listedPlayer);
    // The favorite's first game, Arizona over Jackson St., came true.
    EXPECT_EQ(shared.listedPlayer->verdicts[gamePositions().front()], Verdict::Good);
}

TEST_F(ScoresViewTest, MarksTheBoardWithTheKeyboardToo)
{
    press("cmdOk");
    table().setFocus();
    table().setCurrentIndex(table().model()->index(1, 0));
    QTest::keyClick(&table(), Qt::Key_Space);
    EXPECT_TRUE(shared.listedPlayer);
}

TEST_F(ScoresViewTest, LeavesOnEscape)
{
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_THAT(screens.unloads, ElementsAre(ScreenKind::Scores));
}

TEST_F(ScoresViewTest, PutsTheBestFirstAtThePressOfAButton)
{
    EXPECT_FALSE(view.findChild<QPushButton*>(QStringLiteral("cmdBestFirst"))->isEnabled());
    press("cmdOk");
    press("cmdBestFirst");
    EXPECT_EQ(heading(0), "Score");
    EXPECT_THAT(shown(0), ElementsAre("80", "59", "55", "31"));
}

TEST_F(ScoresViewTest, IsAsHighAsItsRowsUntilThePersonChoosesAnotherSize)
{
    press("cmdOk"); // four rows
    const int four = view.height();
    const QRect lastRow = table().visualRect(table().model()->index(3, 0));
    EXPECT_NEAR(table().viewport()->height(), lastRow.bottom() + 1, 2);
    for (int player = 0; player < 6; ++player)
        scratch.put("More" + std::to_string(player) + ".THC", scratch.get("Demo Prophet_DP.THC"));
    press("cmdOk");
    EXPECT_EQ(view.height(), four + 6 * table().rowHeight(0));
    view.resize(900, 300);
    scratch.put("Last.THC", scratch.get("Demo Prophet_DP.THC"));
    press("cmdOk");
    EXPECT_EQ(table().model()->rowCount(), 11);
    EXPECT_EQ(view.size(), QSize(900, 300));
}

TEST(PlaceBeside, BelievesOnlyAFrameThatCanBe)
{
    EXPECT_EQ(plausibleFrame({2, 21}), QSize(2, 21));
    EXPECT_EQ(plausibleFrame({0, 20}), QSize(0, 20)) << "a title bar alone";
    for (const QSize frame : {QSize{0, 0}, QSize{-757, -232}, QSize{-1, 20}, QSize{526, 509}, QSize{2, 400}})
        EXPECT_EQ(plausibleFrame(frame), QSize(8, 36)) << frame.width() << " " << frame.height();
}

TEST(PlaceBeside, IsRightOfTheOtherWindowThenLeftThenLowAndRight)
{
    const QRect room{0, 30, 1920, 1050}; // ends at 1920 and 1080
    const QSize window{600, 400};
    EXPECT_EQ(placeBeside(window, {100, 50, 1220, 900}, room), QPoint(1320, 50));
    EXPECT_EQ(placeBeside(window, {101, 50, 1220, 900}, room), QPoint(1320, 680)) << "a pixel too little";
    EXPECT_EQ(placeBeside(window, {600, 50, 1320, 900}, room), QPoint(0, 50));
    EXPECT_EQ(placeBeside(window, {0, 30, 1920, 1050}, room), QPoint(1320, 680));
    EXPECT_EQ(placeBeside(window, {100, 900, 1220, 180}, room), QPoint(1320, 680)) << "lifted to be seen whole";
    EXPECT_EQ(placeBeside({2000, 1200}, {0, 30, 1920, 1050}, room), QPoint(0, 30)) << "its title has to be seen";
}

} // namespace
} // namespace tallyhoop::qt
