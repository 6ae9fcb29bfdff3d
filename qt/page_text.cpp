// qt/page_text.cpp - text boxes: what is typed, pasted, dropped or composed is offered to the screen first.
#include "qt/look.h"
#include "qt/page.h"
#include "qt/text.h"
#include "qt/text_sync.h"
#include "qt/widgets/lines_edit.h"

#include <QApplication>
#include <QSignalBlocker>
#include <utility>

namespace tallyhoop::qt {

namespace {

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

template <class Edit>
void Page::followBox(ui::TextBox& box, Edit& edit)
{
    followCommonParts(box, edit);
    follow(box.locked, [&edit, &box](bool locked) {
        edit.setReadOnly(locked);
        showBackground(box, edit);
    });
    follow(box.background, [&edit, &box](const auto&) { showBackground(box, edit); });
    // A locked box has the colour of the window, which a person or the desktop can change.
    onPush([&edit, &box, shown = QApplication::palette().color(QPalette::Window)]() mutable {
        const QColor now = QApplication::palette().color(QPalette::Window);
        if (now != std::exchange(shown, now))
            showBackground(box, edit);
    });
    edit.pasted = [this, &box](const QString& text) {
        bool consumed = false;
        run([&] { consumed = m_screen.pasted(box, fromLines(text)); });
        return consumed;
    };
    edit.typed = [this, &box](char character) {
        return pressed(box, {.key = ui::Key::Character, .character = character});
    };
}

QWidget* Page::addLine(ui::TextBox& box)
{
    auto* edit = new LineEdit{m_lastTyped, this};
    followBox(box, *edit);
    keepTextInSync(m_sync, box, *edit);
    follow(box.selectedByClick, [edit](bool selected) { edit->selectedByClick = selected; });
    edit->changed = [this, &box] { run(box.edited); };
    return edit;
}

QWidget* Page::addLines(ui::TextBox& box)
{
    auto* edit = new LinesEdit{m_lastTyped, this};
    followBox(box, *edit);
    connect(edit, &QPlainTextEdit::textChanged, this,
            [this, edit, &box, textBefore = keepTextInSync(m_sync, box, *edit)] {
                const std::size_t before = textBefore().size();
                if (m_sync.isPushing() || textOf(*edit) == textBefore())
                    return;
                {
                    const QSignalBlocker quiet{edit};
                    const std::size_t now = textOf(*edit).size();
                    if (box.maxLength > 0 && now > before && now > static_cast<std::size_t>(box.maxLength))
                        edit->undo();
                    edit->showAsSaved();
                }
                edit->noteTyped();
                run(box.edited);
            });
    return edit;
}

} // namespace tallyhoop::qt
