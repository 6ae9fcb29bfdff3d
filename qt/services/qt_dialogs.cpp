// qt/services/qt_dialogs.cpp - keeps data in messages plain and short enough for a display, and offers the help topic
// on F1.
#include "qt/services/qt_dialogs.h"

#include "qt/look.h"
#include "qt/paths.h"
#include "qt/services/dialog_notes.h"
#include "qt/services/file_dialog.h"
#include "qt/services/question.h"
#include "qt/text.h"
#include "qt/widgets/page_area.h"

#include <QApplication>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

namespace tallyhoop::qt {

namespace {

constexpr qsizetype kPromptEnd = 40; ///< less, as an input box does not break words

QString captionOf(const std::string& caption)
{
    return caption.empty() ? QStringLiteral("Tallyhoop") : titleText(toQString(caption));
}

bool isWide(const QString& text)
{
    constexpr qsizetype kWide = 60;
    const QStringList lines = text.split(QLatin1Char{'\n'});
    return std::ranges::any_of(lines, [](const QString& line) { return line.size() > kWide; });
}

/// One line of text never holds a line break, wherever it was pasted from.
std::string oneLine(const QString& typed)
{
    QString line = toLines(fromLines(typed));
    while (line.endsWith(QLatin1Char{'\n'}))
        line.chop(1);
    return fromQString(line.replace(QLatin1Char{'\n'}, QLatin1Char{' '}));
}

/// @returns how wide the content of a window has to be for its title to be read, in a bold title bar with an icon and
///          buttons
int widthForTitle(const QWidget& window)
{
    constexpr int kIconAndButtons = 140;
    QFont bold = QApplication::font();
    bold.setBold(true);
    const int width = QFontMetrics{bold}.horizontalAdvance(window.windowTitle()) + kIconAndButtons;
    const QMargins margins = window.layout()->contentsMargins();
    return std::min(width, roomForWindow(window).width()) - margins.left() - margins.right();
}

/// A message box takes the size that its layout asks for, whatever its minimum width is.
/// @param box with all its parts: each that is added makes a new layout
void makeRoomForTitle(QMessageBox& box)
{
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(new QSpacerItem{widthForTitle(box), 0}, grid->rowCount(), 0, 1, grid->columnCount());
}

QMessageBox::Icon toQt(ui::Icon icon)
{
    switch (icon) {
    case ui::Icon::Information:
        return QMessageBox::Information;
    case ui::Icon::Question:
        return QMessageBox::Question;
    case ui::Icon::Exclamation:
        return QMessageBox::Warning;
    case ui::Icon::Critical:
        return QMessageBox::Critical;
    case ui::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

void addButtons(QMessageBox& box, ui::Buttons buttons, bool refusalIsDefault)
{
    switch (buttons) {
    case ui::Buttons::Ok:
        box.setStandardButtons(QMessageBox::Ok);
        box.setEscapeButton(QMessageBox::Ok);
        break;
    case ui::Buttons::OkCancel:
        box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
        box.setEscapeButton(QMessageBox::Cancel);
        box.setDefaultButton(refusalIsDefault ? QMessageBox::Cancel : QMessageBox::Ok);
        break;
    case ui::Buttons::YesNo:
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
        box.setDefaultButton(refusalIsDefault ? QMessageBox::No : QMessageBox::Yes);
        break;
    }
}

ui::Answer answerOf(int button)
{
    switch (button) {
    case QMessageBox::Cancel:
        return ui::Answer::Cancel;
    case QMessageBox::Yes:
        return ui::Answer::Yes;
    case QMessageBox::No:
        return ui::Answer::No;
    default:
        return ui::Answer::Ok;
    }
}

QString nameFilter(const ui::FileChoice& choice)
{
    const QString name = toQString(choice.filterName);
    const QString pattern = QLatin1Char{'('} + toQString(choice.pattern) + QLatin1Char{')'};
    // cppcheck-suppress ignoredReturnValue  ; it is not ignored
    return name.contains(pattern) ? name : name + QLatin1Char{' '} + pattern;
}

} // namespace

ui::Answer QtDialogs::show(const ui::Message& message)
{
    const Question question{m_desk};
    QMessageBox box{m_desk.windowForDialogs()};
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(captionOf(message.caption));
    box.setIcon(toQt(message.icon));
    box.setText(shownText(toLines(message.text)));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    addButtons(box, message.buttons, message.refusalIsDefault);
    const QAbstractButton* more = nullptr;
    if (!message.moreButton.empty())
        more = box.addButton(toQString(message.moreButton), QMessageBox::ActionRole);
    offerHelp(box, message.helpTopic.empty() ? m_desk.runningTopic() : message.helpTopic);
    makeRoomForTitle(box);
    const int button = box.exec();
    return more != nullptr && box.clickedButton() == more ? ui::Answer::More : answerOf(button);
}

/// F1 opens the help while the message is shown.
void QtDialogs::offerHelp(QMessageBox& box, const std::string& topic)
{
    auto* key = new QShortcut{QKeySequence{Qt::Key_F1}, &box};
    QObject::connect(key, &QShortcut::activated, &box, [this, topic] {
        if (m_desk.helpWanted)
            m_desk.helpWanted(topic);
    });
}

std::string QtDialogs::ask(const ui::Question& asked)
{
    const Question question{m_desk};
    QInputDialog dialog{m_desk.windowForDialogs()};
    dialog.setWindowTitle(captionOf(asked.caption));
    dialog.setTextValue(toQString(asked.proposal));
    dialog.setLabelText({});
    static_cast<void>(dialog.sizeHint()); // lays it out: until then it would make the label a mnemonic once more
    const auto labels = dialog.findChildren<QLabel*>();
    for (QLabel* label : labels) {
        // A prompt may quote a name: it is neither markup nor a mnemonic.
        label->setTextFormat(Qt::PlainText);
        label->setBuddy(nullptr);
    }
    const QString prompt = shownText(toLines(asked.prompt), kPromptEnd);
    for (QLabel* label : labels)
        label->setWordWrap(isWide(prompt));
    dialog.setLabelText(prompt);
    if (auto* line = dialog.findChild<QLineEdit*>())
        line->setAccessibleName(prompt);
    dialog.layout()->addItem(new QSpacerItem{widthForTitle(dialog), 0}); // its layout overrides a minimum width
    return dialog.exec() == QDialog::Accepted ? oneLine(dialog.textValue()) : std::string{};
}

std::optional<std::filesystem::path> QtDialogs::openFile(const ui::FileChoice& choice) { return choose(choice, false); }

std::vector<std::filesystem::path> QtDialogs::openFiles(const ui::FileChoice& choice)
{
    const Question question{m_desk};
    [[maybe_unused]] const DialogNotes notes;
    FileDialog dialog{m_desk.windowForDialogs(), captionOf(choice.caption), choice.folder,
                      FileDialog::Purpose::OpenFiles};
    dialog.setNameFilter(nameFilter(choice));
    return dialog.exec() == QDialog::Accepted ? dialog.allChosen() : std::vector<std::filesystem::path>{};
}

std::optional<std::filesystem::path> QtDialogs::saveFile(const ui::FileChoice& choice) { return choose(choice, true); }

std::optional<std::filesystem::path> QtDialogs::choose(const ui::FileChoice& choice, bool save)
{
    const Question question{m_desk};
    [[maybe_unused]] const DialogNotes notes;
    FileDialog dialog{m_desk.windowForDialogs(), captionOf(choice.caption), choice.folder,
                      save ? FileDialog::Purpose::SaveFile : FileDialog::Purpose::OpenFile};
    dialog.setNameFilter(nameFilter(choice)); // Qt matches it in any case
    if (!choice.proposedName.empty())
        dialog.selectFile(toQString(choice.proposedName));
    return dialog.exec() == QDialog::Accepted ? dialog.chosen() : std::nullopt;
}

std::optional<std::filesystem::path> QtDialogs::chooseFolder(const std::string& caption,
                                                             const std::filesystem::path& folder)
{
    const Question question{m_desk};
    [[maybe_unused]] const DialogNotes notes;
    FileDialog dialog{m_desk.windowForDialogs(), captionOf(caption), folder, FileDialog::Purpose::ChooseFolder};
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("Choose"));
    return dialog.exec() == QDialog::Accepted ? dialog.chosen() : std::nullopt;
}

void QtDialogs::about(const std::filesystem::path& folder)
{
    const Question question{m_desk};
    QMessageBox box{m_desk.windowForDialogs()};
    box.setTextFormat(Qt::PlainText);
    box.setWindowTitle(QStringLiteral("About Tallyhoop"));
    const QIcon icon = QApplication::windowIcon();
    if (!icon.isNull())
        box.setIconPixmap(icon.pixmap(64, 64));
    box.setText(QStringLiteral("Tallyhoop ") + QApplication::applicationVersion());
    box.setInformativeText(QStringLiteral("Runs an office pool on the 64-team college basketball tournament: brackets, "
                                          "results, scores and reports.\n\nThe pool is in the folder\n") +
                           shownText(fromPath(folder)));
    // The format of the text above does not hold for this one: a folder's name is no markup either.
    if (auto* details = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")))
        details->setTextFormat(Qt::PlainText);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
}

} // namespace tallyhoop::qt
