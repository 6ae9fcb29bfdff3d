// tests/qt/services/file_dialog_test.cpp - choosing a file: what is offered, and what a typed name means.
#include "qt/services/file_dialog.h"

#include "fakes/scratch_folder.h"
#include "qt/asking.h"
#include "qt/paths.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

TEST(FileDialog, FilesAreOfferedWithoutRegardToCase)
{
    const tallyhoop::test::ScratchFolder scratch;
    scratch.put("Upper_A.THC", "");
    scratch.put("lower_b.thc", "");
    scratch.put("other.txt", "");
    Asking asking;
    QStringList names;
    QTimer::singleShot(0, qApp, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("PoolSelections (*.THC)"));
        auto* list = dialog->findChild<QListView*>(QStringLiteral("listView"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 2; }));
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
            names.append(list->model()->index(row, 0, list->rootIndex()).data().toString());
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("lower_b.thc"));
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
    });
    const auto chosen = asking.dialogs.openFile({"Open", "PoolSelections (*.THC)", "*.THC", scratch.path(), ""});
    EXPECT_EQ(chosen, scratch.path() / "lower_b.thc");
    names.sort(Qt::CaseInsensitive);
    EXPECT_EQ(names, (QStringList{QStringLiteral("lower_b.thc"), QStringLiteral("Upper_A.THC")}));
}

TEST(FileDialog, ATypedNameMayBeInAnyCase)
{
    const tallyhoop::test::ScratchFolder scratch;
    scratch.put("Smith_JS.THC", "");
    scratch.put("clark_d.thc", "");
    scratch.put("CLARK_D.THC", ""); // on Windows the same file
    Asking asking;
    const auto opened = [&](const QString& typed, bool byKey) {
        QTimer giveUp; // closes the box that says that there is no such file
        QObject::connect(&giveUp, &QTimer::timeout, [] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                box->reject();
        });
        withNext<QFileDialog>([&](QFileDialog& dialog) {
            auto& name = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name.setText(typed);
            giveUp.start();
            if (byKey)
                QTest::keyClick(&name, Qt::Key_Return);
            else
                QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open),
                                  Qt::LeftButton);
            if (dialog.isVisible())
                dialog.reject();
        });
        return asking.dialogs.openFile({"Open", "PoolSelections (*.THC)", "*.THC", scratch.path(), ""});
    };
    for (const bool byKey : {false, true}) {
        EXPECT_EQ(opened(QStringLiteral("SMITH_js.thc"), byKey), scratch.path() / "Smith_JS.THC");
        EXPECT_EQ(opened(fromPath(scratch.path() / "smith_js.thc"), byKey), scratch.path() / "Smith_JS.THC");
        EXPECT_EQ(opened(QStringLiteral("clark_d.thc"), byKey), scratch.path() / "clark_d.thc") << "the exact one wins";
#ifdef _WIN32
        EXPECT_EQ(opened(QStringLiteral("CLARK_D.THC"), byKey), scratch.path() / "clark_d.thc");
#else
        EXPECT_EQ(opened(QStringLiteral("Clark_D.thc"), byKey), scratch.path() / "CLARK_D.THC");
#endif
        EXPECT_EQ(opened(QStringLiteral("smith_jx.thc"), byKey), std::nullopt);
    }
}

#ifndef _WIN32 // where no name may hold one
TEST(FileDialog, SeveralFilesAreChosenByTheirNames)
{
    const tallyhoop::test::ScratchFolder scratch;
    for (const char* name : {"Ann.eml", "Smith_JS.THC", "The \"Shark\"_S.THC", "list.csv"})
        scratch.put(name, "");
    Asking asking;
    const auto opened = [&](const QString& typed) {
        withNext<QFileDialog>([&](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(typed);
            QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open), Qt::LeftButton);
            if (dialog.isVisible())
                dialog.reject();
        });
        std::vector<std::string> names;
        for (const auto& file : asking.dialogs.openFiles({"Open", "Entries", "*.THC *.EML", scratch.path(), ""}))
            names.push_back(file.filename().string());
        return names;
    };
    EXPECT_EQ(opened(QStringLiteral("\"Ann.eml\" \"Smith_JS.THC\"")),
              (std::vector<std::string>{"Ann.eml", "Smith_JS.THC"}));
    EXPECT_EQ(opened(QStringLiteral("smith_js.thc")), std::vector<std::string>{"Smith_JS.THC"});
    EXPECT_EQ(opened(QStringLiteral("The \"Shark\"_S.THC")), std::vector<std::string>{"The \"Shark\"_S.THC"});
}

