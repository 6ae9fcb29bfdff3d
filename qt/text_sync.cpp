// qt/text_sync.cpp - a widget's text goes into the model when it was edited, the model's when it differs.
#include "qt/text_sync.h"

#include "qt/text.h"
#include "qt/widgets/lines_edit.h"

#include <QLineEdit>
#include <algorithm>
#include <memory>
#include <utility>

namespace tallyhoop::qt {

std::string textOf(const LinesEdit& edit) { return fromLines(edit.rawText()); }

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

template <class Edit>
std::shared_ptr<Seen> keepInSync(Sync& sync, ui::TextBox& box, Edit& edit)
{
    auto seen = std::make_shared<Seen>();
    sync.onPull([&box, &edit, seen] { pullText(box, edit, *seen); });
    sync.onPush([&box, &edit, seen] { pushText(box, edit, *seen); });
    return seen;
}

} // namespace

void keepTextInSync(Sync& sync, ui::TextBox& box, QLineEdit& edit) { keepInSync(sync, box, edit); }

std::function<const std::string&()> keepTextInSync(Sync& sync, ui::TextBox& box, LinesEdit& edit)
{
    return [seen = keepInSync(sync, box, edit)]() -> const std::string& { return seen->text; };
}

} // namespace tallyhoop::qt
