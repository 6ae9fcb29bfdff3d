// qt/page_text.cpp - text boxes: text and caret are kept in sync both ways, and what is shown is what is saved.
#include "qt/look.h"
#include "qt/page.h"
#include "qt/text.h"
#include "qt/widgets/lines_edit.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

namespace tallyhoop::qt {

namespace {

/// A caret or a selection, in bytes of the core's text.
struct Selection {
    int start = 0;
    int length = 0;
    friend bool operator==(Selection, Selection) = default;
};

Selection selectionOf(const QLineEdit& edit)
{
    return edit.hasSelectedText() ? Selection{edit.selectionStart(), edit.selectionLength()}
                                  : Selection{edit.cursorPosition(), 0};
}

void select(QLineEdit& edit, Selection selection)
{
    if (selection.length > 0)
        edit.setSelection(selection.start, selection.length);
    else
        edit.setCursorPosition(selection.start);
}

// In the core a line break is two characters, in the widget one.
int bytesAt(const LinesEdit& edit, int position)
{
    const QString before = edit.rawText().left(position);
    return position + static_cast<int>(before.count(QChar{QChar::ParagraphSeparator})) +
           static_cast<int>(before.count(QChar{QChar::LineSeparator}));
}

int positionAt(std::string_view text, int bytes)
{
    const std::string_view before =
        text.substr(0, static_cast<std::size_t>(std::clamp<int>(bytes, 0, static_cast<int>(text.size()))));
    int breaks = 0;
    for (std::size_t i = 1; i < before.size(); ++i)
        breaks += before[i - 1] == '\r' && before[i] == '\n';
    return static_cast<int>(before.size()) - breaks;
}

Selection selectionOf(const LinesEdit& edit)
{
    const int start = bytesAt(edit, edit.selectionStart());
    return {start, bytesAt(edit, edit.selectionStart() + edit.selectionLength()) - start};
}

void select(LinesEdit& edit, Selection selection)
{
    const std::string text = fromLines(edit.rawText());
    const int start = positionAt(text, selection.start);
    edit.select(start, positionAt(text, selection.start + selection.length) - start);
}

std::string textOf(const QLineEdit& edit) { return fromQString(edit.text()); }

std::string textOf(const LinesEdit& edit) { return fromLines(edit.rawText()); }

void setText(QLineEdit& edit, const ui::TextBox& box)
{
    // Otherwise Qt would cut a text from a file that is longer than what may be typed.
    constexpr int kNoLimit = 32767;
    const int most = box.maxLength > 0 ? std::max(box.maxLength, static_cast<int>(box.text.size())) : kNoLimit;
    if (edit.maxLength() != most) // setting it clears the undo history
        edit.setMaxLength(most);
    if (textOf(edit) != box.text)
        edit.setText(toQString(box.text));
}

void setText(LinesEdit& edit, const ui::TextBox& box)
{
    if (textOf(edit) != withCrLf(box.text))
        edit.setPlainText(toLines(box.text));
}

Selection withinText(const ui::TextBox& box)
{
    const int size = static_cast<int>(box.text.size());
    const int start = std::clamp(box.selectionStart, 0, size);
    return {start, std::clamp(box.selectionLength, 0, size - start)};
}

/// What the widget held when it was last in sync with the model.
struct Seen {
    std::string text;
    Selection selection;
};

template <class Edit>
Seen seenIn(const Edit& edit)
{
    return {textOf(edit), selectionOf(edit)};
}

template <class Edit>
void pullText(ui::TextBox& box, const Edit& edit, Seen& seen)
{
    Seen now = seenIn(edit);
    if (now.text != seen.text)
        box.text = now.text;
    if (now.selection != seen.selection) {
        box.selectionStart = now.selection.start;
        box.selectionLength = now.selection.length;
    }
    seen = std::move(now);
}

template <class Edit>
void pushText(const ui::TextBox& box, Edit& edit, Seen& seen)
{
    setText(edit, box);
    if (const Selection wanted = withinText(box); selectionOf(edit) != wanted)
        select(edit, wanted);
    seen = seenIn(edit);
}

/// Shows at once what will be saved: composed characters, and "?" for what Windows-1252 lacks.
void showAsSaved(QLineEdit& edit)
{
    const QString saved = toQString(fromQString(edit.text()));
    if (saved == edit.text())
        return;
    const auto caret = toQString(fromQString(edit.text().left(edit.cursorPosition()))).size();
    edit.setText(saved);
    edit.setCursorPosition(static_cast<int>(caret));
}

void showAsSaved(LinesEdit& edit)
{
    const QString saved = toLines(fromLines(edit.rawText()));
    QString now = edit.rawText();
    now.replace(QChar{QChar::ParagraphSeparator}, QLatin1Char{'\n'});
    if (saved == now)
        return;
    const auto caret = toLines(fromLines(now.left(edit.textCursor().position()))).size();
    edit.setPlainText(saved);
    edit.select(static_cast<int>(caret), 0);
}

void showBackground(const ui::TextBox& box, QWidget& edit)
{
    QPalette palette;
    if (box.background) {
        look::setBackground(palette, look::toQColor(*box.background));
    } else if (box.locked) {
        palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    }
    edit.setPalette(palette);
}

} // namespace

QWidget* Page::add(ui::TextBox& box)
{
    if (box.multiLine)
        return addLines(box);
    return addLine(box);
}

QLineEdit* Page::addLine(ui::TextBox& box)
{
    auto* edit = new QLineEdit{this};
    followCommonParts(box, *edit);
    follow(box.locked, [edit, &box](bool locked) {
        edit->setReadOnly(locked);
        showBackground(box, *edit);
    });
    follow(box.background, [edit, &box](const auto&) { showBackground(box, *edit); });
    auto seen = std::make_shared<Seen>();
    m_pulls.emplace_back([&box, edit, seen] { pullText(box, *edit, *seen); });
    onPush([&box, edit, seen] { pushText(box, *edit, *seen); });
    connect(edit, &QLineEdit::textEdited, this, [this, edit, &box] {
        if (m_composing.edit == edit)
            return; // only the selection was dropped, to make room for the composition
        m_typedInto = edit;
        showAsSaved(*edit);
        edited(box);
    });
    return edit;
}

QPlainTextEdit* Page::addLines(ui::TextBox& box)
{
    auto* edit = new LinesEdit;
    edit->setParent(this);
    followCommonParts(box, *edit);
    follow(box.locked, [edit, &box](bool locked) {
        edit->setReadOnly(locked);
        showBackground(box, *edit);
    });
    follow(box.background, [edit, &box](const auto&) { showBackground(box, *edit); });
    auto seen = std::make_shared<Seen>();
    m_pulls.emplace_back([&box, edit, seen] { pullText(box, *edit, *seen); });
    onPush([&box, edit, seen] { pushText(box, *edit, *seen); });
    edit->pasted = [this, &box](const QString& text) {
        bool consumed = false;
        run([&] { consumed = m_screen.pasted(box, fromLines(text)); });
        return consumed;
    };
    connect(edit, &QPlainTextEdit::textChanged, this, [this, edit, &box, seen] {
        if (m_pushing || textOf(*edit) == seen->text)
            return;
        {
            const QSignalBlocker quiet{edit};
            const bool grown = textOf(*edit).size() > seen->text.size();
            if (box.maxLength > 0 && grown && textOf(*edit).size() > static_cast<std::size_t>(box.maxLength))
                edit->undo();
            showAsSaved(*edit);
        }
        edited(box);
    });
    return edit;
}

/// A screen may select the text of a box that gets the focus, so that typing replaces it. The click that moved the
/// focus would place the caret and clear that selection; only the next click may do so.
void Page::keepSelectionThroughClick(QLineEdit& edit, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::FocusIn:
        m_clickedInto = static_cast<const QFocusEvent&>(event).reason() == Qt::MouseFocusReason ? &edit : nullptr;
        break;
    case QEvent::MouseButtonPress:
        // A box that loses the focus drops its selection: what is selected now was selected for this focus.
        m_selectedOnFocus = std::exchange(m_clickedInto, nullptr) == &edit && edit.hasSelectedText() &&
                            static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
        break;
    case QEvent::MouseButtonRelease:
        if (std::exchange(m_selectedOnFocus, false) && !edit.hasSelectedText()) // else the mouse has selected a part
            QMetaObject::invokeMethod(&edit, &QLineEdit::selectAll, Qt::QueuedConnection);
        break;
    default:
        break;
    }
}

void Page::edited(ui::TextBox& box) { run(box.edited); }

} // namespace tallyhoop::qt