TEST(FileDialog, QuotationMarksBelongToANameUnlessTheyEncloseIt)
{
    const tallyhoop::test::ScratchFolder scratch;
    scratch.put("Smith_JS.THC", "");
    scratch.put("The \"Shark\"_S.THC", "");
    Asking asking;
    const auto opened = [&](const QString& typed) {
        withNext<QFileDialog>([&](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(typed);
            QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open), Qt::LeftButton);
            if (dialog.isVisible())
                dialog.reject();
        });
        return asking.dialogs.openFile({"Open", "PoolSelections (*.THC)", "*.THC", scratch.path(), ""});
    };
    EXPECT_EQ(opened(QStringLiteral("\"Smith_JS.THC\"")), scratch.path() / "Smith_JS.THC");
    EXPECT_EQ(opened(QStringLiteral("The \"Shark\"_S.THC")), scratch.path() / "The \"Shark\"_S.THC");
}

namespace {

/// A dialog on a folder with quotation marks in its name. Whatever it does, it is gone after half a minute.
struct InAQuotedFolder {
    InAQuotedFolder()
    {
        std::filesystem::create_directory(folder);
        scratch.put("Den \"7\"/Smith_JS.THC", "");
        QObject::connect(&giveUp, &QTimer::timeout, [] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
        });
    }

    std::optional<std::filesystem::path> chosen(bool save, const std::function<void(QFileDialog&)>& act)
    {
        withNext<QFileDialog>([&](QFileDialog& dialog) {
            giveUp.start(30'000);
            act(dialog);
        });
        const ui::FileChoice choice{"File", "PoolSelections (*.THC)", "*.THC", folder, save ? "Clark_D.THC" : ""};
        return save ? asking.dialogs.saveFile(choice) : asking.dialogs.openFile(choice);
    }

    static QLineEdit& name(QFileDialog& dialog)
    {
        return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    }

    static void press(QFileDialog& dialog, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
    }

    static void clickListed(QFileDialog& dialog, const QString& name)
    {
        auto& list = *dialog.findChild<QListView*>(QStringLiteral("listView"));
        QModelIndexList found;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            if (list.model()->rowCount(list.rootIndex()) > 0)
                found = list.model()->match(list.model()->index(0, 0, list.rootIndex()), Qt::DisplayRole, name);
            return !found.isEmpty();
        }));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(found.value(0)).center());
    }

    tallyhoop::test::ScratchFolder scratch;
    std::filesystem::path folder{scratch.path() / "Den \"7\""};
    Asking asking;
    QTimer giveUp;
};

} // namespace

TEST(FileDialog, AFileIsOpenedByItsNameInAFolderWithQuotationMarks)
{
    InAQuotedFolder den;
    for (const char* typed : {"Smith_JS.THC", "smith_js.thc", "\"Smith_JS.THC\""}) {
        const auto opened = den.chosen(false, [&](QFileDialog& dialog) {
            den.name(dialog).setText(QString::fromLatin1(typed));
            QTest::keyClick(&den.name(dialog), Qt::Key_Return);
        });
        EXPECT_EQ(opened, den.folder / "Smith_JS.THC") << typed;
        const auto pressed = den.chosen(false, [&](QFileDialog& dialog) {
            den.name(dialog).setText(QString::fromLatin1(typed));
            den.press(dialog, QDialogButtonBox::Open);
        });
        EXPECT_EQ(pressed, den.folder / "Smith_JS.THC") << typed;
    }
    const auto opened = den.chosen(false, [&](QFileDialog& dialog) {
        den.name(dialog).setText(fromPath(den.folder / "Smith_JS.THC"));
        QTest::keyClick(&den.name(dialog), Qt::Key_Return);
    });
    EXPECT_EQ(opened, den.folder / "Smith_JS.THC") << "by its full path";
}

