// tests/qt/views/reports_view_test.cpp - ticks, choices and typing reach the reports screen, and its changes are shown.
#include "qt/views/reports_view.h"

#include "app/wiring.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "qt/widgets/page_area.h"

#include <QApplication>
#include <QGroupBox>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

class ReportsViewTest : public testing::Test
{
protected:
    ReportsViewTest()
    {
        scratch.put("Adams_AB.THC", "");
        scratch.put("Baker_C.THC", "");
        shared.field.title = "Office Pool";
        reports.load();
        view.show();
        desk.push();
    }

    template <class Widget>
    Widget* widget(const char* name) const
    {
        auto* found = view.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    SharedValues shared;
    test::FakeScreens screens;
    test::FakeBoard board;
    ReportsScreen reports{folder, platform.services, screens, shared.field, shared.mailDraft, board};
    Desk desk;
    ReportsView view{reports, desk};
};

TEST_F(ReportsViewTest, ShowsEveryControl) { EXPECT_EQ(view.controlsWithoutWidget(), std::vector<std::string>{}); }

TEST_F(ReportsViewTest, FitsASmallScreen)
{
    EXPECT_LE(view.findChild<PageArea*>()->widget()->minimumSizeHint().width(), 1024);
    EXPECT_LE(view.minimumSizeHint().height(), 700);

    // Nor does it scroll on a display of 1024 x 768 pixels, whose title bars and panel take 68.
    view.resize(1024, 700);
    QApplication::processEvents();
    EXPECT_LE(view.findChild<PageArea*>()->widget()->height(), view.findChild<PageArea*>()->viewport()->height());
}

TEST_F(ReportsViewTest, TitlesItsFrames)
{
    EXPECT_EQ(widget<QGroupBox>("fraMultipleOutput")->title(), QStringLiteral("Multiple Output Options"));
    EXPECT_EQ(widget<QGroupBox>("fraPrinterOnly")->title(), QStringLiteral("Printer Only Options"));
    EXPECT_EQ(widget<QGroupBox>("fraCustomReports")->title(), QStringLiteral("Custom Reports Option"));
}

TEST_F(ReportsViewTest, TakesTicksChoicesAndTheTitleToTheModel)
{
    QTest::mouseClick(widget<QCheckBox>("chkOptions_3"), Qt::LeftButton);
    QTest::mouseClick(widget<QRadioButton>("optDestination_1"), Qt::LeftButton, {}, QPoint{8, 8});
    widget<QLineEdit>("txtReportTitle")->selectAll();
    QTest::keyClicks(widget<QLineEdit>("txtReportTitle"), QStringLiteral("Second Week"));
    view.pull();

    EXPECT_TRUE(reports.chkOptions[3].ticked);
    EXPECT_FALSE(reports.optDestination[0].selected);
    EXPECT_TRUE(reports.optDestination[1].selected);
    EXPECT_EQ(reports.txtReportTitle.text, "Second Week");
}

TEST_F(ReportsViewTest, ShowsTheModelsTicksAndTitle)
{
    reports.chkOptions[0].ticked = true;
    reports.txtReportTitle.text = "M\xE4rz";
    ui::selectOption(reports.optDestination, 2);
    desk.push();

    EXPECT_TRUE(widget<QCheckBox>("chkOptions_0")->isChecked());
    EXPECT_EQ(widget<QLineEdit>("txtReportTitle")->text(), QString::fromUtf8("M\u00E4rz"));
    EXPECT_TRUE(widget<QRadioButton>("optDestination_2")->isChecked());
    EXPECT_FALSE(widget<QRadioButton>("optDestination_0")->isChecked());
}

TEST_F(ReportsViewTest, StartsWithNeitherPrintoutAndKeepsThemApartFromTheDestinations)
{
    EXPECT_FALSE(widget<QRadioButton>("optSelected_0")->isChecked());
    EXPECT_FALSE(widget<QRadioButton>("optSelected_1")->isChecked());

    QTest::mouseClick(widget<QRadioButton>("optSelected_1"), Qt::LeftButton, {}, QPoint{8, 8});

    EXPECT_TRUE(reports.optSelected[1].selected);
    EXPECT_TRUE(reports.optDestination[0].selected);
}

TEST_F(ReportsViewTest, ListsTheFilesAndTakesTheChosenOne)
{
    auto* const list = widget<QListView>("filList");
    ASSERT_EQ(list->model()->rowCount(), 2);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(1, 0)).center());

    EXPECT_EQ(reports.filList.selectedText(), "Baker_C.THC");
}

TEST_F(ReportsViewTest, SavesTheWebPageByAKeyWhereverTheFocusIs)
{
    view.activateWindow();
    QApplication::processEvents();
    widget<QLineEdit>("txtReportTitle")->setFocus();
    platform.dialogs.pick(std::nullopt);

    QTest::keyClick(widget<QLineEdit>("txtReportTitle"), Qt::Key_F12);

    ASSERT_EQ(platform.dialogs.fileChoices.size(), 1u);
    EXPECT_EQ(platform.dialogs.fileChoices[0].proposedName, "POOL.HTML");
}

TEST_F(ReportsViewTest, PressesReachTheCommands)
{
    QTest::mouseClick(widget<QPushButton>("cmdDefaultPrinter"), Qt::LeftButton);
    EXPECT_EQ(widget<QPushButton>("cmdDefaultPrinter")->text(), QStringLiteral("Select non &default printer"));

    QTest::mouseClick(widget<QPushButton>("cmdExit"), Qt::LeftButton);
    EXPECT_EQ(screens.unloads, std::vector{ScreenKind::Reports});
}

} // namespace
} // namespace tallyhoop::qt
