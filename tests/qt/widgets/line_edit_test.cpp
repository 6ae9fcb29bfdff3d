// tests/qt/widgets/line_edit_test.cpp - what a box of one line does without a page around it.
#include "qt/widgets/line_edit.h"

#include <QApplication>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace tallyhoop::qt {
namespace {

struct LineEditTest : testing::Test {
    LineEditTest()
    {
        auto* const layout = new QVBoxLayout{&window};
        for (LineEdit* edit : {&box, &other}) {
            layout->addWidget(edit);
            edit->changed = [this, edit] { changes.push_back(edit->text()); };
            edit->pasted = [this](const QString& text) {
                offered.push_back(text);
                return takesPasted;
            };
            edit->typed = [this](char character) {
                typed += character;
                return character == 'x';
            };
        }
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        box.setFocus();
    }

    /// @returns whether the box takes the key before a menu's shortcut gets it
    static bool keeps(LineEdit& edit, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QKeyEvent event{QEvent::ShortcutOverride, key, modifiers};
        event.ignore();
        QApplication::sendEvent(&edit, &event);
        return event.isAccepted();
    }

    static void drop(LineEdit& edit, const QString& text)
    {
        QMimeData data;
        data.setText(text);
        QDragEnterEvent enter{{5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&edit, &enter); // a drop goes to the widget that was entered
        QDropEvent dropped{QPointF{5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier};
        QApplication::sendEvent(&edit, &dropped);
    }

    /// An input method shows a text it is still composing; an empty one gives it up.
    void compose(const QString& text)
    {
        QInputMethodEvent event{text, {}};
        QApplication::sendEvent(&box, &event);
    }

    void commit(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&box, &event);
    }

    LastTyped lastTyped;
    QWidget window;
    LineEdit box{lastTyped};
    LineEdit other{lastTyped};
    std::vector<QString> changes; ///< the text at each change by the person
    std::vector<QString> offered; ///< to be pasted
    bool takesPasted = false;
    std::string typed; ///< by an input method
};

} // namespace

TEST_F(LineEditTest, ShowsWhatIsTypedAsItWillBeSaved)
{
    box.insert(QString::fromUtf8("a\u4e2de\u0301"));
    EXPECT_EQ(box.text(), QString::fromUtf8("a?é"));
    EXPECT_EQ(box.cursorPosition(), 3);
    EXPECT_EQ(changes, std::vector{QString::fromUtf8("a?é")});
}

TEST_F(LineEditTest, KeepsUndoAndRedoWhileItWasTypedIntoLast)
{
    EXPECT_FALSE(keeps(box, Qt::Key_Z)) << "there is nothing to undo";
    QTest::keyClick(&box, Qt::Key_A);
    EXPECT_TRUE(keeps(box, Qt::Key_Z));
    EXPECT_FALSE(keeps(box, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier)) << "there is nothing to redo";
    box.undo();
    EXPECT_TRUE(keeps(box, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier));
}

TEST_F(LineEditTest, LeavesUndoToTheMenuOnceSomethingElseWasDone)
{
    QTest::keyClick(&box, Qt::Key_A);
    QTest::keyClick(&other, Qt::Key_B);
    EXPECT_FALSE(keeps(box, Qt::Key_Z));
    EXPECT_TRUE(keeps(other, Qt::Key_Z));
    lastTyped.box = nullptr;
    EXPECT_FALSE(keeps(other, Qt::Key_Z));
    EXPECT_TRUE(keeps(other, Qt::Key_C)) << "other keys are the box's own";
}

TEST_F(LineEditTest, AsksBeforeItTakesPastedText)
{
    QApplication::clipboard()->setText(QStringLiteral("one\r\ntwo\n"));
    takesPasted = true;
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), QString{});
    takesPasted = false;
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), QStringLiteral("one two")) << "a line break becomes a blank";
    EXPECT_EQ(offered.size(), 2u);
}

TEST_F(LineEditTest, AsksBeforeItTakesTextPastedFromItsMenu)
{
    QApplication::clipboard()->setText(QStringLiteral("one"));
    takesPasted = true;
    const std::unique_ptr<QMenu> menu{box.createStandardContextMenu()};
    const QList<QAction*> entries = menu->actions();
    const auto paste = std::ranges::find_if(
        entries, [](const QAction* entry) { return entry->text().startsWith(QStringLiteral("&Paste")); });
    ASSERT_NE(paste, entries.end());
    (*paste)->trigger();
    EXPECT_EQ(offered, std::vector{QStringLiteral("one")});
    EXPECT_EQ(box.text(), QString{});
}

