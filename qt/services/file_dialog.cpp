// qt/services/file_dialog.cpp - looks at what was typed before Qt does: quotation marks, and names that exist in
// another case.
#include "qt/services/file_dialog.h"

#include "files/data_folder.h"
#include "files/entry_at.h"
#include "files/whole_path.h"
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

bool isFolder(const fs::path& path)
{
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

/// @returns the file of this name in another case; nothing when the name exists as it is, or not at all
std::optional<fs::path> inAnotherCase(const fs::path& file)
{
    const std::optional<fs::path> found = findInAnyCase(file);
    return found && *found != file && isFile(*found) ? found : std::nullopt;
}

/// A name that was typed in another case, where that is the same name, is shown and noted as the folder has it.
fs::path spelledAsThere(const fs::path& chosen) { return entryAt(chosen).value_or(chosen); }

QFileDialog::FileMode fileModeOf(FileDialog::Purpose purpose)
{
    switch (purpose) {
    case FileDialog::Purpose::SaveFile:
        return QFileDialog::AnyFile;
    case FileDialog::Purpose::ChooseFolder:
        return QFileDialog::Directory;
    case FileDialog::Purpose::OpenFiles:
        return QFileDialog::ExistingFiles;
    case FileDialog::Purpose::OpenFile:
        break;
    }
    return QFileDialog::ExistingFile;
}

} // namespace

FileDialog::FileDialog(QWidget* parent, const QString& caption, const fs::path& folder, Purpose purpose)
    : QFileDialog{parent, caption, fromPath(folder)}, m_purpose{purpose}
{
    setOption(DontUseNativeDialog); // only Qt's own dialog has the line edit below
    setOption(DontConfirmOverwrite);
    setOption(ShowDirsOnly, purpose == Purpose::ChooseFolder);
    setAcceptMode(purpose == Purpose::SaveFile ? AcceptSave : AcceptOpen);
    setFileMode(fileModeOf(purpose));
    m_name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    m_name->installEventFilter(this);
    connect(m_name, &QLineEdit::textChanged, this, &FileDialog::enableForName);
}

/// Qt disables the button when it finds no such file.
void FileDialog::enableForName()
{
    const fs::path path = typedPath();
    const bool isQuoted = m_name->text().contains(kQuote) && (isFolder(path) || mayBeChosen(path));
    if (isQuoted || (opens() && inAnotherCase(path)))
        findChild<QDialogButtonBox*>()
            ->button(m_purpose == Purpose::SaveFile ? QDialogButtonBox::Save : QDialogButtonBox::Open)
            ->setEnabled(true);
}

std::optional<fs::path> FileDialog::chosen() const
{
    if (m_quoted)
        return spelledAsThere(*m_quoted);
    return selectedFiles().isEmpty() ? std::nullopt
                                     : std::optional{spelledAsThere(toPath(selectedFiles().constFirst()))};
}

std::vector<fs::path> FileDialog::allChosen() const
{
    if (m_quoted)
        return {spelledAsThere(*m_quoted)};
    std::vector<fs::path> files;
    const QStringList selected = selectedFiles();
    for (const QString& file : selected)
        files.push_back(spelledAsThere(toPath(file)));
    return files;
}

/// Qt writes several chosen files as "one" "two".
bool FileDialog::isListOfNames() const { return m_purpose == Purpose::OpenFiles && m_name->text().count(kQuote) > 2; }

QString FileDialog::typed() const
{
    const QString text = m_name->text();
    const bool quoted = text.size() > 2 && text.startsWith(kQuote) && text.endsWith(kQuote) && text.count(kQuote) == 2;
    return quoted ? text.mid(1, text.size() - 2) : text;
}

fs::path FileDialog::typedPath() const
{
    const fs::path shown = toPath(directory().absolutePath());
    const fs::path literal = normalPath(shown / toPath(m_name->text()));
    std::error_code ignored;
    return fs::exists(literal, ignored) ? literal : normalPath(shown / toPath(typed()));
}

bool FileDialog::mayBeChosen(const fs::path& path) const
{
    switch (m_purpose) {
    case Purpose::SaveFile:
        return isFolder(path.parent_path()) && !isFolder(path);
    case Purpose::ChooseFolder:
        return isFolder(path);
    case Purpose::OpenFile:
    case Purpose::OpenFiles:
        break;
    }
    return isFile(path);
}

/// Replaces what was typed by the name of the file that it means.
void FileDialog::preferExistingName()
{
    if (!opens())
        return;
    if (const std::optional<fs::path> found = inAnotherCase(typedPath()))
        m_name->setText(fromPath(*found));
}

/// Accepts a name with quotation marks in or around it, which Qt would take for separators of several names.
void FileDialog::acceptQuoted()
{
    const fs::path path = typedPath();
    if (mayBeChosen(path)) {
        m_quoted = path;
        done(Accepted); // without Qt's own interpretation of the name
        return;
    }
    if (isFolder(path)) {
        setDirectory(fromPath(path));
        m_name->clear();
        return;
    }
    std::error_code unknown;
    const QString reason = fs::exists(path, unknown) ? QStringLiteral("\nThis is neither a file nor a folder.")
                                                     : QStringLiteral("\nThere is no such file or folder.");
    QMessageBox box{QMessageBox::Warning, windowTitle(), typed() + reason, QMessageBox::Ok, this};
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void FileDialog::accept()
{
    preferExistingName();
    if (m_name->text().contains(kQuote) && (!isListOfNames() || mayBeChosen(typedPath())))
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
