// tests/qt/screen_walk_test.cpp - does the walk through a screen find what is wrong with it?
#include "qt/screen_walk.h"

#include "qt/sample_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

using test::SamplePage;
using test::SampleScreen;

/// A sample screen in which everything is as it should be.
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
    const ScreenWalk walk = sound.walk();
    EXPECT_EQ(joined(walk.namelessControls()), "");
    EXPECT_EQ(joined(walk.wrongRoles()), "");
    EXPECT_EQ(joined(walk.mnemonicTroubles()), "");
    EXPECT_EQ(joined(walk.clippedTexts()), "");
    EXPECT_EQ(joined(walk.paleTexts()), "");
}

TEST(ScreenWalk, FindsControlsWithoutAName)
{
    SoundScreen faulty;
    faulty.screen.txtName.spokenName.clear();
    faulty.screen.lstRows.spokenName.clear();
    faulty.screen.cmdOk.caption.clear();
    EXPECT_EQ(joined(faulty.walk().namelessControls()), "txtName\ncmdOk\nlstRows");
}

TEST(ScreenWalk, FindsAControlThatIsTakenForSomethingElse)
{
    SoundScreen faulty;
    ui::Control& label = faulty.screen.lblTitle;
    faulty.page.adopt(label, new QWidget{&faulty.page})->show(); // nobody takes a bare widget for a text
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

TEST(ScreenWalk, FindsTextsThatHardlyStandOut)
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

} // namespace
} // namespace tallyhoop::qt
