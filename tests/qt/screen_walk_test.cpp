// tests/qt/screen_walk_test.cpp - does ScreenWalk find what is wrong with a screen?
#include "qt/screen_walk.h"

#include "qt/sample_screen.h"

#include <QAccessibleWidget>
#include <QDialog>
#include <QDialogButtonBox>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

using test::SamplePage;
using test::SampleScreen;

/// A sample screen without any trouble.
struct SoundScreen {
    SoundScreen()
    {
        screen.txtName.spokenName = "Name";
        screen.txtOther.spokenName = "Other";
        screen.txtNotes.spokenName = "Notes";
        screen.lstRows.spokenName = "Rows";
        screen.grdScores.spokenName = "Scores";
        for (std::size_t i = 0; i < screen.optChoice.size(); ++i)
            screen.optChoice[i].caption = "Choice";
        page.show();
        desk.push();
    }

    ScreenWalk walk()
    {
        desk.push();
        QApplication::processEvents();
        return ScreenWalk{page};
    }

    Desk desk;
    SampleScreen screen;
    SamplePage page{screen, desk};
};

std::string joined(const QStringList& troubles) { return troubles.join('\n').toStdString(); }

TEST(ScreenWalk, FindsNothingInASoundScreen)
{
    SoundScreen sound;
    EXPECT_EQ(joined(sound.walk().troubles()), "");
}

TEST(ScreenWalk, FindsControlsWithoutAName)
{
    SoundScreen faulty;
    faulty.screen.txtName.spokenName.clear();
    faulty.screen.lstRows.spokenName.clear();
    faulty.screen.cmdOk.caption.clear();
    EXPECT_EQ(joined(faulty.walk().namelessControls()), "txtName\ncmdOk\nlstRows");
}

TEST(ScreenWalk, FindsAControlWithAWrongRole)
{
    SoundScreen faulty;
    ui::Control& label = faulty.screen.lblTitle;
    faulty.page.adopt(label, new QWidget{&faulty.page})->show(); // a bare widget has not the role of a text
    EXPECT_EQ(joined(faulty.walk().wrongRoles()).substr(0, 17), "lblTitle has role");
}

TEST(ScreenWalk, FindsMnemonicsThatMeanTwoThings)
{
    SoundScreen faulty;
    faulty.screen.cmdOk.caption = "&Restore";       // as the menu Reports
    faulty.screen.mnuExit.caption = "Exit &Office"; // as the entry Open
    EXPECT_EQ(joined(faulty.walk().mnemonicTroubles()), "Alt+O: mnuOpen and mnuExit\nAlt+R: mnuReports and cmdOk");
}

TEST(ScreenWalk, FindsButtonsWithoutAMnemonic)
{
    SoundScreen faulty;
    faulty.screen.cmdOk.caption = "OK";
    EXPECT_EQ(joined(faulty.walk().mnemonicTroubles()), "cmdOk has no mnemonic: OK");
}

TEST(ScreenWalk, FindsTextsThatDoNotFit)
{
    SoundScreen faulty;
    faulty.page.title->setFixedWidth(12);
    faulty.page.ok->setFixedWidth(10);
    faulty.page.all->setFixedHeight(4);
    const std::string found = joined(faulty.walk().clippedTexts());
    EXPECT_THAT(found, testing::HasSubstr("lblTitle (12x"));
    EXPECT_THAT(found, testing::HasSubstr("cmdOk (10x"));
    EXPECT_THAT(found, testing::HasSubstr("chkAll ("));
}

TEST(ScreenWalk, FindsTextsWithTooLittleContrast)
{
    SoundScreen faulty;
    QPalette pale;
    pale.setColor(QPalette::Window, Qt::white);
    pale.setColor(QPalette::WindowText, QColor{0x77, 0x77, 0x77}); // 4.48 on white
    faulty.page.title->setAutoFillBackground(true);
    faulty.page.title->setPalette(pale);
    EXPECT_EQ(joined(faulty.walk().paleTexts()).substr(0, 35), "lblTitle: #777777 on #ffffff, 4.478");
    pale.setColor(QPalette::WindowText, QColor{0x76, 0x76, 0x76}); // 4.54
    faulty.page.title->setPalette(pale);
    EXPECT_EQ(joined(faulty.walk().paleTexts()), "");
}

