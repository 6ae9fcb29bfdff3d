// tests/qt/screen_host_test.cpp - loading and unloading in the frame, beside it and modally.
#include "qt/sample_screen.h"
#include "qt/screen_host.h"

#include <QDialog>
#include <QTimer>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

namespace {

/// A frame, a desk and four kinds of screens, all of them sample screens.
struct Program {
    Program()
    {
        host.make = [this](ScreenKind kind) { return make(kind); };
        host.ended = [this] { ended = true; };
        frame.open();
    }

    MadeScreen make(ScreenKind kind)
    {
        if (kind == ScreenKind::Scores)
            return madeOf(Placement::OwnWindow, std::make_unique<SampleScreen>());
        if (kind == ScreenKind::Seeds)
            return madeOf(Placement::Modal, std::make_unique<SampleScreen>());
        return madeOf(Placement::Stacked, std::make_unique<SampleScreen>());
    }

    MadeScreen madeOf(Placement placement, std::unique_ptr<SampleScreen> screen)
    {
        auto page = std::make_unique<SamplePage>(*screen, desk);
        return {placement, std::move(screen), std::move(page)};
    }

    SampleScreen& screen(ScreenKind kind) { return *host.find<SampleScreen>(kind); }
    SamplePage& page(ScreenKind kind) { return static_cast<SamplePage&>(*host.page(kind)); }

    bool ended = false;
    Desk desk;
    MainFrame frame;
    ScreenHost host{desk, frame};
};

} // namespace

TEST(ScreenHost, ShowsAStackedScreenInTheFrameAfterItsLoad)
{
    Program program;
    program.host.load(ScreenKind::Board);
    EXPECT_EQ(program.screen(ScreenKind::Board).log, std::vector<std::string>{"load"});
    EXPECT_EQ(program.frame.visiblePage(), program.host.page(ScreenKind::Board));
    EXPECT_TRUE(program.page(ScreenKind::Board).isVisible());
    EXPECT_FALSE(program.page(ScreenKind::Board).isWindow());
    activate(program.frame);
    EXPECT_TRUE(program.page(ScreenKind::Board).name->hasFocus());
}

TEST(ScreenHost, AFreshScreenSaysWhatItWasGivenToSayAfterItsLoad)
{
    class Silent : public SampleScreen
    {
        void load() override { say({}); }
    };
    Program program;
    program.host.make = [&](ScreenKind) { return program.madeOf(Placement::Stacked, std::make_unique<Silent>()); };
    program.host.load(ScreenKind::Board, "A sentence.");
    EXPECT_EQ(program.screen(ScreenKind::Board).news().text, "A sentence.");
    EXPECT_EQ(program.page(ScreenKind::Board).findChild<QLabel*>(QStringLiteral("explanation"))->text(),
              QStringLiteral("A sentence."));
    program.host.load(ScreenKind::Board, "Another."); // is there, and comes to the front
    EXPECT_EQ(program.screen(ScreenKind::Board).news().text, "Another.");
    program.host.load(ScreenKind::Board);
    EXPECT_EQ(program.screen(ScreenKind::Board).news().text, "Another.") << "nothing else has happened";
}

TEST(ScreenHost, APageEnteringTheFrameKeepsTheFocusItsScreenChose)
{
    class Chooser : public SampleScreen
    {
        void load() override { focused = &txtOther; } // not the first in the tab order
    };
    Program program;
    activate(program.frame);
    program.host.load(ScreenKind::Board);
    program.host.make = [&](ScreenKind) { return program.madeOf(Placement::Stacked, std::make_unique<Chooser>()); };
    program.host.load(ScreenKind::Reports);
    EXPECT_TRUE(program.page(ScreenKind::Reports).other->hasFocus());
    EXPECT_EQ(program.screen(ScreenKind::Reports).focused, &program.screen(ScreenKind::Reports).txtOther);
}

TEST(ScreenHost, TheScreenBelowComesBackWhenTheOneAboveIsUnloaded)
{
    Program program;
    program.host.load(ScreenKind::Board);
    program.host.load(ScreenKind::Reports);
    EXPECT_FALSE(program.page(ScreenKind::Board).isVisible());
    program.host.unload(ScreenKind::Reports);
    EXPECT_FALSE(program.host.isLoaded(ScreenKind::Reports));
    EXPECT_TRUE(program.page(ScreenKind::Board).isVisible());
}

TEST(ScreenHost, TheScreenBelowHasTheFocusAgainWhenTheOneAboveIsUnloaded)
{
    Program program;
    activate(program.frame);
    program.host.load(ScreenKind::Board);
    program.page(ScreenKind::Board).other->setFocus();
    program.desk.run(program.screen(ScreenKind::Board), [&] { program.host.load(ScreenKind::Reports); });
    program.page(ScreenKind::Reports).name->setFocus();
    program.desk.run(program.screen(ScreenKind::Reports), [&] { program.host.unload(ScreenKind::Reports); });
    EXPECT_TRUE(program.page(ScreenKind::Board).other->hasFocus());
}

TEST(ScreenHost, AReloadIsAFreshScreenWhileTheOldOneFinishes)
{
    Program program;
    program.host.load(ScreenKind::Board);
    SampleScreen* before = &program.screen(ScreenKind::Board);
    before->whenOk = [&] {
        program.host.unload(ScreenKind::Board);
        program.host.load(ScreenKind::Board);
        before->lblTitle.text = "the old one is still there";
    };
    program.page(ScreenKind::Board).ok->click();
    EXPECT_NE(&program.screen(ScreenKind::Board), before);
    EXPECT_EQ(program.screen(ScreenKind::Board).lblTitle.text, "A title");
    EXPECT_TRUE(program.page(ScreenKind::Board).isVisible());
    QApplication::processEvents();
    EXPECT_EQ(program.frame.findChildren<SamplePage*>().size(), 1);
}

