// qt/widgets/line_edit.h - a box of one line that asks before it takes text, and shows at once what will be saved.
#pragma once

#include <QLineEdit>
#include <functional>

namespace tallyhoop::qt {

class LineEdit;

/// Of the boxes of a window, the one that typing into was the last thing done; nullptr when something else was done
/// since. What was done last is undone first.
struct LastTyped {
    const QWidget* box = nullptr;
};

class LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// @param lastTyped shared by the boxes of a window; outlives them
    explicit LineEdit(LastTyped& lastTyped, QWidget* parent = nullptr);

    /// Called with text that is pasted or dropped into a box that is not read-only.
    /// @returns true when it was dealt with and must not be inserted
    std::function<bool(const QString&)> pasted;

    /// Called with each character that an input method commits, a byte of the core.
    /// @returns true when it was dealt with and must not be inserted
    std::function<bool(char)> typed;

    /// Whether each click selects the whole text, instead of placing the caret; dragging selects a part all the same.
    bool selectedByClick = false;

    /// Called when the person has changed the text. It is shown then as it will be saved: characters composed, and "?"
    /// for what Windows-1252 lacks.
    std::function<void()> changed;

    /// Instead of QLineEdit's own: the entry of its menu finds a slot by its name, in the most derived class.
    Q_SLOT void paste();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    /// What the box held before an input method began to compose in it.
    struct Composing {
        bool isUnderWay = false;
        QString text;
        int selectionStart = -1;
        int selectionLength = 0;
    };

    void edited();
    void showAsSaved();
    bool isUndone(QKeyEvent& key) const;
    void take(const QString& text);
    void endComposing();

    LastTyped& m_lastTyped;
    Composing m_composing;
    bool m_clickedInto = false; ///< got its focus by a mouse press that has not been delivered yet
    bool m_selectsAll = false;  ///< the press that is under way selects the whole text unless the mouse is dragged
};

} // namespace tallyhoop::qt
