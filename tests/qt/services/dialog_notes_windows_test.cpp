// tests/qt/services/dialog_notes_windows_test.cpp - what a file dialog leaves in the registry.
#include "fakes/scratch_folder.h"
#include "qt/asking.h"

#include <QFileDialog>
#include <QSettings>

namespace tallyhoop::qt {
namespace {

/// The notes of every program that is made with Qt, as they were before the test once it is over.
class DialogNotesTest : public testing::Test
{
protected:
    DialogNotesTest()
    {
        notes.beginGroup(QStringLiteral("FileDialog"));
        const QStringList keys = notes.allKeys();
        for (const QString& key : keys)
            before[key] = notes.value(key);
        notes.remove({});
    }

    ~DialogNotesTest() override
    {
        notes.remove({});
        for (const auto& [key, value] : before)
            notes.setValue(key, value);
    }

    void openAndCancel() const
    {
        test::Asking asking;
        test::withNext<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
        EXPECT_EQ(asking.dialogs.openFile({"Open", "All", "*", scratch.path(), ""}), std::nullopt);
        test::withNext<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
        EXPECT_TRUE(asking.dialogs.openFiles({"Open", "All", "*", scratch.path(), ""}).empty());
        test::withNext<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
        EXPECT_EQ(asking.dialogs.chooseFolder("Folder", scratch.path()), std::nullopt);
    }

    tallyhoop::test::ScratchFolder scratch;
    QSettings notes{QSettings::UserScope, QStringLiteral("QtProject")};
    std::map<QString, QVariant> before;
};

TEST_F(DialogNotesTest, ThereAreNoneOfOurs)
{
    openAndCancel();
    EXPECT_EQ(notes.allKeys(), QStringList{});
}

TEST_F(DialogNotesTest, ThoseOfOtherProgramsAreKept)
{
    const QStringList visited{QStringLiteral("file:///C:/one"), QStringLiteral("file:///C:/two")};
    notes.setValue(QStringLiteral("history"), visited);
    notes.setValue(QStringLiteral("sidebarWidth"), 123);
    openAndCancel();
    EXPECT_EQ(notes.allKeys(), (QStringList{QStringLiteral("history"), QStringLiteral("sidebarWidth")}));
    EXPECT_EQ(notes.value(QStringLiteral("history")).toStringList(), visited);
    EXPECT_EQ(notes.value(QStringLiteral("sidebarWidth")).toInt(), 123);
}

} // namespace
} // namespace tallyhoop::qt
