// qt/page.h - a screen's widgets, kept in sync with its control models.
//
// A view derives from Page; its constructor is a layout and a list of add(...) calls:
//
//     layout->addWidget(add(board.txtPlayerName));
//
// The same page works in the frame's stack, as a window of its own, and inside a modal dialog.
#pragma once

#include "qt/desk.h"
#include "ui/screen.h"

#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

class QAction;
class QButtonGroup;
class QLineEdit;
class QMenu;
class QMenuBar;
class QMimeData;
class QPlainTextEdit;

namespace tallyhoop::qt {

class ElidedLabel;

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
    /// tool tip, spoken name and hint, tab order, keys, focus). @returns the widget
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

    /// Applies a value of the model now and whenever it differs from what was last applied.
    template <class T, class Apply>
    void follow(const T& value, Apply apply)
    {
        onPush([&value, apply = std::move(apply), applied = std::optional<T>{}]() mutable {
            if (applied && *applied == value)
                return;
            applied = value;
            apply(value);
        });
    }

    /// Keeps the widget in sync with a value that the person can change too: a change made in the widget since the last
    /// sync is pulled, a change made in the model is pushed. A widget that was not touched is never read back.
    /// @param read  () -> T, what the widget shows
    /// @param write (const T&), shows it
    template <class T, class Read, class Write>
    void mirror(T& value, Read read, Write write)
    {
        auto seen = std::make_shared<T>(read());
        m_pulls.push_back([&value, seen, read] {
            T now = read();
            if (now == *seen)
                return;
            *seen = now;
            value = std::move(now);
        });
        onPush([&value, seen, read, write] {
            if (!(read() == value))
                write(value);
            *seen = read();
        });
    }

    /// Runs `apply` now and with every push.
    void onPush(std::function<void()> apply);

    /// Runs a command of this screen through the desk.
    void run(const std::function<void()>& command) { m_desk.run(m_screen, command); }

    /// Shows this layout as the page's content, with the look's margins.
    void setContent(QLayout* layout);

    /// @returns the widget of a control, nullptr when it has none (menu entries have actions)
    QWidget* widgetOf(const ui::Control& control) const;
    QAction* actionOf(const ui::MenuEntry& entry) const;

    /// @returns names of the screen's controls that the view did not add
    std::vector<std::string> controlsWithoutWidget() const;

    /// Called by the desk.
    void pull();
    void push();

    /// Reports the focus to the screen when it moved to another control since the last report.
    /// @returns whether it had moved
    bool reportFocus();

    /// Gives the focus to the first control in the tab order unless the screen chose one.
    void focusFirst();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    /// The box in which an input method is composing a text, and what it held before.
    struct Composing {
        QLineEdit* edit = nullptr;
        QString text;
        int selectionStart = -1;
        int selectionLength = 0;
    };

    void makeStatusLine();
    void followExplanation(ui::Control& control, QWidget& widget);
    void pointerCameOrWent(const ui::Control& control, const QEvent& event);
    void explain();
    void followCommonParts(ui::Control& control, QWidget& widget);
    QLineEdit* addLine(ui::TextBox& box);
    QPlainTextEdit* addLines(ui::TextBox& box);
    QButtonGroup* newOptionGroup();
    QRadioButton* addToGroup(ui::OptionButton& option, QButtonGroup& group);
    void edited(ui::TextBox& box);
    void keepSelectionThroughClick(QLineEdit& edit, const QEvent& event);

    void buildMenuBar();
    QAction* addEntry(ui::MenuEntry& entry, QWidget& holder);
    void followEntry(ui::MenuEntry& entry, QAction& action);

    bool filterKey(ui::Control& control, QKeyEvent& event);
    bool leavesToMenu(const QLineEdit& edit, QKeyEvent& key) const;
    bool filterInputMethod(ui::Control& control, QEvent& event);
    void endComposing();
    bool filterPaste(ui::TextBox& box, QLineEdit& edit, QEvent& event);
    bool filterContextMenu(ui::TextBox& box, QLineEdit& edit, QEvent& event);
    bool filterGridKey(ui::Grid& grid, QTableView& view, int key, bool moveColumn);
    void pressCell(ui::Grid& grid, const QModelIndex& index);
    bool pasteInto(ui::TextBox& box, QLineEdit& edit, const QString& text);
    bool pressed(ui::Control& control, const ui::KeyPress& press);
    bool pressDefault();

    void pullFocus();
    void pushFocus();
    ui::Control* controlOf(const QWidget* widget) const;
    ui::Control* focusedControl() const;
    void orderTabs();

    ui::Screen& m_screen;
    Desk& m_desk;
    std::unordered_map<const QWidget*, ui::Control*> m_controls;
    std::unordered_map<const ui::Control*, QWidget*> m_widgetOf;
    std::unordered_map<const ui::Control*, QAction*> m_actions;
    std::vector<std::function<void()>> m_pulls;
    std::vector<std::function<void()>> m_pushes;
    ui::Control* m_focusSeen = nullptr;
    ui::Control* m_focusReported = nullptr;
    ElidedLabel* m_explanation = nullptr; ///< the line below the page; null until there is a text for it
    QLabel* m_status = nullptr;           ///< the right end of that line
    const ui::Control* m_pointed = nullptr;
    QString m_entryExplained;  ///< the explanation of the highlighted menu entry; empty = none
    bool m_focusMoved = false; ///< since the screen's hint changed
    QButtonGroup* m_singleOptions = nullptr;
    const QLineEdit* m_typedInto = nullptr;   ///< unless something else was done since
    const QLineEdit* m_clickedInto = nullptr; ///< got its focus by a mouse press that has not been delivered yet
    Composing m_composing;
    bool m_selectedOnFocus = false; ///< the box that was clicked into got its focus, and the screen selected text in it
    bool m_pushing = false;
    bool m_tabsChanged = false;
};

} // namespace tallyhoop::qt