TEST_F(LineEditTest, AsksBeforeItTakesDroppedText)
{
    takesPasted = true;
    drop(box, QStringLiteral("taken"));
    EXPECT_EQ(box.text(), QString{});
    takesPasted = false;
    drop(box, QStringLiteral("kept"));
    EXPECT_EQ(box.text(), QStringLiteral("kept"));
    EXPECT_EQ(offered, (std::vector{QStringLiteral("taken"), QStringLiteral("kept")}));
}

TEST_F(LineEditTest, TakesNothingAndAsksNobodyWhileItIsReadOnly)
{
    box.setReadOnly(true);
    QApplication::clipboard()->setText(QStringLiteral("text"));
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    drop(box, QStringLiteral("text"));
    EXPECT_EQ(box.text(), QString{});
    EXPECT_TRUE(offered.empty());
}

TEST_F(LineEditTest, OffersEachCharacterOfAnInputMethodAndTakesTheRest)
{
    commit(QStringLiteral("axb"));
    EXPECT_EQ(typed, "axb");
    EXPECT_EQ(box.text(), QStringLiteral("ab"));
}

TEST_F(LineEditTest, ACompositionHidesTheSelectionFromNobody)
{
    box.setText(QStringLiteral("Duke"));
    box.setSelection(2, 2);
    compose(QStringLiteral("q"));
    EXPECT_TRUE(changes.empty()) << "only room was made for the composition";
    QString selected;
    box.typed = [&](char) {
        selected = box.selectedText();
        return true;
    };
    commit(QStringLiteral("q"));
    EXPECT_EQ(selected, QStringLiteral("ke"));
    EXPECT_EQ(box.text(), QStringLiteral("Duke"));
}

TEST_F(LineEditTest, ACompositionThatIsGivenUpOrLeftRestoresTheBox)
{
    box.setText(QStringLiteral("Duke"));
    box.setSelection(2, 2);
    compose(QStringLiteral("q"));
    compose({});
    EXPECT_EQ(box.text(), QStringLiteral("Duke"));
    EXPECT_EQ(box.selectedText(), QStringLiteral("ke"));
    compose(QStringLiteral("q"));
    other.setFocus();
    EXPECT_EQ(box.text(), QStringLiteral("Duke"));
    EXPECT_TRUE(changes.empty());
}

TEST_F(LineEditTest, ACompositionReplacesTheSelectionWhenNobodyTakesIt)
{
    box.setText(QStringLiteral("TEAM1"));
    box.setSelection(1, 3);
    compose(QStringLiteral("o"));
    commit(QStringLiteral("o"));
    EXPECT_EQ(box.text(), QStringLiteral("To1"));
    EXPECT_EQ(changes, std::vector{QStringLiteral("To1")});
}

TEST_F(LineEditTest, KeepsASelectionThatCameWithTheFocusThroughTheClick)
{
    other.setText(QStringLiteral("TEAM6"));
    const auto selecting = QObject::connect(qApp, &QApplication::focusChanged, &window, [this](QWidget*, QWidget* now) {
        if (now == &other)
            other.selectAll();
    });
    const QPoint middle{20, other.height() / 2}; // within "TEAM6"
    QTest::mouseClick(&other, Qt::LeftButton, {}, middle);
    QApplication::processEvents();
    EXPECT_EQ(other.selectedText(), QStringLiteral("TEAM6"));
    QTest::mouseClick(&other, Qt::LeftButton, {}, middle); // now for the caret
    QApplication::processEvents();
    EXPECT_FALSE(other.hasSelectedText());
    QObject::disconnect(selecting);
}

TEST_F(LineEditTest, AClickPutsTheCaretWhereNothingIsSelectedWithTheFocus)
{
    other.setText(QStringLiteral("TEAM6"));
    QTest::mouseClick(&other, Qt::LeftButton, {}, {20, other.height() / 2});
    QApplication::processEvents();
    EXPECT_FALSE(other.hasSelectedText());
}

} // namespace tallyhoop::qt
