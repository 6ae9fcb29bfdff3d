// tests/e2e/inspector/describe.h - describes in JSON what a person sees of the running program's windows.
#pragma once
#include <QJsonArray>
#include <QJsonObject>
#include <QWidget>

namespace inspector {

/// A property of a window: whether it has had the focus since it was shown. Only then its position is final.
inline constexpr const char* kHasArrived = "tallyhoopHasArrived";

/// The widget of that object name: a visible one rather than a hidden one, and one in the active window rather than
/// others. Null when there is none.
QWidget* findWidget(const QString& name);

/// Everything observable of one widget: rectangle on the screen, text, colours, states, rows.
QJsonObject describeWidget(QWidget* widget);

/// The visible top-level windows: name, class, title, rectangle, whether modal and active.
QJsonArray describeWindows();

/// The modal box in front: title, text, icon, buttons with their rectangles. Empty when nothing is modal.
QJsonObject describeModal();

/// The menu entry of that name in the menu bar or open menu that contains it: enabled, visible, text, shortcut; its
/// rectangle on the screen is empty when it cannot be clicked now.
QJsonObject describeAction(const QString& name);

/// The names of all menu entries of the visible screens.
QJsonArray actionNames();

/// Cells of a list or table in the order shown; headings with their rectangles.
QJsonObject describeTable(QWidget* widget);

} // namespace inspector
