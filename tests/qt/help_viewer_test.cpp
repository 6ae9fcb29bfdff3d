// tests/qt/help_viewer_test.cpp - opening, contents, links and search in the real window.
#include "fakes/scratch_folder.h"
#include "qt/services/help_window.h"
#include "qt/services/qt_help_viewer.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;

namespace {

std::string helpText()
{
    std::string html = "<html><head><meta charset=\"utf-8\"></head><body><h1 id=\"start\">Start</h1><p>Begin "
                       "here. <a href=\"#files\">Files</a></p>";
    for (int i = 0; i < 200; ++i)
        html += "<p>A paragraph.</p>";
    return html + "<h1>Pools</h1><h2 id=\"files\">Files and b\xc3\xa4"
                  "ckups</h2><p>Copy the folder. A Folder is "
                  "all.</p></body></html>";
}

struct Help {
    Result<Done> show(const std::string& topic = {}) { return viewer.show(file, topic); }
    HelpWindow* window()
    {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* help = qobject_cast<HelpWindow*>(top))
                return help;
        return nullptr;
    }
    template <class Kind>
    Kind& part(const char* name)
    {
        return *window()->findChild<Kind*>(QLatin1String{name});
    }

    tallyhoop::test::ScratchFolder scratch;
    std::filesystem::path file = scratch.put("TALLYHOOP.HLP", helpText());
    QtHelpViewer viewer{nullptr};
};

} // namespace

TEST(HelpViewer, AMissingOrEmptyFileIsAFailure)
{
    Help help;
    const auto missing = help.viewer.show(help.scratch.path() / "none.HLP", "");
    ASSERT_FALSE(missing);
    EXPECT_FALSE(missing.failure().message.empty());
    EXPECT_FALSE(help.viewer.show(help.scratch.put("empty.HLP", " \r\n"), ""));
    EXPECT_FALSE(help.viewer.show(help.scratch.path(), ""));
    EXPECT_EQ(help.window(), nullptr);
}

TEST(HelpViewer, ListsItsHeadingsAsContents)
{
    Help help;
    ASSERT_TRUE(help.show());
    auto& contents = help.part<QTreeWidget>("helpContents");
    ASSERT_EQ(contents.topLevelItemCount(), 2);
    EXPECT_EQ(contents.topLevelItem(0)->text(0), QStringLiteral("Start"));
    ASSERT_EQ(contents.topLevelItem(1)->childCount(), 1);
    EXPECT_EQ(contents.topLevelItem(1)->child(0)->text(0), QString::fromUtf8("Files and bäckups"));
}

TEST(HelpViewer, OpensAtATopic)
{
    Help help;
    ASSERT_TRUE(help.show("files"));
    QTest::qWait(0);
    EXPECT_GT(help.part<HelpText>("helpText").verticalScrollBar()->value(), 500);
    ASSERT_TRUE(help.show());
    EXPECT_EQ(help.part<HelpText>("helpText").verticalScrollBar()->value(), 0);
}

TEST(HelpViewer, GoesBackOnlyToWhatWasRead)
{
    Help help;
    ASSERT_TRUE(help.show("files"));
    EXPECT_FALSE(help.part<HelpText>("helpText").isBackwardAvailable());
    ASSERT_TRUE(help.show("start"));
    EXPECT_TRUE(help.part<HelpText>("helpText").isBackwardAvailable());
}

TEST(HelpViewer, OneWindowServesEveryCall)
{
    Help help;
    ASSERT_TRUE(help.show());
    const HelpWindow* first = help.window();
    ASSERT_TRUE(help.show("files"));
    EXPECT_EQ(help.window(), first);
}

TEST(HelpViewer, OpenedFromAModalDialogItCanBeUsed)
{
    Help help;
    ASSERT_TRUE(help.show());
    QDialog dialog;
    QTimer::singleShot(0, &dialog, [&] {
        EXPECT_TRUE(help.show("files"));
        EXPECT_EQ(help.window()->parentWidget(), &dialog);
        dialog.accept();
    });
    dialog.exec();
    ASSERT_TRUE(help.show());
    EXPECT_EQ(help.window()->parentWidget(), nullptr);
}

TEST(HelpViewer, FollowsTheContentsAndALink)
{
    Help help;
    ASSERT_TRUE(help.show());
    QTest::qWait(0);
    auto& text = help.part<HelpText>("helpText");
    auto& contents = help.part<QTreeWidget>("helpContents");
    contents.setCurrentItem(contents.topLevelItem(0));
    contents.setCurrentItem(contents.topLevelItem(1)->child(0));
    EXPECT_GT(text.verticalScrollBar()->value(), 500);
    contents.setCurrentItem(contents.topLevelItem(0));
    EXPECT_LT(text.verticalScrollBar()->value(), 50);
    Q_EMIT text.anchorClicked(QUrl{QStringLiteral("help.html#files")});
    text.setSource(QUrl{QStringLiteral("help.html#files")});
    EXPECT_GT(text.verticalScrollBar()->value(), 500);
    EXPECT_TRUE(text.isBackwardAvailable());
}

TEST(HelpViewer, SearchCountsItsMatchesAndStepsThroughThem)
{
    Help help;
    ASSERT_TRUE(help.show());
    auto& search = help.part<QLineEdit>("helpSearch");
    const auto& count = help.part<QLabel>("helpMatches");
    search.setText(QStringLiteral("folder"));
    EXPECT_EQ(count.text(), QStringLiteral("1 of 2"));
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(count.text(), QStringLiteral("2 of 2"));
    QTest::keyClick(&search, Qt::Key_Return);
    EXPECT_EQ(count.text(), QStringLiteral("1 of 2"));
    search.setText(QStringLiteral("nowhere"));
    EXPECT_EQ(count.text(), QStringLiteral("not found"));
    search.clear();
    EXPECT_EQ(count.text(), QString{});
}
