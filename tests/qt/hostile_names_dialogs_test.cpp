// tests/qt/hostile_names_dialogs_test.cpp - hostile names in message boxes, input boxes, file dialogs and the preview.
#include "hostile/hostile_names.h"

#include "fakes/scratch_folder.h"
#include "files/data_folder.h"
#include "qt/paths.h"
#include "qt/sample_screen.h"
#include "qt/services/help_window.h"
#include "qt/services/qt_dialogs.h"
#include "qt/services/qt_printer.h"
#include "qt/text.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QScreen>
#include <QTimer>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

namespace fs = std::filesystem;
using tallyhoop::test::HostileName;
using tallyhoop::test::hostileNames;
using tallyhoop::test::Place;

class HostileNamesInDialogs : public testing::TestWithParam<HostileName>
{
protected:
    const std::string& hostileName() const { return GetParam().text; }
    QString shownName() const { return toQString(hostileName()); }

    /// The name in a title bar, where "[*]" alone is the mark of what is not saved.
    QString titled() const { return shownName().replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")); }

    /// Acts on the dialog that opens next, which has to fit the display and to show text as it is.
    template <class Kind, class Act>
    void withNext(Act act)
    {
        QTimer::singleShot(0, qApp, [this, act] {
            auto* const dialog = qobject_cast<Kind*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr) << "another dialog is open, or none";
            QApplication::processEvents();
            EXPECT_LE(dialog->width(), dialog->screen()->availableGeometry().width());
            EXPECT_LE(dialog->height(), dialog->screen()->availableGeometry().height());
            for (const QLabel* label : dialog->template findChildren<QLabel*>())
                EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
                    << label->text().toStdString() << " would show markup";
            seen = true;
            act(*dialog);
        });
    }

    ~HostileNamesInDialogs() override { EXPECT_TRUE(seen); }

    test::Shown shown;
    QtDialogs dialogs{shown.desk};
    bool seen = false;
};

class HostileNamesInFileDialogs : public HostileNamesInDialogs
{
protected:
    HostileNamesInFileDialogs() { fs::create_directory(folder()); }

    /// Types a name into a file dialog and accepts it; closes the dialog when it does not accept the name.
    std::optional<fs::path> fileTyped(bool save, const std::string& proposal, const std::optional<QString>& typed)
    {
        QTimer giveUp;
        giveUp.setInterval(0);
        QObject::connect(&giveUp, &QTimer::timeout, [] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject(); // first the box that says that there is no such file, then the dialog itself
        });
        withNext<QFileDialog>([&](QFileDialog& dialog) {
            auto& name = *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            if (typed)
                name.setText(*typed);
            else
                EXPECT_EQ(name.text(), toQString(proposal));
            giveUp.start();
            dialog.findChild<QDialogButtonBox*>()
                ->button(save ? QDialogButtonBox::Save : QDialogButtonBox::Open)
                ->click();
        });
        const ui::FileChoice choice{"Files", "PoolSelections (*.THC)", "*.THC", folder(), proposal};
        return save ? dialogs.saveFile(choice) : dialogs.openFile(choice);
    }

    fs::path folder() const { return scratch.path() / "pool"; }

    tallyhoop::test::ScratchFolder scratch;
};

TEST_P(HostileNamesInDialogs, AreTextInAMessage)
{
    withNext<QMessageBox>([this](QMessageBox& box) {
        if (hostileName().size() <= 400)
            EXPECT_EQ(box.text(), QStringLiteral("The name is:\n") + shownName());
        else
            EXPECT_EQ(box.text(), QStringLiteral("The name is:\n") + shownName().left(200) + QStringLiteral(" ... ") +
                                      shownName().right(200));
        EXPECT_EQ(box.windowTitle(), titled());
        box.accept();
    });
    dialogs.show({hostileName(), "The name is:\r\n" + hostileName(), ui::Buttons::Ok, ui::Icon::Critical});
}

