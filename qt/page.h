// qt/page.h - a screen's widgets, kept in sync with its control models.
//
// A view derives from Page; its constructor is a layout and a list of add(...) calls:
//
//     layout->addWidget(add(board.txtPlayerName));
//
// The same page works in the frame's stack, as a window of its own, and inside a modal dialog.
#pragma once

#include "qt/control_widgets.h"
#include "qt/desk.h"
#include "qt/page_focus.h"
#include "qt/page_menus.h"
#include "qt/status_line.h"
#include "qt/sync.h"
#include "qt/widgets/line_edit.h"
#include "ui/screen.h"

#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QButtonGroup;
class QKeyEvent;

namespace tallyhoop::ui {
struct Picture;
}

namespace tallyhoop::qt {

class PictureView;

class Page : public QMainWindow
{
    Q_OBJECT

public:
    /// Makes an empty page and, from the screen's menus, its menu bar; attaches it to the desk.
    Page(ui::Screen& screen, Desk& desk);
    ~Page() override;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    ui::Screen& screen() const { return m_screen; }
    Desk& desk() const { return m_desk; }

    /// Makes the widget of a control, names it after the control, and keeps both in sync.
    QLabel* add(ui::Label& label);  ///< plain text, never a mnemonic
    QWidget* add(ui::TextBox& box); ///< QLineEdit, or QPlainTextEdit when the box is multiLine
    QPushButton* add(ui::Command& command);
    QCheckBox* add(ui::CheckBox& box);
    QRadioButton* add(ui::OptionButton& option); ///< those added singly form one group; for more see addOptions()
    QListView* add(ui::ListBox& list);           ///< a lazy view on a snapshot of the rows: 10,000 are fine
    QTableView* add(ui::Grid& grid);             ///< the same; dragging a heading moves columns through the model only
    PictureView* add(ui::Picture& picture);      ///< drawn anew whenever its room or the colours of the window change

    /// Makes the radio buttons of one group, of which the person can select one.
    template <class Options>
    std::vector<QRadioButton*> addOptions(Options& options)
    {
        std::vector<QRadioButton*> buttons;
        QButtonGroup* group = newOptionGroup();
        for (std::size_t i = 0; i < options.size(); ++i)
            buttons.push_back(addToGroup(options[i], *group));
        return buttons;
    }

    /// Registers a widget that the view made itself: names it and keeps the common parts in sync (enabled, visible,
    /// tool tip, spoken name and explanation, tab order, keys, focus). @returns the widget
    template <class Widget>
    Widget* adopt(ui::Control& control, Widget* widget)
    {
        followCommonParts(control, *widget);
        return widget;
    }

    /// The same for a label; `apply` is called now and whenever its text or one of its colours differs from what was
    /// last applied.
    template <class Widget>
    Widget* adopt(ui::Label& label, Widget* widget, std::function<void(const ui::Label&)> apply)
    {
        followCommonParts(label, *widget);
        onPush([&label, apply = std::move(apply), text = std::optional<std::string>{},
                colours = std::pair<std::optional<ui::Colour>, std::optional<ui::Colour>>{}]() mutable {
            if (text && *text == label.text && colours == std::pair{label.colour, label.background})
                return;
            text = label.text;
            colours = {label.colour, label.background};
            apply(label);
        });
        return widget;
    }

    /// As in Sync.
    template <class T, class Apply>
    void follow(const T& value, Apply apply)
    {
        m_sync.follow(value, std::move(apply));
    }
    void onPush(std::function<void()> apply) { m_sync.onPush(std::move(apply)); }

    /// Runs a command of this screen through the desk.
    void run(const std::function<void()>& command) { m_desk.run(m_screen, command); }

    /// Shows this layout as the page's content, with the look's margins.
    void setContent(QLayout* layout);

    /// @returns the widget of a control, nullptr when it has none (menu entries have actions)
    QWidget* widgetOf(const ui::Control& control) const { return m_widgets.widgetOf(control); }
    QAction* actionOf(const ui::MenuEntry& entry) const { return m_menus.actionOf(entry); }

    /// @returns names of the screen's controls that the view did not add
    std::vector<std::string> controlsWithoutWidget() const;

    /// Called by the desk.
    void pull();
    void push();

    /// Reports the focus to the screen when it moved to another control since the last report.
    /// @returns whether it had moved
    bool reportFocus();

    /// Gives the focus to the first control in the tab order unless the screen chose one.
    void focusFirst() { m_focus.toFirst(); }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void followCommonParts(ui::Control& control, QWidget& widget);
    template <class Edit>
    void followBox(ui::TextBox& box, Edit& edit);
    QWidget* addLine(ui::TextBox& box);
    QWidget* addLines(ui::TextBox& box);
    void followNote(const std::string& note, QAbstractItemView& view);
    QButtonGroup* newOptionGroup();
    QRadioButton* addToGroup(ui::OptionButton& option, QButtonGroup& group);

    bool pressed(ui::Control& control, const QKeyEvent& event);
    bool pressed(ui::Control& control, const ui::KeyPress& press);
    bool pressDefault();

    ui::Screen& m_screen;
    Desk& m_desk;
    Sync m_sync;
    ControlWidgets m_widgets;
    LastTyped m_lastTyped;
    PageFocus m_focus;
    StatusLine m_statusLine;
    PageMenus m_menus;
    QButtonGroup* m_singleOptions = nullptr;
};

} // namespace tallyhoop::qt