TEST(FileDialog, AFileIsOpenedFromTheListOfAFolderWithQuotationMarks)
{
    InAQuotedFolder den;
    den.scratch.put("Den \"7\"/The \"Shark\"_S.THC", "");
    for (const char* name : {"Smith_JS.THC", "The \"Shark\"_S.THC"}) {
        const auto opened = den.chosen(false, [&](QFileDialog& dialog) {
            den.clickListed(dialog, QString::fromLatin1(name));
            den.press(dialog, QDialogButtonBox::Open);
        });
        EXPECT_EQ(opened, den.folder / name);
    }
}

TEST(FileDialog, AFileIsSavedInAFolderWithQuotationMarks)
{
    InAQuotedFolder den;
    EXPECT_EQ(den.chosen(true, [&](QFileDialog& dialog) { den.press(dialog, QDialogButtonBox::Save); }),
              den.folder / "Clark_D.THC");
    EXPECT_EQ(den.chosen(true,
                         [&](QFileDialog& dialog) {
                             den.name(dialog).setText(QStringLiteral("Adams_B.THC"));
                             QTest::keyClick(&den.name(dialog), Qt::Key_Return);
                         }),
              den.folder / "Adams_B.THC");
}

TEST(FileDialog, AFolderWithQuotationMarksIsEntered)
{
    InAQuotedFolder den;
    const std::filesystem::path quoted = den.scratch.path() / "\"Home\"";
    std::filesystem::create_directory(quoted);
    den.scratch.put("\"Home\"/Smith_JS.THC", "");
    const auto openedIn = [&](const std::filesystem::path& folder, bool fromList) {
        withNext<QFileDialog>([&](QFileDialog& dialog) {
            den.giveUp.start(30'000);
            const QString name = fromPath(folder.filename());
            fromList ? den.clickListed(dialog, name) : den.name(dialog).setText(name);
            den.press(dialog, QDialogButtonBox::Open);
            den.name(dialog).setText(QStringLiteral("smith_js.thc"));
            QTest::keyClick(&den.name(dialog), Qt::Key_Return);
        });
        return den.asking.dialogs.openFile({"Open", "PoolSelections (*.THC)", "*.THC", den.scratch.path(), ""});
    };
    for (const bool fromList : {false, true}) {
        EXPECT_EQ(openedIn(den.folder, fromList), den.folder / "Smith_JS.THC") << fromList;
        EXPECT_EQ(openedIn(quoted, fromList), quoted / "Smith_JS.THC") << fromList;
    }
}

TEST(FileDialog, AFolderWithQuotationMarksIsChosen)
{
    InAQuotedFolder den;
    const auto chosenIn = [&](const std::filesystem::path& folder, const std::function<void(QFileDialog&)>& act) {
        withNext<QFileDialog>([&](QFileDialog& dialog) {
            den.giveUp.start(30'000);
            act(dialog);
            den.press(dialog, QDialogButtonBox::Open);
        });
        return den.asking.dialogs.chooseFolder("Folder", folder);
    };
    EXPECT_EQ(chosenIn(den.folder, [](QFileDialog&) {}), den.folder) << "the one that is shown";
    const QString name = fromPath(den.folder.filename());
    EXPECT_EQ(chosenIn(den.scratch.path(), [&](QFileDialog& dialog) { den.name(dialog).setText(name); }), den.folder);
    EXPECT_EQ(chosenIn(den.scratch.path(), [&](QFileDialog& dialog) { den.clickListed(dialog, name); }), den.folder);
}
#endif

TEST(FileDialog, SavingProposesANameAndNeverAsksAboutReplacing)
{
    const tallyhoop::test::ScratchFolder scratch;
    scratch.put("Smith_JS.THC", "old");
    Asking asking;
    withNext<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(), QStringLiteral("Smith_JS.THC"));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    EXPECT_EQ(asking.dialogs.saveFile({"Save", "PoolSelections (*.THC)", "*.THC", scratch.path(), "Smith_JS.THC"}),
              scratch.path() / "Smith_JS.THC");
    withNext<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(asking.dialogs.saveFile({"Save", "", "*.THC", scratch.path(), ""}), std::nullopt);
}
