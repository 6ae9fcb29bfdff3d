// tests/qt/page_keys_test.cpp - keys that a widget passes to its screen, and those it gets back.
#include "qt/sample_screen.h"

#include <QInputMethodEvent>
#include <gtest/gtest.h>

using namespace tallyhoop;
using namespace tallyhoop::qt;
using namespace tallyhoop::qt::test;

namespace {

std::vector<ui::KeyPress> recordKeys(SampleScreen& screen, bool consume, const std::function<void()>& type)
{
    std::vector<ui::KeyPress> presses;
    screen.keyRule = [&](ui::Control&, const ui::KeyPress& press) {
        presses.push_back(press);
        return consume;
    };
    type();
    screen.keyRule = nullptr;
    return presses;
}

} // namespace

TEST(PageKeys, AKeyThatTheScreenHandlesNeverReachesTheBox)
{
    Shown shown;
    const auto presses = recordKeys(shown.screen, true, [&] {
        QTest::keyClick(shown.page.name, 'a');
        QTest::keyClick(shown.page.name, 'B', Qt::ShiftModifier);
    });
    ASSERT_EQ(presses.size(), 2u);
    EXPECT_EQ(presses[0].key, ui::Key::Character);
    EXPECT_EQ(presses[0].character, 'a');
    EXPECT_EQ(presses[1].character, 'B');
    EXPECT_EQ(shown.page.name->text(), QString{});
}

TEST(PageKeys, OtherKeysReachTheBox)
{
    Shown shown;
    recordKeys(shown.screen, false, [&] { QTest::keyClicks(shown.page.name, "a"); });
    EXPECT_EQ(shown.page.name->text(), QStringLiteral("a"));
}

TEST(PageKeys, KeysAreTranslatedForTheScreens)
{
    Shown shown;
    const std::vector<std::pair<Qt::Key, ui::Key>> keys{
        {Qt::Key_Return, ui::Key::Enter},  {Qt::Key_Enter, ui::Key::Enter},   {Qt::Key_Backspace, ui::Key::Backspace},
        {Qt::Key_Delete, ui::Key::Delete}, {Qt::Key_Escape, ui::Key::Escape}, {Qt::Key_Tab, ui::Key::Tab},
        {Qt::Key_Up, ui::Key::Up},         {Qt::Key_Down, ui::Key::Down},     {Qt::Key_Left, ui::Key::Left},
        {Qt::Key_Right, ui::Key::Right},   {Qt::Key_PageUp, ui::Key::PageUp}, {Qt::Key_PageDown, ui::Key::PageDown},
        {Qt::Key_Home, ui::Key::Home},     {Qt::Key_End, ui::Key::End},       {Qt::Key_F5, ui::Key::Other},
    };
    for (const auto& [pressed, meant] : keys) {
        const auto presses = recordKeys(shown.screen, true, [&] { QTest::keyClick(shown.page.name, pressed); });
        ASSERT_EQ(presses.size(), 1u) << pressed;
        EXPECT_EQ(presses[0].key, meant) << pressed;
    }
}

TEST(PageKeys, AShortcutIsMarkedAsSuch)
{
    Shown shown;
    const auto presses =
        recordKeys(shown.screen, true, [&] { QTest::keyClick(shown.page.name, Qt::Key_X, Qt::ControlModifier); });
    ASSERT_EQ(presses.size(), 1u);
    EXPECT_EQ(presses[0].character, 'x');
    EXPECT_TRUE(presses[0].control);
}

TEST(PageKeys, TheCaretIsKnownBeforeAKeyAndSetAfterIt)
{
    Shown shown;
    shown.desk.run(shown.screen, [&] { shown.screen.txtName.text = "SMITH"; });
    shown.page.name->setCursorPosition(2);
    int caret = -1;
    shown.screen.keyRule = [&](ui::Control&, const ui::KeyPress&) {
        caret = shown.screen.txtName.selectionStart;
        shown.screen.txtName.selectionStart = 3;
        shown.screen.txtName.selectionLength = 2;
        return true;
    };
    QTest::keyClick(shown.page.name, Qt::Key_I);
    EXPECT_EQ(caret, 2);
    EXPECT_EQ(shown.page.name->selectedText(), QStringLiteral("TH"));
}

TEST(PageKeys, TextOfAnInputMethodTakesTheSamePath)
{
    Shown shown;
    shown.page.name->setFocus();
    shown.screen.keyRule = [](ui::Control&, const ui::KeyPress& press) { return press.character == 'x'; };
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("axb"));
    QApplication::sendEvent(shown.page.name, &event);
    EXPECT_EQ(shown.screen.txtName.text, "ab");

    const auto presses = recordKeys(shown.screen, false, [&] {
        QInputMethodEvent accent;
        accent.setCommitString(QString::fromUtf8("é"));
        QApplication::sendEvent(shown.page.name, &accent);
    });
    ASSERT_EQ(presses.size(), 1u);
    EXPECT_EQ(presses[0].character, '\xe9');
    EXPECT_EQ(shown.screen.txtName.text, "ab\xe9");
}

TEST(PageKeys, EnterPressesTheDefaultCommandUnlessItIsDisabled)
{
    Shown shown;
    QTest::keyClick(shown.page.name, Qt::Key_Return);
    EXPECT_TRUE(shown.screen.log.empty());
    shown.desk.run(shown.screen, [&] { shown.screen.cmdOk.isDefault = true; });
    QTest::keyClick(shown.page.name, Qt::Key_Return);
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"ok"});
    shown.desk.run(shown.screen, [&] { shown.screen.cmdOk.enabled = false; });
    QTest::keyClick(shown.page.name, Qt::Key_Return);
    EXPECT_EQ(shown.screen.log.size(), 1u);
}

TEST(PageKeys, EnterOnAButtonPressesThatButton)
{
    Shown shown;
    shown.page.ok->setFocus();
    QTest::keyClick(shown.page.ok, Qt::Key_Return);
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"ok"});
}

TEST(PageKeys, EscapeAsksTheScreenToClose)
{
    Shown shown;
    QTest::keyClick(shown.page.name, Qt::Key_Escape);
    EXPECT_EQ(shown.screen.log, std::vector<std::string>{"close"});
}
