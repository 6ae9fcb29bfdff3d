// qt/services/file_dialog.cpp - looks at what was typed before Qt does: quotation marks, and names that exist in
// another case.
#include "qt/services/file_dialog.h"

#include "files/data_folder.h"
#include "qt/paths.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace tallyhoop::qt {

namespace {

namespace fs = std::filesystem;

const QLatin1Char kQuote{'"'};

bool isFile(const fs::path& path)
{
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

/// @returns the file of this name in another case; nothing when the name exists as it is, or not at all
std::optional<fs::path> inAnotherCase(const fs::path& file)
{
    const std::optional<fs::path> found = findInAnyCase(file);
    return found && *found != file && isFile(*found) ? found : std::nullopt;
}

} // namespace

FileDialog::FileDialog(QWidget* parent, const QString& caption, const fs::path& folder, bool save)
    : QFileDialog{parent, caption, fromPath(folder)}, m_save{save}
{
    setOption(DontUseNativeDialog); // only Qt's own dialog has the line edit below
    setOption(DontConfirmOverwrite);
    setAcceptMode(save ? AcceptSave : AcceptOpen);
    setFileMode(save ? AnyFile : ExistingFile);
    m_name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    m_name->installEventFilter(this);
    if (!save)
        connect(m_name, &QLineEdit::textChanged, this, [this] {
            auto* open = findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open);
            if (inAnotherCase(typedPath()))
                open->setEnabled(true); // Qt disables it when it finds no such file
        });
}

std::optional<fs::path> FileDialog::chosen() const
{
    if (m_quoted)
        return m_quoted;
    return selectedFiles().isEmpty() ? std::nullopt : std::optional{toPath(selectedFiles().constFirst())};
}

QString FileDialog::typed() const
{
    const QString text = m_name->text();
    const bool quoted = text.size() > 2 && text.startsWith(kQuote) && text.endsWith(kQuote) && text.count(kQuote) == 2;
    return quoted ? text.mid(1, text.size() - 2) : text;
}

fs::path FileDialog::typedPath() const
{
    return (toPath(directory().absolutePath()) / toPath(typed())).lexically_normal();
}

/// Replaces what was typed by the name of the file that it means.
void FileDialog::preferExistingName()
{
    if (m_save)
        return;
    if (const std::optional<fs::path> found = inAnotherCase(typedPath()))
        m_name->setText(fromPath(*found));
}

/// Accepts a name with quotation marks in or around it, which Qt would take for separators of several names.
void FileDialog::acceptQuoted()
{
    const fs::path file = typedPath();
    std::error_code ignored;
    const bool possible =
        m_save ? fs::is_directory(file.parent_path(), ignored) && !fs::is_directory(file, ignored) : isFile(file);
    if (possible) {
        m_quoted = file;
        done(Accepted); // without Qt's own interpretation of the name
        return;
    }
    QMessageBox box{QMessageBox::Warning, windowTitle(), typed() + QStringLiteral("\nThere is no such file or folder."),
                    QMessageBox::Ok, this};
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void FileDialog::accept()
{
    preferExistingName();
    if (m_name->text().contains(kQuote))
        acceptQuoted();
    else
        QFileDialog::accept();
}

bool FileDialog::eventFilter(QObject* watched, QEvent* event)
{
    // Before Qt finds its button disabled, or disables it again.
    if (watched == m_name && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            preferExistingName();
    }
    return QFileDialog::eventFilter(watched, event);
}

} // namespace tallyhoop::qt
