// tests/qt/file_drops_test.cpp - files dropped onto the frame reach the screen that is shown, and no box of it.
#include "qt/main_frame.h"
#include "qt/sample_screen.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

using test::SamplePage;
using test::SampleScreen;

struct FileDropsTest : testing::Test {
    FileDropsTest()
    {
        screen.wantsFiles = true;
        frame.addPage(page);
        frame.show();
        desk.push();
    }
    ~FileDropsTest() override { frame.removePage(page); }

    /// @returns whether the window took it
    static bool drop(QWidget* widget, const QMimeData& data)
    {
        const QPoint middle = widget->rect().center();
        QDragEnterEvent enter{middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(widget, &enter);
        if (!enter.isAccepted())
            return false;
        QDragMoveEvent move{middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(widget, &move);
        QDropEvent dropped{middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(widget, &dropped);
        return dropped.isAccepted();
    }

    static void drop(QWidget* widget, const QList<QUrl>& files)
    {
        QMimeData data;
        data.setUrls(files);
        drop(widget, data);
        QApplication::processEvents();
    }

    const QList<QUrl> files{QUrl::fromLocalFile(QStringLiteral("/tmp/Ann & Bob.eml")),
                            QUrl::fromLocalFile(QStringLiteral("/tmp/Smith_JS.THC"))};
    const std::vector<std::string> both{"dropped /tmp/Ann & Bob.eml", "dropped /tmp/Smith_JS.THC"};
    SampleScreen screen;
    MainFrame frame;
    Desk desk{&frame};
    SamplePage page{screen, desk};
};

TEST_F(FileDropsTest, ReachTheScreenWhereverTheyAreDropped)
{
    drop(page.title, files);
    EXPECT_EQ(screen.log, both);
}

TEST_F(FileDropsTest, AreNoTextForABox)
{
    drop(page.name, files);
    drop(page.notes->viewport(), files);
    std::vector<std::string> twice = both;
    twice.insert(twice.end(), both.begin(), both.end());
    EXPECT_EQ(screen.log, twice);
    EXPECT_EQ(screen.txtName.text, "");
    EXPECT_EQ(screen.txtNotes.text, "");
}

TEST_F(FileDropsTest, ATextIsStillForTheBoxBelow)
{
    QMimeData text;
    text.setText(QStringLiteral("Ann Smith"));
    EXPECT_TRUE(drop(page.name, text));
    EXPECT_EQ(page.name->text(), QStringLiteral("Ann Smith"));
    EXPECT_FALSE(drop(page.title, text));
}

TEST_F(FileDropsTest, AddressesOfTheNetAreNoFiles)
{
    QMimeData link;
    link.setUrls({QUrl{QStringLiteral("https://example.org/Smith_JS.THC")}});
    EXPECT_FALSE(drop(page.title, link));
}

TEST_F(FileDropsTest, AreRefusedByAScreenThatHasNoUseForThem)
{
    screen.wantsFiles = false;
    QMimeData data;
    data.setUrls(files);
    EXPECT_FALSE(drop(page.title, data));
}

TEST_F(FileDropsTest, AreRefusedWhileABoxIsOpen)
{
    QMimeData data;
    data.setUrls(files);
    const Desk::Modal box{desk};
    EXPECT_FALSE(drop(page.title, data));
}

} // namespace
} // namespace tallyhoop::qt