TEST_P(HostileNamesInDialogs, AreTextInAnInputBoxAndComeBackFromIt)
{
    withNext<QInputDialog>([this](QInputDialog& dialog) {
        auto& line = *dialog.findChild<QLineEdit*>();
        EXPECT_EQ(line.text(), shownName());
        QApplication::clipboard()->setText(shownName());
        line.selectAll();
        QTest::keyClick(&line, Qt::Key_V, Qt::ControlModifier);
        dialog.accept();
    });
    EXPECT_EQ(dialogs.ask({hostileName(), "The name is:\r\n" + hostileName(), hostileName()}), hostileName());
    QApplication::clipboard()->clear();
}

TEST_P(HostileNamesInFileDialogs, AreSavedUnderTheProposedNameInTheFolder)
{
    const std::string proposal = withoutUnsafeCharacters(hostileName().substr(0, 100) + "_AB.THC");
    if (proposal.find('?') != std::string::npos)
        return;
    const auto chosen = fileTyped(true, proposal, {});
    ASSERT_TRUE(chosen);
    EXPECT_EQ(*chosen, folder() / toPath(toQString(proposal)));
}

TEST_P(HostileNamesInFileDialogs, AreNothingButAPathWhenTheyAreTypedToSave)
{
    const std::optional<fs::path> chosen = fileTyped(true, "", shownName());
    if (!chosen)
        return; // a folder, or longer than a name may be
    const fs::path typed = toPath(shownName());
    EXPECT_EQ(chosen->lexically_normal(), (folder() / typed).lexically_normal());
}

TEST_P(HostileNamesInFileDialogs, OpenNoFileThatIsNotThere)
{
    scratch.put("outside.THC", "not of the pool");
    const std::optional<fs::path> chosen = fileTyped(false, "", shownName());
    EXPECT_FALSE(chosen) << *chosen;
}

TEST_P(HostileNamesInDialogs, AreTextInThePreviewAndItsBoxes)
{
    QtPrinter printer{shown.desk};
    withNext<QPrintPreviewDialog>([this](QPrintPreviewDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Preview - ") + titled());
        for (QLineEdit* box : dialog.findChildren<QLineEdit*>()) {
            box->setFocus();
            box->setText(shownName());
            QTest::keyClick(box, Qt::Key_Return);
        }
        QApplication::processEvents();
        EXPECT_EQ(dialog.findChild<QPrintPreviewWidget*>()->pageCount(), 1);
        dialog.reject();
    });
    const ui::TextPrintout page{hostileName(), {hostileName(), "the next line"}, {"Courier New", 10}};
    printer.preview({{page}, {}, {}});
}

TEST_P(HostileNamesInDialogs, AreSearchedForInTheHelpAsTheyAre)
{
    seen = true;
    HelpWindow help{nullptr};
    help.setHelp("<h1>Bold</h1><p>Write &lt;b&gt;bold&lt;/b&gt; to the pool.</p>");
    help.show();
    auto& box = *help.findChild<QLineEdit*>(QStringLiteral("helpSearch"));
    box.setText(shownName());
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.text(), shownName());
    EXPECT_EQ(help.findChild<QLabel*>(QStringLiteral("helpMatches"))->text(),
              hostileName() == "<b>bold</b>" ? QStringLiteral("1 of 1") : QStringLiteral("not found"));
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesInDialogs, testing::ValuesIn(hostileNames(Place::Window)),
                         [](const auto& values) { return values.param.kind; });
INSTANTIATE_TEST_SUITE_P(Each, HostileNamesInFileDialogs, testing::ValuesIn(hostileNames(Place::FileDialog)),
                         [](const auto& values) { return values.param.kind; });

TEST(HostileNamesTypedIntoAnInputBox, LoseLineBreaksAndMarksThatChangeTheDirectionOfText)
{
    test::Shown shown;
    QtDialogs dialogs{shown.desk};
    QTimer::singleShot(0, qApp, [] {
        auto& dialog = *qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        QApplication::clipboard()->setText(QStringLiteral("one\ntwo\u202Eeerht\u2029four"));
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_V, Qt::ControlModifier);
        dialog.accept();
    });
    EXPECT_EQ(dialogs.ask({"Name Addition", "Enter the new name", ""}), "one two?eerht four");
    QApplication::clipboard()->clear();
}

} // namespace
} // namespace tallyhoop::qt
