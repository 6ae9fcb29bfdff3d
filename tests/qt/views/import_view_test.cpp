// tests/qt/views/import_view_test.cpp - do ticks, the chosen entry and the summary reach the screen, and back?
#include "qt/views/import_view.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "qt/widgets/page_area.h"
#include "qt/widgets/slot_label.h"
#include "screens/import/entry_words.h"

#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

Field finalField()
{
    Field field = defaultField();
    for (const TeamRow row : allTeamRows())
        field.teams[row] = "Team " + std::to_string(index(row));
    field.finalized = "1";
    return field;
}

class ImportViewTest : public testing::Test
{
protected:
    ImportViewTest()
    {
        import.load();
        view.resize(1342, 684);
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        desk.push();
    }

    std::filesystem::path entryOf(const std::string& name)
    {
        Entry entry{startingBracket(field), "X", name, "142", {}};
        for (const Position position : gamePositions())
            entry.picks.copy(feeders(position)->front(), position);
        return inbox.put(std::to_string(m_files++) + ".THC", selectionFile(entry));
    }

    void read(const std::vector<std::string>& names)
    {
        std::vector<std::filesystem::path> files;
        for (const std::string& name : names)
            files.push_back(entryOf(name));
        desk.run(import, [&] { import.filesDropped(files); });
    }

    template <class Widget = QWidget>
    Widget* widget(const char* name) const
    {
        auto* found = view.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    void press(int row, EntryColumn column)
    {
        const QModelIndex cell = table.model()->index(row, static_cast<int>(column));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(cell).center());
    }

    bool isTicked(int row) const
    {
        return table.model()->index(row, 0).data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    }

    test::ScratchFolder pool;
    test::ScratchFolder inbox;
    DataFolder folder{pool.folder()};
    test::FakePlatform platform;
    test::FakeScreens screens;
    test::FakeOpenSelection board;
    std::vector<std::filesystem::path> dropped;
    Field field = finalField();
    ImportScreen import{folder, platform.services, screens, {field, board, dropped}, nullptr};
    Desk desk;
    ImportView view{import, desk};
    QTableView& table = *widget<QTableView>("grdEntries");

private:
    int m_files = 0;
};

TEST_F(ImportViewTest, ShowsEveryControl) { EXPECT_EQ(view.controlsWithoutWidget(), std::vector<std::string>{}); }

TEST_F(ImportViewTest, APressOnABoxTicks)
{
    read({"Ann", "Bo"});
    ASSERT_TRUE(isTicked(1));
    press(1, EntryColumn::Tick);
    EXPECT_FALSE(isTicked(1));
    EXPECT_TRUE(isTicked(0));
    press(1, EntryColumn::Name);
    EXPECT_FALSE(isTicked(1));
}

TEST_F(ImportViewTest, TwoQuickPressesOnABoxAreTwo)
{
    read({"Ann"});
    press(0, EntryColumn::Tick);
    const QModelIndex box = table.model()->index(0, 0);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(box).center());
    EXPECT_TRUE(isTicked(0));
}

TEST_F(ImportViewTest, TheKeyboardMovesAndTicks)
{
    read({"Ann", "Bo"});
    ASSERT_TRUE(table.hasFocus());
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_EQ(widget<QLabel>("lblEntry")->text(), QStringLiteral("Row 2: Bo"));
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_FALSE(isTicked(1));
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_TRUE(isTicked(1));
}

TEST_F(ImportViewTest, TheChosenEntrysBracketIsShown)
{
    read({"Ann", "Bo"});
    desk.run(import, [&] { import.grdEntries.current = ui::GridCell{1, 2}; });
    EXPECT_EQ(widget<SlotLabel>("lblRegion_126")->text(), QStringLiteral("Team 0"));
    EXPECT_GE(widget<SlotLabel>("lblRegion_126")->font().pixelSize(), 8);
    EXPECT_TRUE(widget<QPlainTextEdit>("txtDetails")->toPlainText().startsWith(QStringLiteral("New.\nName: Bo")));
}

TEST_F(ImportViewTest, TheSummaryIsThereOnceSomethingWasImported)
{
    EXPECT_FALSE(widget("txtSummary")->isVisible());
    read({"Ann"});
    QTest::mouseClick(widget<QPushButton>("cmdImport"), Qt::LeftButton);
    EXPECT_TRUE(pool.has("Ann_X.THC"));
    EXPECT_TRUE(widget("txtSummary")->isVisible());
    EXPECT_TRUE(widget("txtSummary")->hasFocus());
    EXPECT_EQ(table.model()->rowCount(), 0);
    QTest::mouseClick(widget<QPushButton>("cmdCopy"), Qt::LeftButton);
    EXPECT_EQ(platform.clipboard.text.substr(0, 24), "1 of 1 entry imported.\r\n");
}

TEST_F(ImportViewTest, WhatWouldHappenIsReadWholeInTheRow)
{
    read({"Ann", ""});
    const QModelIndex words = table.model()->index(1, static_cast<int>(EntryColumn::Words));
    ASSERT_EQ(words.data().toString(), QStringLiteral("Refused: The name is missing."));
    const QRect room = table.visualRect(words);
    ASSERT_GT(table.fontMetrics().horizontalAdvance(words.data().toString()), room.width()) << "too long for one line";
    EXPECT_GE(room.height(), 2 * table.fontMetrics().lineSpacing());
    EXPECT_LT(table.rowHeight(0), 2 * table.fontMetrics().lineSpacing()) << "New.";
    view.resize(2400, 684);
    QApplication::processEvents();
    EXPECT_EQ(table.rowHeight(1), table.rowHeight(0)) << "there is room for it in one line";
}

TEST_F(ImportViewTest, OnlyWhatWouldHappenTakesSeveralLines)
{
    read({"Bo Featherstonehaugh-Cholmondeley"});
    const auto pictureOf = [&](int column) {
        return table.viewport()->grab(table.visualRect(table.model()->index(0, column))).toImage();
    };
    const QImage wrapped = pictureOf(static_cast<int>(EntryColumn::Name));
    table.setWordWrap(false);
    EXPECT_EQ(pictureOf(static_cast<int>(EntryColumn::Name)), wrapped) << "as much of the name as there is room for";
}

TEST_F(ImportViewTest, FitsASmallDisplay)
{
    read({"Ann", "Bo"});
    QTest::mouseClick(widget<QPushButton>("cmdImport"), Qt::LeftButton); // with a summary, which needs room
    const QSize smallest = view.findChild<PageArea*>()->widget()->minimumSizeHint();
    EXPECT_LE(smallest.width(), 1280); // the frame on a large display
    EXPECT_LE(smallest.height(), 660);
}

TEST_F(ImportViewTest, MarkupInNamesIsText)
{
    read({"<b>Ann & Bo"});
    EXPECT_EQ(widget<QLabel>("lblEntry")->text(), QStringLiteral("Row 1: <b>Ann & Bo"));
    EXPECT_EQ(widget<QLabel>("lblEntry")->textFormat(), Qt::PlainText);
}

} // namespace
} // namespace tallyhoop::qt
