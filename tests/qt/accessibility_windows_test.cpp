// tests/qt/accessibility_windows_test.cpp - checks the help, boxes and dialogs for screen readers, keyboard users and
// large letters.
#include "qt/accessibility.h"
#include "qt/desk.h"
#include "qt/main_frame.h"
#include "qt/services/help_window.h"
#include "qt/services/qt_dialogs.h"
#include "qt/services/qt_help_viewer.h"
#include "qt/services/qt_printer.h"

#include <QDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

namespace tallyhoop::qt {
namespace {

class AccessibilityOfWindows : public testing::TestWithParam<ColourScheme>
{
protected:
    AccessibilityOfWindows()
    {
        frame.resize(1366, 708);
        frame.show();
    }

    /// Walks through the next dialog that opens, and closes it.
    void examineNext()
    {
        QTimer::singleShot(0, qApp, [this] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            QApplication::processEvents();
            EXPECT_LE(dialog->minimumSizeHint().width(), 1366); // larger dialogs take the size of the display
            EXPECT_LE(dialog->minimumSizeHint().height(), 708);
            EXPECT_EQ(troublesOf(*dialog), "");
            examined = true;
            dialog->reject();
        });
    }

    ~AccessibilityOfWindows() override { EXPECT_TRUE(examined); }

    UsedColours colours{GetParam()};
    MainFrame frame;
    Desk desk{&frame};
    QtDialogs dialogs{desk};
    QtPrinter printer{desk};
    bool examined = false;
};

TEST_P(AccessibilityOfWindows, TheHelp)
{
    QtHelpViewer help{&frame};
    ASSERT_TRUE(help.show(TALLYHOOP_HELP_FILE, "scores"));
    auto* const window = frame.findChild<HelpWindow*>();
    ASSERT_NE(window, nullptr);
    QApplication::processEvents();
    EXPECT_EQ(troublesOf(*window), "");
    window->resize(1020, 680); // as on a display that has room for it
    QApplication::processEvents();
    EXPECT_LE(window->findChild<HelpText*>()->horizontalScrollBar()->maximum(), 1) // odd scales round it up
        << "a sample is too wide";
    window->findChild<QLineEdit*>(QStringLiteral("helpSearch"))->setText(QStringLiteral("folder"));
    QApplication::processEvents();
    EXPECT_EQ(troublesOf(*window), "");
    examined = true;
}

TEST_P(AccessibilityOfWindows, MessageBoxes)
{
    using ui::Buttons;
    using ui::Icon;
    const std::string text = "It looks like you are just starting to work \r\nwith Tallyhoop.\r\n \r\nDo you want to "
                             "initiate DEMO Mode?";
    for (const Buttons buttons : {Buttons::Ok, Buttons::OkCancel, Buttons::YesNo})
        for (const Icon icon : {Icon::None, Icon::Information, Icon::Question, Icon::Exclamation, Icon::Critical}) {
            examineNext();
            dialogs.show({"** DEMO MODE OPTION **", text, buttons, icon});
        }
}

TEST_P(AccessibilityOfWindows, TheInputBox)
{
    examineNext();
    dialogs.ask({"CHANGE TEAM NAME", "Enter the new name for \"Texas A&M\":", "Texas A&M"});
}

TEST_P(AccessibilityOfWindows, TheAboutBox)
{
    examineNext();
    dialogs.about("/home/anna/Tallyhoop");
}

TEST_P(AccessibilityOfWindows, ThePreview)
{
    examineNext();
    const ui::TextPrintout report{"Report", {"one", "\f", "two"}, {"Courier New", 10}};
    printer.preview({{report}, {}, {}});
    examineNext();
    printer.preview({{report, report}, {}, {}}); // with a list
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, AccessibilityOfWindows, testing::Values(ColourScheme::Light, ColourScheme::Dark),
                         [](const auto& colours) { return colourName(colours); });

} // namespace
} // namespace tallyhoop::qt
