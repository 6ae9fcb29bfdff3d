// qt/control_widgets.h - which widget shows a control, and which control a widget shows.
#pragma once

#include <QWidget>
#include <unordered_map>

namespace tallyhoop::ui {
struct Control;
} // namespace tallyhoop::ui

namespace tallyhoop::qt {

class ControlWidgets
{
public:
    void add(ui::Control& control, QWidget& widget)
    {
        m_widgets[&control] = &widget;
        m_controls[&widget] = &control;
    }

    /// @returns nullptr when the control has none
    QWidget* widgetOf(const ui::Control& control) const
    {
        const auto at = m_widgets.find(&control);
        return at == m_widgets.end() ? nullptr : at->second;
    }

    /// @returns nullptr when the widget itself shows none
    ui::Control* controlOf(const QObject* widget) const
    {
        const auto at = m_controls.find(widget);
        return at == m_controls.end() ? nullptr : at->second;
    }

private:
    std::unordered_map<const ui::Control*, QWidget*> m_widgets;
    std::unordered_map<const QObject*, ui::Control*> m_controls;
};

} // namespace tallyhoop::qt
