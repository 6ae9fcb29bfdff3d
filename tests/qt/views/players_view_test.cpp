// tests/qt/views/players_view_test.cpp - does the player list on screen reach the model, and the model the screen?
#include "qt/views/players_view.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "qt/widgets/page_area.h"
#include "screens/players/player_file.h"

#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

using test::csv;
using test::playerFile;

class PlayersViewTest : public testing::Test
{
protected:
    PlayersViewTest()
    {
        scratch.put("PLAYERNAMES.CSV", playerFile({csv("Adams,B", "ADAMS_B.THC", "b@example.org", "555-0101"),
                                                   csv("Smith,JS", "SMITH_JS.THC", "js@example.org", "555-0102")}));
        scratch.put("Adams_B.THC", "a bracket");
        names.load();
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        desk.push();
    }

    template <class Widget = QWidget>
    Widget* widget(const char* name) const
    {
        auto* found = view.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    void pressRow(int row)
    {
        auto* list = widget<QListView>("lstNames");
        const QRect place = list->visualRect(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place.center());
    }

    QString text(const char* box) const { return widget<QLineEdit>(box)->text(); }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    test::FakeScreens screens;
    std::optional<SavedPlayer> saved;
    Field field;
    PlayersScreen names{folder, platform.services, screens, saved, field};
    Desk desk;
    PlayersView view{names, desk};
};

TEST_F(PlayersViewTest, ShowsEveryControl) { EXPECT_EQ(view.controlsWithoutWidget(), std::vector<std::string>{}); }

TEST_F(PlayersViewTest, APressOnARowFillsTheBoxes)
{
    pressRow(1);
    EXPECT_EQ(text("txtName"), QStringLiteral("Smith,JS"));
    EXPECT_EQ(text("txtFileName"), QStringLiteral("SMITH_JS.THC"));
    EXPECT_EQ(text("txtEmail"), QStringLiteral("js@example.org"));
    EXPECT_EQ(text("txtPhone"), QStringLiteral("555-0102"));
}

TEST_F(PlayersViewTest, WhatIsTypedIsWritten)
{
    pressRow(0);
    auto* phone = widget<QLineEdit>("txtPhone");
    QTest::mouseClick(phone, Qt::LeftButton);
    phone->selectAll();
    QTest::keyClicks(phone, QStringLiteral("555-\"42\""));
    EXPECT_EQ(phone->text(), QStringLiteral("555-42")) << "a quote got in";
    QTest::mouseClick(widget("cmdChange"), Qt::LeftButton);
    QTest::mouseClick(widget("cmdExit"), Qt::LeftButton);
    EXPECT_EQ(scratch.get("PLAYERNAMES.CSV"),
              playerFile({csv("Adams,B", "ADAMS_B.THC", "b@example.org", "555-42"),
                          csv("Smith,JS", "SMITH_JS.THC", "js@example.org", "555-0102")}));
    EXPECT_EQ(screens.unloads, std::vector<ScreenKind>{ScreenKind::Players});
}

TEST_F(PlayersViewTest, TheFileNameCannotBeTyped)
{
    auto* file = widget<QLineEdit>("txtFileName");
    EXPECT_TRUE(file->isReadOnly());
    QTest::mouseClick(file, Qt::LeftButton);
    QTest::keyClicks(file, QStringLiteral("x"));
    EXPECT_EQ(file->text(), QString{});
}

TEST_F(PlayersViewTest, EscapeIsCancel)
{
    QTest::keyClick(widget("txtName"), Qt::Key_Escape);
    EXPECT_EQ(screens.unloads, std::vector<ScreenKind>{ScreenKind::Players});
}

TEST_F(PlayersViewTest, FitsASmallScreen)
{
    EXPECT_LE(view.findChild<PageArea*>()->widget()->minimumSizeHint().width(), 1366);
    EXPECT_LE(view.minimumSizeHint().height(), 700);
}

} // namespace
} // namespace tallyhoop::qt
