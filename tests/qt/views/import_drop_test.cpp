// tests/qt/views/import_drop_test.cpp - files dropped onto the frame become rows of the import.
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/selection_file.h"
#include "qt/main_frame.h"
#include "qt/views/import_view.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTableView>
#include <QUrl>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

class ImportDropTest : public testing::Test
{
protected:
    ImportDropTest()
    {
        field.finalized = "1";
        import.load();
        frame.addPage(view);
        frame.show();
        desk.push();
    }
    ~ImportDropTest() override { frame.removePage(view); }

    QUrl fileOf(const std::string& name)
    {
        const Entry entry{startingBracket(field), "X", name, "142", {}};
        return QUrl::fromLocalFile(QString::fromStdString(inbox.put(name + ".THC", selectionFile(entry)).string()));
    }

    /// As a file manager does: enters, moves, lets go.
    static void drop(QWidget* onto, const QList<QUrl>& files)
    {
        QMimeData data;
        data.setUrls(files);
        const QPoint middle = onto->rect().center();
        QDragEnterEvent enter{middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(onto, &enter);
        ASSERT_TRUE(enter.isAccepted());
        QDragMoveEvent move{middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(onto, &move);
        EXPECT_TRUE(move.isAccepted());
        QDropEvent dropped{middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(onto, &dropped);
        EXPECT_TRUE(dropped.isAccepted());
        QApplication::processEvents(); // read after the drop
    }

    std::string nameInRow(int row) const { return table.model()->index(row, 2).data().toString().toStdString(); }

    test::ScratchFolder pool;
    test::ScratchFolder inbox;
    DataFolder folder{pool.folder()};
    test::FakePlatform platform;
    test::FakeScreens screens;
    test::FakeOpenSelection board;
    std::vector<std::filesystem::path> droppedOntoBoard;
    Field field = defaultField();
    ImportScreen import{folder, platform.services, screens, {field, board, droppedOntoBoard}, nullptr};
    MainFrame frame;
    Desk desk{&frame};
    ImportView view{import, desk};
    QTableView& table = *view.findChild<QTableView*>(QStringLiteral("grdEntries"));
};

TEST_F(ImportDropTest, SeveralFilesBecomeRows)
{
    drop(table.viewport(), {fileOf("Ann"), fileOf("Bo")});
    ASSERT_EQ(table.model()->rowCount(), 2);
    EXPECT_EQ(nameInRow(0), "Ann");
    EXPECT_EQ(nameInRow(1), "Bo");
    EXPECT_TRUE(folder.files(".THC").empty()) << "nothing is written yet";
}

TEST_F(ImportDropTest, AFileOntoTheBoxForTextsIsReadAsAFile)
{
    auto* const box = view.findChild<QAbstractScrollArea*>(QStringLiteral("txtPasted"));
    drop(box->viewport(), {fileOf("Ann")});
    ASSERT_EQ(table.model()->rowCount(), 1);
    EXPECT_EQ(nameInRow(0), "Ann");
    EXPECT_EQ(import.txtPasted.text, "");
}

TEST_F(ImportDropTest, AFolderBringsWhatIsInIt)
{
    fileOf("Ann");
    fileOf("Bo");
    drop(view.findChild<QWidget*>(QStringLiteral("lblRegion_0")),
         {QUrl::fromLocalFile(QString::fromStdString(inbox.path().string()))});
    EXPECT_EQ(table.model()->rowCount(), 2);
}

} // namespace
} // namespace tallyhoop::qt
