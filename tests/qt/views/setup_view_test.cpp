// tests/qt/views/setup_view_test.cpp - the setup screen in its window: its places, the team boxes and the list.
#include "qt/views/setup_view_fixture.h"
#include "qt/widgets/page_area.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace tallyhoop::qt {
namespace {

using test::crlf;

TEST_F(SetupViewTest, ShowsEveryControl)
{
    EXPECT_EQ(view->controlsWithoutWidget(), std::vector<std::string>{});
    EXPECT_EQ(team(0).text(), "TEAM1");
    EXPECT_EQ(team(63).text(), "TEAM64");
    EXPECT_EQ(widget<QLabel>(setup.lblSeed[17]).text(), "16");
    EXPECT_EQ(widget<QLineEdit>(setup.TxtInfo[0]).text(), "2001 NCAA Tournament");
    EXPECT_TRUE(widget<QLineEdit>(setup.txtInfo6[3]).toolTip().contains("Points for each win in Regional Finals"));
}

TEST_F(SetupViewTest, FitsASmallScreen)
{
    // 768 lines less the title bar and a panel of the desktop.
    EXPECT_LE(view->findChild<PageArea*>()->widget()->minimumSizeHint().width(), 1024);
    EXPECT_LE(view->minimumSizeHint().height(), 700);
    view->resize(1366, 700);
    QApplication::processEvents();
    const auto& area = *view->findChild<PageArea*>();
    EXPECT_EQ(area.widget()->height(), area.viewport()->height()) << "it scrolls";
}

TEST_F(SetupViewTest, ClipsAndCoversNothing)
{
    std::vector<std::pair<QWidget*, QRect>> placed;
    for (const ui::Control* control : setup.controls()) {
        QWidget* shown = view->widgetOf(*control);
        if (!shown || !shown->isVisible())
            continue;
        const QRect place{shown->mapTo(view.get(), QPoint{0, 0}), shown->size()};
        EXPECT_TRUE(view->rect().contains(place)) << control->name;
        const int needed = shown->hasHeightForWidth() ? shown->heightForWidth(shown->width()) // text that wraps
                                                      : shown->sizeHint().height();
        EXPECT_GE(shown->height(), std::min(needed, shown->maximumHeight())) << control->name;
        for (const auto& [other, where] : placed)
            EXPECT_FALSE(where.intersects(place)) << control->name << " and " << other->objectName().toStdString();
        placed.emplace_back(shown, place);
    }
    EXPECT_GT(placed.size(), 150U);
}

TEST_F(SetupViewTest, ArrangesTheRegionsAsTheBoardDoes)
{
    const auto corner = [this](std::size_t box) { return team(box).mapTo(view.get(), QPoint{0, 0}); };
    EXPECT_LT(corner(0).y(), corner(16).y()); // 1 above 2
    EXPECT_EQ(corner(0).x(), corner(16).x());
    EXPECT_LT(corner(0).x(), corner(32).x()); // 3 to the right of 1
    EXPECT_EQ(corner(0).y(), corner(32).y());
    EXPECT_EQ(corner(32).x(), corner(48).x()); // 4 below 3
    EXPECT_EQ(corner(16).y(), corner(48).y());
}

TEST_F(SetupViewTest, TabGoesThroughTheBoxesInTheirOrder)
{
    ASSERT_EQ(view->focusWidget(), &team(0));
    for (int tab = 1; tab <= 83; ++tab) {
        press(Qt::Key_Tab);
        EXPECT_EQ(view->focusWidget(), view->widgetOf(*setup.controlAtTab(tab))) << tab;
    }
}

TEST_F(SetupViewTest, TypingAheadCompletesTheBoxAndSelectsTheRest)
{
    type("du");
    EXPECT_EQ(team(0).text(), "Duke");
    EXPECT_EQ(team(0).selectedText(), "ke");
    EXPECT_EQ(setup.txtRegion[0].text, "Duke");
    EXPECT_EQ(list().currentIndex().row(), 1);
    type("x");
    EXPECT_EQ(team(0).text(), "Duke");
    type("q");
    EXPECT_EQ(team(0).text(), "Duquesne");
    press(Qt::Key_Backspace);
    EXPECT_EQ(team(0).text(), "Duke");
    press(Qt::Key_Delete);
    EXPECT_EQ(team(0).text(), "");
}

TEST_F(SetupViewTest, TypingReplacesTheTextOfABoxThatWasClickedInto)
{
    const QPoint middle{20, team(5).height() / 2}; // within "TEAM6"
    QTest::mouseClick(&team(5), Qt::LeftButton, {}, middle);
    QApplication::processEvents();
    EXPECT_EQ(team(5).selectedText(), "TEAM6");
    type("duk");
    EXPECT_EQ(team(5).text(), "Duke");
}

TEST_F(SetupViewTest, WhatTheMouseSelectsWithItsFirstPressStaysSelected)
{
    const int line = team(5).height() / 2;
    QTest::mousePress(&team(5), Qt::LeftButton, {}, {2, line});
    QTest::mouseMove(&team(5), {25, line});
    QTest::mouseRelease(&team(5), Qt::LeftButton, {}, {25, line});
    QApplication::processEvents();
    EXPECT_TRUE(team(5).hasSelectedText());
    EXPECT_LT(team(5).selectedText().size(), 5);
}

TEST_F(SetupViewTest, AClickIntoABoxWithoutSuchARulePutsTheCaretThere)
{
    auto& title = widget<QLineEdit>(setup.TxtInfo[0]);
    QTest::mouseClick(&title, Qt::LeftButton, {}, {40, title.height() / 2});
    QApplication::processEvents();
    EXPECT_FALSE(title.hasSelectedText());
}

TEST_F(SetupViewTest, EnterGoesToTheNextBoxWhereTypingReplacesTheText)
{
    type("iowa");
    press(Qt::Key_Return);
    EXPECT_EQ(view->focusWidget(), &team(1));
    type("k");
    press(Qt::Key_Enter);
    EXPECT_EQ(team(0).text(), "Iowa");
    EXPECT_EQ(team(1).text(), "Kansas");
    EXPECT_EQ(view->focusWidget(), &team(2));
}

TEST_F(SetupViewTest, AWholeFieldIsEnteredWithTheKeyboardAlone)
{
    const QStringList names{"Akron", "Duke", "Duquesne", "Iowa", "Iowa St.", "Kansas"};
    for (int i = 0; i < 64; ++i) {
        type(names[i % 6].toLower());
        press(Qt::Key_Return);
    }
    for (int i = 0; i < 64; ++i)
        EXPECT_EQ(team(static_cast<std::size_t>(i)).text(), names[i % 6]) << i;
    EXPECT_EQ(view->focusWidget(), &team(0));
}

TEST_F(SetupViewTest, AnArrowKeyGoesToTheListAndEnterComesBackWithTheName)
{
    press(Qt::Key_Down);
    EXPECT_EQ(view->focusWidget(), &list());
    EXPECT_EQ(team(0).text(), "");
    EXPECT_EQ(team(0).palette().color(QPalette::Base), (QColor{0x80, 0xFF, 0x80}));
    EXPECT_EQ(list().currentIndex().row(), 0);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(team(0).text(), "Duke");
    EXPECT_EQ(view->focusWidget(), &team(1));
    EXPECT_NE(team(0).palette().color(QPalette::Base), (QColor{0x80, 0xFF, 0x80}));
    EXPECT_FALSE(list().selectionModel()->hasSelection());
}

TEST_F(SetupViewTest, AMousePressOnTheListMarksTheBoxThatEnterFills)
{
    press(Qt::Key_Tab);
    pressRow(5);
    EXPECT_EQ(view->focusWidget(), &list());
    EXPECT_EQ(team(1).palette().color(QPalette::Base), (QColor{0x80, 0xFF, 0x80}));
    press(Qt::Key_Return);
    EXPECT_EQ(team(1).text(), "Kansas");
    EXPECT_EQ(view->focusWidget(), &team(2));
}

TEST_F(SetupViewTest, APressBesideTheRowsMarksTheBoxAsWell)
{
    press(Qt::Key_Tab);
    QWidget& viewport = *list().viewport();
    const QPoint beside{viewport.width() / 2, viewport.height() - 2};
    ASSERT_FALSE(list().indexAt(beside).isValid());
    QTest::mouseClick(&viewport, Qt::LeftButton, {}, beside);
    EXPECT_EQ(view->focusWidget(), &list());
    EXPECT_EQ(team(1).palette().color(QPalette::Base), (QColor{0x80, 0xFF, 0x80}));
}

TEST_F(SetupViewTest, APressWithTheOtherButtonMarksNothing)
{
    press(Qt::Key_Tab);
    const QColor background = team(1).palette().color(QPalette::Base);
    QTest::mouseClick(list().viewport(), Qt::RightButton, {}, list().visualRect(list().model()->index(5, 0)).center());
    EXPECT_EQ(view->focusWidget(), &list());
    EXPECT_EQ(team(1).palette().color(QPalette::Base), background);
}

TEST_F(SetupViewTest, WhatACutLeavesBehindIsDropped)
{
    type("iowa ");
    ASSERT_EQ(team(0).text(), "Iowa St.");
    QTest::keyClick(&team(0), Qt::Key_X, Qt::ControlModifier); // cuts "St."
    EXPECT_EQ(team(0).text(), "");
    EXPECT_EQ(setup.txtRegion[0].text, "");
}

TEST_F(SetupViewTest, APastedBlockFillsTheFollowingBoxes)
{
    QApplication::clipboard()->setText("kansas\nNowhere\nDUKE\n");
    QTest::keyClick(&team(0), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(team(0).text(), "Kansas");
    EXPECT_EQ(team(1).text(), "TEAM2");
    EXPECT_EQ(team(2).text(), "Duke");
    EXPECT_EQ(computer.dialogs.captionsShown(), std::vector<std::string>{"Team Names Pasted"});
}

TEST_F(SetupViewTest, OverrideModeTakesAnyText)
{
    widget<QPushButton>(setup.cmdOverride).click();
    EXPECT_FALSE(list().isEnabled());
    EXPECT_EQ(view->focusWidget(), &team(0));
    team(0).selectAll();
    type("Utopia");
    press(Qt::Key_Return);
    EXPECT_EQ(setup.txtRegion[0].text, "Utopia");
    EXPECT_EQ(view->focusWidget(), &team(1));
    computer.dialogs.answer(ui::Answer::Yes); // to saving the new name
    desk.run(setup, [this] { setup.mnuEnd.click(); });
    EXPECT_EQ(files.get("NCAALIST.THS"),
              crlf({"*START*", "Akron", "Duke", "Duquesne", "Iowa", "Iowa St.", "Kansas", "Utopia", "*END*"}));
}

TEST_F(SetupViewTest, TheListLooksDisabledWhileSelectingIsOverridden)
{
    const auto text = [this] { return list().palette().color(QPalette::Text); };
    EXPECT_EQ(text(), QColor(Qt::black));
    widget<QPushButton>(setup.cmdOverride).click();
    EXPECT_EQ(text(), (QColor{0x40, 0x7F, 0x40})); // halfway to the green background
    EXPECT_EQ(list().palette().color(QPalette::Base), (QColor{0x80, 0xFF, 0x80}));
    widget<QPushButton>(setup.cmdOverride).click();
    EXPECT_EQ(text(), QColor(Qt::black));
}

} // namespace
} // namespace tallyhoop::qt
