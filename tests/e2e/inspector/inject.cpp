// tests/e2e/inspector/inject.cpp - injects events for runs without a display, at the place where the platform would.
#include "inject.h"

#include <QGuiApplication>
#include <QKeySequence>
#include <QTest>
#include <QWindow>

namespace inspector {
namespace {

/// The visible window in front of those that fulfil the condition: a menu, then a box, then the one shown last.
template <class Condition>
QWindow* frontWindow(Condition condition)
{
    QWindow* found = nullptr;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible() && condition(*window)) {
            const bool inFront = found == nullptr || window->type() == Qt::Popup || window->isModal() ||
                                 (found->type() != Qt::Popup && !found->isModal());
            found = inFront ? window : found;
        }
    }
    return found;
}

void injectMouse(const QString& what, const QPoint& point, Qt::MouseButton button)
{
    QWindow* window = frontWindow([&point](const QWindow& one) { return one.geometry().contains(point); });
    if (window == nullptr) {
        return;
    }
    const QPoint place = window->mapFromGlobal(point);
    if (what == QLatin1String("press")) {
        QTest::mousePress(window, button, Qt::NoModifier, place);
    } else if (what == QLatin1String("release")) {
        QTest::mouseRelease(window, button, Qt::NoModifier, place);
    } else {
        QTest::mouseMove(window, place);
    }
}

} // namespace

void inject(const QJsonObject& request)
{
    if (request.contains(QLatin1String("mouse"))) {
        const QPoint point(request.value(QLatin1String("x")).toInt(), request.value(QLatin1String("y")).toInt());
        const bool right = request.value(QLatin1String("button")).toInt() == 3;
        injectMouse(request.value(QLatin1String("mouse")).toString(), point, right ? Qt::RightButton : Qt::LeftButton);
        return;
    }
    QWindow* window = QGuiApplication::focusWindow();
    if (window == nullptr) { // without a window manager the focus does not return when a box has closed
        window = frontWindow([](const QWindow&) { return true; });
        if (window == nullptr) {
            return;
        }
        window->requestActivate();
    }
    if (request.contains(QLatin1String("key"))) {
        const QKeySequence keys(request.value(QLatin1String("key")).toString(), QKeySequence::PortableText);
        QTest::keyClick(window, keys[0].key(), keys[0].keyboardModifiers());
        return;
    }
    for (const QChar letter : request.value(QLatin1String("type")).toString()) {
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, letter, Qt::NoModifier);
    }
}

} // namespace inspector
