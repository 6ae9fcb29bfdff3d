// tests/qt/desk_test.cpp - which commands run when, what is shown afterwards, and when screens are destroyed.
#include "qt/sample_screen.h"

#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

namespace {

/// Notes when it is destroyed.
class LoggedScreen : public SampleScreen
{
public:
    explicit LoggedScreen(std::vector<std::string>& ends) : m_ends{ends} {}
    ~LoggedScreen() override { m_ends.emplace_back("model"); }

private:
    std::vector<std::string>& m_ends;
};

class LoggedPage : public SamplePage
{
public:
    LoggedPage(SampleScreen& sample, Desk& desk, std::vector<std::string>& ends)
        : SamplePage{sample, desk}, m_ends{ends}
    {
    }
    ~LoggedPage() override { m_ends.emplace_back("page"); }

private:
    std::vector<std::string>& m_ends;
};

} // namespace

TEST(Desk, ACommandOfOneScreenShowsOnTheOthers)
{
    Desk desk;
    SampleScreen board{"board"};
    SampleScreen scores{"scores"};
    SamplePage boardPage{board, desk};
    SamplePage scoresPage{scores, desk};
    desk.run(scores, [&] { board.lblTitle.text = "marked"; });
    EXPECT_EQ(boardPage.title->text(), QStringLiteral("marked"));
}

TEST(Desk, WhatWasTypedOnOneScreenIsKnownToACommandOfAnother)
{
    Desk desk;
    SampleScreen board{"board"};
    SampleScreen scores{"scores"};
    SamplePage boardPage{board, desk};
    SamplePage scoresPage{scores, desk};
    boardPage.name->setText(QStringLiteral("typed by an assistive tool"));
    std::string seen;
    desk.run(scores, [&] { seen = board.txtName.text; });
    EXPECT_EQ(seen, "typed by an assistive tool");
}

TEST(Desk, ShowsEverythingBeforeAModalQuestion)
{
    Shown shown;
    QString duringQuestion;
    shown.desk.run(shown.screen, [&] {
        shown.screen.lblTitle.text = "asking";
        shown.desk.beforeModal();
        duringQuestion = shown.page.title->text();
    });
    EXPECT_EQ(duringQuestion, QStringLiteral("asking"));
}

TEST(Desk, DropsCommandsWhileAMessageIsOpen)
{
    Shown shown;
    shown.screen.whenOk = [&] {
        const Desk::Modal question{shown.desk};
        EXPECT_FALSE(shown.desk.accepts(&shown.screen));
        EXPECT_FALSE(shown.desk.accepts(nullptr));
        shown.page.ok->click();
        shown.page.close();
    };
    shown.page.ok->click();
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"ok"});
}

TEST(Desk, DropsCommandsWhileAnotherRuns)
{
    Shown shown;
    shown.screen.whenOk = [&] { shown.page.ok->click(); };
    shown.page.ok->click();
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"ok"});
}

TEST(Desk, OnlyTheModalScreenRunsCommandsWhileItIsOpen)
{
    Desk desk;
    SampleScreen board{"board"};
    SampleScreen dialog{"dialog"};
    SamplePage boardPage{board, desk};
    SamplePage dialogPage{dialog, desk};
    board.whenOk = [&] {
        const Desk::Modal modal{desk, &dialog};
        EXPECT_FALSE(desk.accepts(nullptr));
        boardPage.ok->click();
        dialog.whenOk = [&] {
            const Desk::Modal question{desk};
            dialogPage.ok->click();
        };
        dialogPage.ok->click();
    };
    boardPage.ok->click();
    EXPECT_EQ(board.log, std::vector<std::string>{"ok"});
    EXPECT_EQ(dialog.log, std::vector<std::string>{"ok"});
    EXPECT_TRUE(desk.accepts(nullptr));
}

TEST(Desk, DropsCommandsWhileAnyDialogOfQtsIsModal)
{
    Shown shown;
    QMessageBox box;
    QTimer::singleShot(0, &box, [&] {
        shown.page.ok->click();
        EXPECT_FALSE(shown.desk.accepts(nullptr));
        box.accept();
    });
    box.exec();
    EXPECT_TRUE(shown.screen.log.empty());
}

TEST(Desk, AnExceptionThatEscapesIsShownAndTheProgramGoesOn)
{
    Shown shown;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QTimer::singleShot(0, &shown.page, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        text = box->text();
        icon = box->icon();
        box->accept();
    });
    shown.screen.whenOk = [] { throw std::runtime_error{"out of <b>luck</b>"}; };
    shown.page.ok->click();
    EXPECT_TRUE(text.contains(QStringLiteral("out of <b>luck</b>")));
    EXPECT_EQ(icon, QMessageBox::Critical);
    EXPECT_FALSE(shown.desk.isRunning());
}

TEST(Desk, AScreenMayUnloadItselfAndStillFinish)
{
    std::vector<std::string> ends;
    Desk desk;
    auto screen = std::make_unique<LoggedScreen>(ends);
    auto page = std::make_unique<LoggedPage>(*screen, desk, ends);
    LoggedScreen& itself = *screen;
    QPointer<QPushButton> button = page->ok;
    page->show();
    itself.whenOk = [&] {
        desk.park(std::move(page), std::move(screen));
        EXPECT_TRUE(ends.empty());
        itself.lblTitle.text = "still here";
        QApplication::processEvents(); // a nested loop must not destroy it either
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(ends.empty());
    };
    button->click();
    QApplication::processEvents();
    EXPECT_EQ(ends, (std::vector<std::string>{"page", "model"}));
}

TEST(Desk, ParkedScreensAreDestroyedInTheOrderInWhichTheyWereUnloaded)
{
    std::vector<std::string> first;
    std::vector<std::string> second;
    Desk desk;
    SampleScreen runner;
    auto a = std::make_unique<LoggedScreen>(first);
    auto aPage = std::make_unique<LoggedPage>(*a, desk, first);
    auto b = std::make_unique<LoggedScreen>(second);
    auto bPage = std::make_unique<LoggedPage>(*b, desk, second);
    desk.run(runner, [&] {
        desk.run(runner, [] {});
        desk.park(std::move(aPage), std::move(a));
        desk.runInside(runner, [&] { desk.park(std::move(bPage), std::move(b)); });
        EXPECT_TRUE(first.empty() && second.empty());
    });
    desk.clearParked();
    EXPECT_EQ(first, (std::vector<std::string>{"page", "model"}));
    EXPECT_EQ(second, (std::vector<std::string>{"page", "model"}));
}
