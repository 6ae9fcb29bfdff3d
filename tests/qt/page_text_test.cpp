// tests/qt/page_text_test.cpp - typed and pasted text, in both directions.
#include "qt/sample_screen.h"

#include <QApplication>
#include <QClipboard>
#include <QTextCursor>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

TEST(PageText, TypingReachesTheModel)
{
    Shown shown;
    QTest::keyClicks(shown.page.name, "ab");
    EXPECT_EQ(shown.screen.txtName.text, "ab");
    EXPECT_EQ(shown.screen.log, (std::vector<std::string>{"name: a", "name: ab"}));
}

TEST(PageText, ChangesOfTheModelReachTheBox)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] {
        shown.screen.txtName.text = "R\xe9my";
        shown.screen.txtName.selectionStart = 1;
        shown.screen.txtName.selectionLength = 3;
    });
    EXPECT_EQ(shown.page.name->text(), QString::fromUtf8("Rémy"));
    EXPECT_EQ(shown.page.name->selectionStart(), 1);
    EXPECT_EQ(shown.page.name->selectedText().size(), 3);
}

TEST(PageText, ARuleThatRejectsTypingIsShown)
{
    Shown shown;
    shown.screen.txtName.edited = [&] { shown.screen.txtName.text = "fixed"; };
    QTest::keyClicks(shown.page.name, "a");
    EXPECT_EQ(shown.page.name->text(), QStringLiteral("fixed"));
    QTest::keyClicks(shown.page.name, "b");
    EXPECT_EQ(shown.page.name->text(), QStringLiteral("fixed"));
}

TEST(PageText, CaretAndSelectionAreKeptInSyncBothWays)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] {
        shown.screen.txtName.text = "ADAMS";
        shown.screen.txtName.selectionStart = 5;
    });
    EXPECT_EQ(shown.page.name->cursorPosition(), 5);
    shown.page.name->setSelection(1, 2);
    shown.desk.run(shown.screen, [] {});
    EXPECT_EQ(shown.screen.txtName.selectionStart, 1);
    EXPECT_EQ(shown.screen.txtName.selectionLength, 2);
}

TEST(PageText, ATextThatWasNotEditedIsNeverReadBack)
{
    Shown shown;
    const std::string odd = "a\nb\x81"; // a line break that no one-line box should hold, and an unassigned byte
    shown.desk.run(shown.screen, [&] { shown.screen.txtName.text = odd; });
    shown.desk.run(shown.screen, [] {});
    EXPECT_EQ(shown.screen.txtName.text, odd);
    shown.desk.run(shown.screen, [&] { shown.screen.txtNotes.text = "one\rtwo\nthree"; });
    shown.desk.run(shown.screen, [] {});
    EXPECT_EQ(shown.screen.txtNotes.text, "one\rtwo\nthree");
}

TEST(PageText, ShowsTextAtOnceAsItWillBeSaved)
{
    Shown shown;
    shown.page.name->setFocus();
    shown.page.name->insert(QString::fromUtf8("a\u4e2de\u0301"));
    EXPECT_EQ(shown.page.name->text(), QString::fromUtf8("a?é"));
    EXPECT_EQ(shown.screen.txtName.text, "a?\xe9");
    EXPECT_EQ(shown.page.name->cursorPosition(), 3);
}

TEST(PageText, ALengthLimitStopsTypingButNeverCutsAText)
{
    Desk desk;
    SampleScreen screen;
    screen.txtName.maxLength = 4;
    SamplePage page{screen, desk};
    page.show();
    QTest::keyClicks(page.name, "abcdef");
    EXPECT_EQ(screen.txtName.text, "abcd");
    desk.run(screen, [&] { screen.txtName.text = "longer than four"; });
    EXPECT_EQ(page.name->text(), QStringLiteral("longer than four"));
    QTest::keyClicks(page.name, "x");
    EXPECT_EQ(screen.txtName.text, "longer than four");
}

TEST(PageText, ALockedBoxTakesNoTypingAndUnlocksAgain)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] { shown.screen.txtName.locked = true; });
    QTest::keyClicks(shown.page.name, "a");
    EXPECT_EQ(shown.screen.txtName.text, "");
    shown.desk.run(shown.screen, [&] { shown.screen.txtName.locked = false; });
    QTest::keyClicks(shown.page.name, "a");
    EXPECT_EQ(shown.screen.txtName.text, "a");
}