TEST(ScreenWalk, FindsDisabledTextsThatCannotBeRead)
{
    SoundScreen faulty;
    faulty.screen.lblTitle.enabled = false;
    QPalette pale;
    pale.setColor(QPalette::Window, Qt::white);
    pale.setColor(QPalette::Disabled, QPalette::WindowText, QColor{0x95, 0x95, 0x95}); // 2.995 on white
    faulty.page.title->setAutoFillBackground(true);
    faulty.page.title->setPalette(pale);
    EXPECT_EQ(joined(faulty.walk().paleTexts()).substr(0, 33), "lblTitle: #959595 on #ffffff, 2.9");
    pale.setColor(QPalette::Disabled, QPalette::WindowText, QColor{0x94, 0x94, 0x94}); // 3.03
    faulty.page.title->setPalette(pale);
    EXPECT_EQ(joined(faulty.walk().paleTexts()), "");
}

TEST(ScreenWalk, FindsControlsWithoutANecessaryDescription)
{
    SoundScreen faulty;
    faulty.screen.lstRows.doubleClicked = [] {};
    faulty.screen.grdScores.cellPressed = [](std::size_t, std::size_t) {};
    EXPECT_EQ(joined(faulty.walk().undescribedControls()), "lstRows\ngrdScores");
    faulty.screen.lstRows.explanation = "Enter opens the row.";
    faulty.screen.grdScores.explanation = "Space marks the row.";
    EXPECT_EQ(joined(faulty.walk().undescribedControls()), "");
}

/// A dialog with one control of every kind that our screens do not have.
struct SoundDialog {
    SoundDialog()
    {
        window.setWindowTitle(QStringLiteral("Sample"));
        auto* layout = new QVBoxLayout{&window};
        label->setBuddy(line);
        all->setObjectName(QStringLiteral("all"));
        line->setObjectName(QStringLiteral("line"));
        label->setObjectName(QStringLiteral("label"));
        go->setObjectName(QStringLiteral("go"));
        go->setText(QStringLiteral("&Go"));
        go->setToolButtonStyle(Qt::ToolButtonTextOnly);
        tabs->addTab(QStringLiteral("&First"));
        tabs->addTab(QStringLiteral("&Second"));
        tabs->setAccessibleName(QStringLiteral("Pages"));
        text->setAccessibleName(QStringLiteral("Story"));
        text->setHtml(QStringLiteral("<p>Once upon a time</p>"));
        for (QWidget* widget : std::initializer_list<QWidget*>{label, line, all, go, tabs, text, buttons})
            layout->addWidget(widget);
        window.resize(400, 300);
        window.show();
    }

    QStringList troubles()
    {
        QApplication::processEvents();
        return ScreenWalk{window}.troubles();
    }

    QDialog window;
    QLabel* label = new QLabel{QStringLiteral("&Name:")};
    QLineEdit* line = new QLineEdit;
    QCheckBox* all = new QCheckBox{QStringLiteral("&All")};
    QToolButton* go = new QToolButton;
    QTabBar* tabs = new QTabBar;
    QTextEdit* text = new QTextEdit;
    QDialogButtonBox* buttons = new QDialogButtonBox{QDialogButtonBox::Ok | QDialogButtonBox::Cancel};
};

TEST(ScreenWalk, FindsNothingInASoundDialog)
{
    SoundDialog sound;
    EXPECT_EQ(joined(sound.troubles()), "");
}

TEST(ScreenWalk, FindsAWindowABoxAndAButtonWithoutAName)
{
    SoundDialog faulty;
    faulty.window.setWindowTitle({});
    faulty.label->setBuddy(nullptr);
    faulty.go->setText({});
    EXPECT_EQ(joined(faulty.troubles()), "name: the window itself\nname: line\nname: go");
}

