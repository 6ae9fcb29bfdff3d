// qt/services/file_dialog.h - Qt's file dialog for files or a folder, which takes a typed name literally.
#pragma once

#include <QFileDialog>
#include <filesystem>
#include <optional>
#include <vector>

class QLineEdit;

namespace tallyhoop::qt {

/// Names are matched without regard to case when a file is opened, as the program does everywhere. Quotation marks
/// belong to a name that exists with them; else those around a name are dropped, and where several files can be opened
/// they separate names.
class FileDialog : public QFileDialog
{
    Q_OBJECT

public:
    enum class Purpose { OpenFile, OpenFiles, SaveFile, ChooseFolder };

    FileDialog(QWidget* parent, const QString& caption, const std::filesystem::path& folder, Purpose purpose);

    /// @returns the file or folder after the dialog was accepted
    std::optional<std::filesystem::path> chosen() const;

    /// @returns all files after the dialog was accepted
    std::vector<std::filesystem::path> allChosen() const;

protected:
    void accept() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool opens() const { return m_purpose == Purpose::OpenFile || m_purpose == Purpose::OpenFiles; }
    bool isListOfNames() const;
    QString typed() const;
    std::filesystem::path typedPath() const;
    bool mayBeChosen(const std::filesystem::path& path) const;
    void enableForName();
    void preferExistingName();
    void acceptQuoted();

    QLineEdit* m_name;
    Purpose m_purpose;
    std::optional<std::filesystem::path> m_quoted;
};

} // namespace tallyhoop::qt
