// tests/qt/views/seeds_view_test.cpp - the seed positions screen in its window.
#include "qt/views/seeds_view.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "qt/views/setup_view.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

class SeedsViewTest : public ::testing::Test
{
protected:
    SeedsViewTest()
    {
        files.put("NCAALIST.THS", test::crlf({"*START*", "Duke", "*END*"}));
        setupView = std::make_unique<SetupView>(setup, desk);
        desk.runInside(setup, [this] { setup.load(); });
        seeds = std::make_unique<SeedsScreen>(setup.teamsOfFirstRegion(), setup.seeds(), computer.dialogs, screens);
        view = std::make_unique<SeedsView>(*seeds, desk);
        desk.runInside(*seeds, [this] { seeds->load(); });
        view->show();
        QApplication::setActiveWindow(view.get());
        QApplication::processEvents();
    }

    QLineEdit& seed(std::size_t row) { return *qobject_cast<QLineEdit*>(view->widgetOf(seeds->txtSeed[row])); }
    QLabel& label(std::size_t box) { return *qobject_cast<QLabel*>(setupView->widgetOf(setup.lblSeed[box])); }

    test::ScratchFolder files;
    DataFolder folder = files.folder();
    test::FakePlatform computer;
    test::FakeScreens screens;
    Field field;
    SetupScreen setup{folder, computer.services, screens, field};
    Desk desk;
    std::unique_ptr<SetupView> setupView;
    std::unique_ptr<SeedsScreen> seeds;
    std::unique_ptr<SeedsView> view;
};

TEST_F(SeedsViewTest, ShowsEveryControlAndFitsASmallScreen)
{
    EXPECT_EQ(view->controlsWithoutWidget(), std::vector<std::string>{});
    EXPECT_EQ(seed(0).text(), " 1");
    EXPECT_EQ(seed(15).text(), "15");
    EXPECT_LE(view->minimumSizeHint().height(), 700);
}

TEST_F(SeedsViewTest, SeedsTypedHereAreBesideTheBoxesOfAllRegionsAfterComplete)
{
    const auto type = [this](std::size_t row, const QString& text) {
        seed(row).selectAll();
        QTest::keyClicks(&seed(row), text);
    };
    type(0, "16");
    type(1, "1");
    qobject_cast<QPushButton*>(view->widgetOf(seeds->cmdComplete))->click();
    EXPECT_TRUE(computer.dialogs.shown.empty());
    for (const std::size_t region : {0U, 1U, 2U, 3U}) {
        EXPECT_EQ(label(16 * region).text(), "16");
        EXPECT_EQ(label(16 * region + 1).text(), "1");
        EXPECT_EQ(label(16 * region + 2).text(), "8");
    }
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Seeds});
}

TEST_F(SeedsViewTest, ABoxTakesFourCharactersAtMost)
{
    seed(3).clear();
    QTest::keyClicks(&seed(3), "12345");
    EXPECT_EQ(seed(3).text(), "1234");
}

TEST_F(SeedsViewTest, EscapeMeansCancel)
{
    QTest::keyClicks(&seed(0), "9");
    QTest::keyClick(&seed(0), Qt::Key_Escape);
    EXPECT_EQ(label(0).text(), " 1");
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Seeds});
}

} // namespace
} // namespace tallyhoop::qt
