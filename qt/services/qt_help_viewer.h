// qt/services/qt_help_viewer.h - the help window: contents, search and links over one HTML file.
#pragma once

#include "qt/desk.h"
#include "ui/platform.h"

#include <QPointer>

namespace tallyhoop::qt {

class HelpWindow;

class QtHelpViewer : public ui::HelpViewer
{
public:
    /// @param frame owns the help window
    explicit QtHelpViewer(QWidget* frame);
    ~QtHelpViewer() override;
    QtHelpViewer(const QtHelpViewer&) = delete;
    QtHelpViewer& operator=(const QtHelpViewer&) = delete;

    Result<Done> show(const std::filesystem::path& helpFile, const std::string& topic) override;

    /// Closes the window, such as at the program's end.
    void close();

private:
    QPointer<QWidget> m_frame;
    QPointer<HelpWindow> m_window;
};

} // namespace tallyhoop::qt
