// qt/page_keys.cpp - keys go to the screen, then to the control's own rules, then to the widget.
#include "qt/key_presses.h"
#include "qt/page.h"

#include <QEnterEvent>

namespace tallyhoop::qt {

bool Page::eventFilter(QObject* watched, QEvent* event)
{
    ui::Control* const control = m_widgets.controlOf(watched);
    if (!control)
        return QMainWindow::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Enter:
        m_statusLine.pointerCameTo(*control, static_cast<QEnterEvent*>(event)->globalPosition().toPoint());
        break;
    case QEvent::Leave:
        m_statusLine.pointerLeft(*control);
        break;
    case QEvent::MouseButtonPress:
        if (!qobject_cast<LineEdit*>(watched))
            m_lastTyped.box = nullptr;
        break;
    case QEvent::KeyPress:
        if (pressed(*control, static_cast<const QKeyEvent&>(*event)))
            return true;
        break;
    default:
        break;
    }
    return QMainWindow::eventFilter(watched, event);
}

bool Page::pressed(ui::Control& control, const QKeyEvent& event)
{
    bool consumed = false;
    for (const ui::KeyPress& press : pressesOf(event))
        consumed = pressed(control, press) || consumed;
    return consumed;
}

bool Page::pressed(ui::Control& control, const ui::KeyPress& press)
{
    bool consumed = false;
    run([&] { consumed = m_screen.keyPressed(control, press) || control.keyPressed(press); });
    return consumed;
}

void Page::keyPressEvent(QKeyEvent* event)
{
    const ui::Key key = keyOf(event->key());
    if (key == ui::Key::Escape)
        run([this] { m_screen.closeRequested(); });
    else if (event->key() == Qt::Key_F1 && m_desk.helpWanted)
        run([this] { m_desk.helpWanted(m_screen.helpTopic()); });
    else if (key != ui::Key::Enter || !pressDefault())
        QMainWindow::keyPressEvent(event);
}

bool Page::pressDefault()
{
    auto* pressed = dynamic_cast<ui::Command*>(m_focus.focused());
    for (ui::Control* control : m_screen.controls()) {
        auto* command = dynamic_cast<ui::Command*>(control);
        if (!pressed && command && command->isDefault && command->enabled && command->visible)
            pressed = command;
    }
    if (!pressed)
        return false;
    run([pressed] { pressed->click(); });
    return true;
}

} // namespace tallyhoop::qt
