// qt/key_presses.cpp - the meaning of each key, and the characters that it brings.
#include "qt/key_presses.h"

#include "qt/text.h"

namespace tallyhoop::qt {

namespace {

bool isPrintable(const QString& text)
{
    return !text.isEmpty() && text.at(0).unicode() >= 0x20 && text.at(0).unicode() != 0x7f;
}

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr || key == Qt::Key_CapsLock || key == Qt::Key_NumLock;
}

} // namespace

ui::Key keyOf(int key)
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return ui::Key::Enter;
    case Qt::Key_Backspace:
        return ui::Key::Backspace;
    case Qt::Key_Delete:
        return ui::Key::Delete;
    case Qt::Key_Escape:
        return ui::Key::Escape;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return ui::Key::Tab;
    case Qt::Key_Up:
        return ui::Key::Up;
    case Qt::Key_Down:
        return ui::Key::Down;
    case Qt::Key_Left:
        return ui::Key::Left;
    case Qt::Key_Right:
        return ui::Key::Right;
    case Qt::Key_PageUp:
        return ui::Key::PageUp;
    case Qt::Key_PageDown:
        return ui::Key::PageDown;
    case Qt::Key_Home:
        return ui::Key::Home;
    case Qt::Key_End:
        return ui::Key::End;
    default:
        return ui::Key::Other;
    }
}

std::vector<ui::KeyPress> pressesOf(const QKeyEvent& event)
{
    if (isModifier(event.key()))
        return {};
    ui::KeyPress press{.key = keyOf(event.key())};
    press.control = event.modifiers().testFlag(Qt::ControlModifier) || event.modifiers().testFlag(Qt::MetaModifier);
    press.alt = event.modifiers().testFlag(Qt::AltModifier);
    press.shift = event.modifiers().testFlag(Qt::ShiftModifier);
    if (press.key != ui::Key::Other)
        return {press};
    if (isPrintable(event.text())) {
        if (press.control && press.alt) // AltGr on some keyboards: text, not a shortcut
            press.control = press.alt = false;
        std::vector<ui::KeyPress> presses;
        press.key = ui::Key::Character;
        for (const char character : fromQString(event.text())) {
            press.character = character;
            presses.push_back(press);
        }
        return presses;
    }
    if (press.control && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) {
        press.key = ui::Key::Character;
        press.character = static_cast<char>('a' + event.key() - Qt::Key_A);
    }
    return {press};
}

} // namespace tallyhoop::qt
