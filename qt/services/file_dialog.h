// qt/services/file_dialog.h - Qt's file dialog for one file, which takes a typed name literally.
#pragma once

#include <QFileDialog>
#include <filesystem>
#include <optional>

class QLineEdit;

namespace tallyhoop::qt {

/// Names are matched without regard to case when a file is opened, as the program does everywhere. Quotation marks
/// around a name are dropped; inside one they belong to it.
class FileDialog : public QFileDialog
{
    Q_OBJECT

public:
    FileDialog(QWidget* parent, const QString& caption, const std::filesystem::path& folder, bool save);

    /// @returns the file after the dialog was accepted
    std::optional<std::filesystem::path> chosen() const;

protected:
    void accept() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString typed() const;
    std::filesystem::path typedPath() const;
    void preferExistingName();
    void acceptQuoted();

    QLineEdit* m_name;
    bool m_save;
    std::optional<std::filesystem::path> m_quoted;
};

} // namespace tallyhoop::qt