TEST(ScreenWalk, FindsLettersThatBuddiesTicksTabsAndToolButtonsShare)
{
    SoundDialog faulty;
    faulty.all->setText(QStringLiteral("All &new"));           // as the label's
    faulty.tabs->setTabText(1, QStringLiteral("&Getting on")); // as the tool button's
    EXPECT_EQ(joined(faulty.troubles()), "mnemonic: Alt+N: label and all\nmnemonic: Alt+G: go and tab &Getting on");
}

TEST(ScreenWalk, FindsButtonsOfADialogThatNoKeyPresses)
{
    SoundDialog faulty;
    faulty.buttons->addButton(QStringLiteral("More"), QDialogButtonBox::ActionRole)->setObjectName("more");
    faulty.go->setText(QStringLiteral("Go"));
    EXPECT_EQ(joined(faulty.troubles()), "mnemonic: go has no mnemonic: Go\nmnemonic: more has no mnemonic: More");
}

TEST(ScreenWalk, FindsControlsOutsideTheWindow)
{
    SoundDialog faulty;
    QLabel outside{QStringLiteral("Here"), &faulty.window};
    outside.setObjectName(QStringLiteral("outside"));
    outside.move(380, 10);
    outside.show();
    EXPECT_EQ(joined(faulty.troubles()).substr(0, 18), "clipped: outside (");
}

TEST(ScreenWalk, FindsTipsThatAreSpokenAsMarkup)
{
    SoundDialog faulty;
    faulty.line->setToolTip(QStringLiteral("<b>Your</b> name"));
    EXPECT_EQ(joined(faulty.troubles()), "description: line speaks markup");
    faulty.line->setAccessibleDescription(QStringLiteral("Your name"));
    EXPECT_EQ(joined(faulty.troubles()), "");
}

TEST(ScreenWalk, FindsPassagesWithTooLittleContrast)
{
    SoundDialog faulty;
    faulty.text->setHtml(
        QStringLiteral("<p>Once <span style='color:#dddddd;background-color:#ffffff'>upon</span></p>"));
    EXPECT_EQ(joined(faulty.troubles()).substr(0, 27), "pale: #dddddd on #ffffff, 1");
    EXPECT_THAT(joined(faulty.troubles()), testing::EndsWith(": upon"));
}

TEST(ScreenWalk, FindsAControlThatAScreenReaderDoesNotReach)
{
    SoundDialog faulty;
    static const QObject* hidden = nullptr;
    hidden = &faulty.window;
    // An interface that leaves out its children, as a custom widget may by mistake.
    struct Childless : QAccessibleWidget {
        using QAccessibleWidget::QAccessibleWidget;
        int childCount() const override { return 0; }
    };
    const QAccessible::InterfaceFactory childless = [](const QString&, QObject* object) -> QAccessibleInterface* {
        return object == hidden ? new Childless{&static_cast<QDialog&>(*object), QAccessible::Dialog} : nullptr;
    };
    QAccessible::installFactory(childless);
    QAccessible::deleteAccessibleInterface(
        QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&faulty.window)));
    EXPECT_THAT(joined(faulty.troubles()), testing::HasSubstr("name: line cannot be reached"));
    QAccessible::removeFactory(childless);
}

TEST(ScreenWalk, FindsColoursOfAPaletteWithTooLittleContrast)
{
    QPalette palette{Qt::white};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::PlaceholderText, QPalette::HighlightedText, QPalette::Link})
        palette.setColor(role, Qt::black);
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button,
                            QPalette::ToolTipBase, QPalette::Highlight})
        palette.setColor(role, Qt::white);
    EXPECT_EQ(joined(paleRoles(palette)), "");
    palette.setColor(QPalette::Active, QPalette::Link, Qt::yellow);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor{0x95, 0x95, 0x95});
    EXPECT_EQ(joined(paleRoles(palette)).substr(0, 34), "disabled ButtonText on Button: 2.9");
    EXPECT_THAT(joined(paleRoles(palette)), testing::HasSubstr("\nLink on Base: 1.07"));
}

} // namespace
} // namespace tallyhoop::qt