TEST(PageText, TextIsReadableOnAColouredBackground)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] { shown.screen.txtName.background = ui::Colour{0x80, 0xff, 0x80}; });
    EXPECT_EQ(shown.page.name->palette().color(QPalette::Base), QColor(0x80, 0xff, 0x80));
    EXPECT_EQ(shown.page.name->palette().color(QPalette::Text), QColor(Qt::black));
    shown.desk.run(shown.screen, [&] { shown.screen.txtName.background.reset(); });
    EXPECT_EQ(shown.page.name->palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
}

TEST(PageText, SeveralLinesAreCrLfInTheModel)
{
    Shown shown;
    shown.page.notes->setFocus();
    QTest::keyClicks(shown.page.notes, "one");
    QTest::keyClick(shown.page.notes, Qt::Key_Return);
    QTest::keyClicks(shown.page.notes, "two");
    EXPECT_EQ(shown.screen.txtNotes.text, "one\r\ntwo");
    EXPECT_EQ(shown.screen.txtNotes.selectionStart, 8);
    shown.desk.run(shown.screen, [&] {
        shown.screen.txtNotes.text = "a\r\nb\r\nc";
        shown.screen.txtNotes.selectionStart = 3;
        shown.screen.txtNotes.selectionLength = 4;
    });
    EXPECT_EQ(shown.page.notes->toPlainText(), QStringLiteral("a\nb\nc"));
    EXPECT_EQ(shown.page.notes->textCursor().selectionStart(), 2);
    EXPECT_EQ(shown.page.notes->textCursor().selectionEnd(), 5);
}

TEST(PageText, ANoBreakSpaceSurvivesInABoxOfSeveralLines)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] { shown.screen.txtNotes.text = "a\xa0z"; });
    shown.page.notes->setFocus();
    shown.page.notes->moveCursor(QTextCursor::End);
    QTest::keyClicks(shown.page.notes, "!");
    EXPECT_EQ(shown.screen.txtNotes.text, "a\xa0z!");
}

TEST(PageText, TabLeavesABoxOfSeveralLines)
{
    Shown shown;
    shown.page.notes->setFocus();
    QTest::keyClick(shown.page.notes, Qt::Key_Tab);
    EXPECT_EQ(shown.screen.txtNotes.text, "");
    EXPECT_FALSE(shown.page.notes->hasFocus());
}

TEST(PageText, PastedTextIsOfferedToTheScreenFirst)
{
    Shown shown;
    std::string offered;
    shown.screen.pasteRule = [&](ui::TextBox& box, const std::string& text) {
        offered = box.name + ": " + text;
        return true;
    };
    QApplication::clipboard()->setText(QStringLiteral("one\ntwo"));
    QTest::keyClick(shown.page.name, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(offered, "txtName: one\r\ntwo");
    EXPECT_EQ(shown.screen.txtName.text, "");
    shown.page.notes->setFocus();
    QTest::keyClick(shown.page.notes, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(offered, "txtNotes: one\r\ntwo");
    EXPECT_EQ(shown.screen.txtNotes.text, "");
}

TEST(PageText, ALineBreakPastedIntoOneLineBecomesABlank)
{
    Shown shown;
    QApplication::clipboard()->setText(QStringLiteral("one\r\ntwo\n"));
    QTest::keyClick(shown.page.name, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(shown.screen.txtName.text, "one two");
    shown.page.notes->setFocus();
    QTest::keyClick(shown.page.notes, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(shown.screen.txtNotes.text, "one\r\ntwo\r\n");
}

TEST(PageText, ALockedBoxTakesNoPastedTextAndDoesNotAskTheScreen)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] { shown.screen.txtName.locked = true; });
    bool asked = false;
    shown.screen.pasteRule = [&](ui::TextBox&, const std::string&) { return asked = true; };
    QApplication::clipboard()->setText(QStringLiteral("text"));
    QTest::keyClick(shown.page.name, Qt::Key_V, Qt::ControlModifier);
    EXPECT_FALSE(asked);
    EXPECT_EQ(shown.screen.txtName.text, "");
}