TEST(ScreenHost, TheScoreDisplayIsAWindowBesideTheFrame)
{
    Program program;
    program.host.load(ScreenKind::Board);
    program.host.load(ScreenKind::Scores);
    EXPECT_TRUE(program.page(ScreenKind::Scores).isWindow());
    EXPECT_TRUE(program.page(ScreenKind::Scores).isVisible());
    EXPECT_TRUE(program.page(ScreenKind::Board).isVisible());
    program.page(ScreenKind::Scores).close();
    EXPECT_EQ(program.screen(ScreenKind::Scores).log.back(), "close");
    EXPECT_TRUE(program.host.isLoaded(ScreenKind::Scores)); // the screen decides
    program.host.unload(ScreenKind::Scores);
    EXPECT_FALSE(program.host.isLoaded(ScreenKind::Scores));
}

TEST(ScreenHost, AModalScreenHoldsItsCallerUntilItHasClosed)
{
    Program program;
    program.host.load(ScreenKind::Board);
    SampleScreen& board = program.screen(ScreenKind::Board);
    bool wasDialog = false;
    board.whenOk = [&] {
        QTimer::singleShot(0, &program.frame, [&] {
            wasDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()) != nullptr;
            SampleScreen& modal = program.screen(ScreenKind::Seeds);
            EXPECT_TRUE(program.page(ScreenKind::Seeds).isVisible());
            program.page(ScreenKind::Board).ok->click(); // dropped
            program.frame.close();                       // dropped
            QTest::keyClick(program.page(ScreenKind::Seeds).name, Qt::Key_Escape);
            EXPECT_EQ(modal.log.back(), "close");
            modal.whenOk = [&] {
                program.host.unload(ScreenKind::Seeds);
                modal.log.emplace_back("finished");
            };
            program.page(ScreenKind::Seeds).ok->click();
        });
        program.host.load(ScreenKind::Seeds);
        board.log.emplace_back("came back");
        EXPECT_FALSE(program.host.isLoaded(ScreenKind::Seeds));
    };
    program.page(ScreenKind::Board).ok->click();
    EXPECT_TRUE(wasDialog);
    EXPECT_EQ(board.log, (std::vector<std::string>{"load", "ok", "came back"}));
    EXPECT_FALSE(program.ended);
}

TEST(ScreenHost, AModalScreenThatUnloadsItselfWhileLoadingIsNeverShown)
{
    Program program;
    class Refusing : public SampleScreen
    {
    public:
        explicit Refusing(Screens& screens) : m_screens{screens} {}
        void load() override { m_screens.unload(ScreenKind::Email); }

    private:
        Screens& m_screens;
    };
    program.host.make = [&](ScreenKind) {
        return program.madeOf(Placement::Modal, std::make_unique<Refusing>(program.host));
    };
    program.host.load(ScreenKind::Email);
    EXPECT_FALSE(program.host.isLoaded(ScreenKind::Email));
}

TEST(ScreenHost, ClosingTheFrameUnloadsEverythingLastLoadedFirst)
{
    Program program;
    program.host.load(ScreenKind::Board);
    program.host.load(ScreenKind::Scores);
    class Order : public SampleScreen
    {
    public:
        Order(std::vector<std::string>& order, Screens& screens) : m_order{order}, m_screens{screens} {}
        void unloading() override { m_order.push_back(m_screens.isLoaded(ScreenKind::Scores) ? "first" : "too late"); }

    private:
        std::vector<std::string>& m_order;
        Screens& m_screens;
    };
    std::vector<std::string> order;
    program.host.make = [&](ScreenKind) {
        return program.madeOf(Placement::Stacked, std::make_unique<Order>(order, program.host));
    };
    program.host.load(ScreenKind::Players);
    program.frame.close();
    EXPECT_EQ(order, std::vector<std::string>{"first"});
    EXPECT_TRUE(program.ended);
    EXPECT_FALSE(program.host.isLoaded(ScreenKind::Board));
    EXPECT_FALSE(program.frame.isVisible());
}

TEST(ScreenHost, TheFrameNamesTheScreenOrItsDocumentAndMarksUnsavedChanges)
{
    Program program;
    EXPECT_EQ(program.frame.windowTitle(), QStringLiteral("Tallyhoop"));
    program.host.load(ScreenKind::Board);
    EXPECT_EQ(program.frame.windowTitle(), QStringLiteral("Tallyhoop - Sample"));
    SampleScreen& board = program.screen(ScreenKind::Board);
    program.desk.run(board, [&] {
        board.document = "Smith[*]_JS.THC";
        board.unsaved = true;
    });
    EXPECT_EQ(program.frame.windowTitle(), QStringLiteral("Tallyhoop - Smith[*][*]_JS.THC*"));
    program.desk.run(board, [&] {
        board.document.clear();
        board.caption = "Tallyhoop";
        board.unsaved = false;
    });
    EXPECT_EQ(program.frame.windowTitle(), QStringLiteral("Tallyhoop"));
}

TEST(ScreenHost, AMenusShortcutReachesTheVisiblePageOnly)
{
    Program program;
    program.host.load(ScreenKind::Board);
    program.host.load(ScreenKind::Reports);
    activate(program.frame);
    QTest::keyClick(program.page(ScreenKind::Reports).name, Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(program.screen(ScreenKind::Reports).log.back(), "open");
    EXPECT_EQ(program.screen(ScreenKind::Board).log.back(), "load");
}
