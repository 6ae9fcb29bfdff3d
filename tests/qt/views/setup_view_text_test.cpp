// tests/qt/views/setup_view_text_test.cpp - what is typed, composed, clicked into, taken back and pasted in the setup.
#include "qt/views/setup_view_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QTest>

namespace tallyhoop::qt {
namespace {

TEST_F(SetupViewTest, CommentsHoldSeveralLines)
{
    auto& comment = widget<QPlainTextEdit>(setup.txtComment1);
    comment.setFocus();
    type("one");
    press(Qt::Key_Return);
    type("two");
    EXPECT_EQ(setup.txtComment1.text, "one\r\ntwo");
    EXPECT_TRUE(setup.status.starts_with("There are changes that are not saved yet.")) << setup.status;
}

TEST_F(SetupViewTest, AnInputMethodThatComposesLettersGoesOnWithTheTypedBeginning)
{
    type("du");
    compose("q");
    commit("q");
    EXPECT_EQ(team(0).text(), "Duquesne");
    EXPECT_EQ(team(0).selectedText(), "uesne");
    compose("u");
    compose("");
    EXPECT_EQ(team(0).text(), "Duquesne"); // given up
    EXPECT_EQ(setup.txtRegion[0].text, "Duquesne");
    compose("x");
    commit("x");
    EXPECT_EQ(team(0).text(), "Duquesne"); // leads nowhere
    compose("e");
    press(Qt::Key_Tab);
    EXPECT_EQ(team(0).text(), "Duquesne");
}

TEST_F(SetupViewTest, AComposedTextReplacesTheSelectedOneWhileSelectingIsOverridden)
{
    widget<QPushButton>(setup.cmdOverride).click();
    team(0).setSelection(1, 3); // of TEAM1
    compose("o");
    commit("o");
    EXPECT_EQ(team(0).text(), "To1");
    EXPECT_EQ(setup.txtRegion[0].text, "To1");
}

TEST_F(SetupViewTest, EnterPressedTwiceOnFinalizeEmptiesNoTeamBox)
{
    widget<QPushButton>(setup.cmdFinalize).setFocus();
    press(Qt::Key_Return);
    EXPECT_FALSE(setup.cmdFinalize.enabled);
    EXPECT_EQ(view->focusWidget(), view->widgetOf(setup.txtInfo6[5]));
    press(Qt::Key_Return);
    EXPECT_EQ(team(0).text(), "TEAM1");
}

TEST_F(SetupViewTest, EscapeDoesNotLeaveTheScreen)
{
    press(Qt::Key_Escape);
    EXPECT_TRUE(screens.unloads.empty());
}

TEST_F(SetupViewTest, AClickIntoTheFocusedBoxSelectsItsNameSoThatTypingStartsAnother)
{
    type(QStringLiteral("d"));
    press(Qt::Key_End); // the whole name is typed, so to speak
    for (int click = 0; click < 2; ++click) {
        QTest::mouseClick(&team(0), Qt::LeftButton, {}, team(0).rect().center());
        QApplication::processEvents();
        EXPECT_EQ(team(0).selectedText(), QStringLiteral("Duke"));
    }
    type(QStringLiteral("k"));
    EXPECT_EQ(team(0).text(), QStringLiteral("Kansas"));
}

TEST_F(SetupViewTest, WhenNamesAreTypedFreelyAClickPlacesTheCaret)
{
    QTest::mouseClick(view->widgetOf(setup.cmdOverride), Qt::LeftButton);
    EXPECT_EQ(view->focusWidget(), &team(0));
    QTest::mouseClick(&team(0), Qt::LeftButton, {}, team(0).rect().center());
    QApplication::processEvents();
    EXPECT_FALSE(team(0).hasSelectedText());
}

TEST_F(SetupViewTest, ADoubleClickInTheListPutsTheNameIntoTheBox)
{
    team(7).setFocus();
    pressRow(3);
    const QRect place = list().visualRect(list().model()->index(3, 0));
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place.center());
    EXPECT_EQ(team(7).text(), QStringLiteral("Iowa"));
    EXPECT_EQ(view->focusWidget(), &team(8));
}

TEST_F(SetupViewTest, TheMenuTakesBackWhatClearAllDidWhereverTheFocusIs)
{
    QTest::mouseClick(view->widgetOf(setup.cmdClear), Qt::LeftButton);
    EXPECT_EQ(team(63).text(), QString{});
    QTest::keyClick(view->focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(team(63).text(), QStringLiteral("TEAM64"));
}

TEST_F(SetupViewTest, TheMenuTakesClearAllBackFromACommentUntilSomethingIsTypedThere)
{
    QTest::mouseClick(view->widgetOf(setup.cmdClear), Qt::LeftButton);
    auto& comment = widget<QPlainTextEdit>(setup.txtComment1);
    comment.setFocus();
    QTest::keyClick(&comment, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(team(63).text(), QStringLiteral("TEAM64"));

    QTest::keyClicks(&comment, "ab");
    QTest::keyClick(&comment, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(comment.toPlainText(), QString{}) << "what was typed goes, as in any box";
    EXPECT_EQ(team(63).text(), QStringLiteral("TEAM64"));
}

TEST_F(SetupViewTest, AHugeLineIsNotPastedIntoAComment)
{
    QApplication::clipboard()->setText(QString{300'000, QLatin1Char{'x'}});
    auto& comment = widget<QPlainTextEdit>(setup.txtComment1);
    comment.setFocus();
    QTest::keyClick(&comment, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(comment.toPlainText(), QString{});
    EXPECT_EQ(computer.dialogs.captionsShown(), std::vector<std::string>{"Comment Pasted"});
}

} // namespace
} // namespace tallyhoop::qt
