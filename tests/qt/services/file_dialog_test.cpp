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
    scratch.put("CLARK_D.THC", "");
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
        EXPECT_EQ(opened(QStringLiteral("Clark_D.thc"), byKey), scratch.path() / "CLARK_D.THC");
        EXPECT_EQ(opened(QStringLiteral("smith_jx.thc"), byKey), std::nullopt);
    }
}

#ifndef _WIN32 // where no name may hold one
TEST(FileDialog, QuotationMarksBelongToANameUnlessTheyEncloseIt)
{
    const tallyhoop::test::ScratchFolder scratch;
    scratch.put("Smith_JS.THC", "");
    scratch.put("The \"Shark\"_S.THC", "");
    Asking asking;
    const auto opened = [&](const QString& typed) {
        withNext<QFileDialog>([&](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(typed);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        return asking.dialogs.openFile({"Open", "PoolSelections (*.THC)", "*.THC", scratch.path(), ""});
    };
    EXPECT_EQ(opened(QStringLiteral("\"Smith_JS.THC\"")), scratch.path() / "Smith_JS.THC");
    EXPECT_EQ(opened(QStringLiteral("The \"Shark\"_S.THC")), scratch.path() / "The \"Shark\"_S.THC");
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
