// qt/services/qt_help_viewer.cpp - reads the file at each call; reuses the window unless a modal dialog would block it.
#include "qt/services/qt_help_viewer.h"

#include "files/replace_file.h"
#include "qt/paths.h"
#include "qt/services/help_window.h"
#include "qt/text.h"

#include <QApplication>
#include <algorithm>

namespace tallyhoop::qt {

QtHelpViewer::QtHelpViewer(QWidget* frame) : m_frame{frame} {}

QtHelpViewer::~QtHelpViewer() { delete m_window.data(); }

Result<Done> QtHelpViewer::show(const std::filesystem::path& helpFile, const std::string& topic)
{
    const Result<std::string> html = readFile(helpFile);
    if (!html)
        return html.failure();
    if (std::ranges::all_of(*html, [](char c) { return c == ' ' || c == '\r' || c == '\n' || c == '\t'; }))
        return Failure{fromQString(fromPath(helpFile)) + " is empty."};

    // A modal dialog blocks every window but its children: opened from there, the help must be one of them.
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* owner = modal ? modal : m_frame.data();
    if (m_window && m_window->parentWidget() != owner) {
        delete m_window.data();
        m_window.clear();
    }
    const bool first = !m_window;
    if (first)
        m_window = new HelpWindow{owner};
    m_window->setHelp(QByteArray::fromStdString(*html));
    if (m_window->isMinimized())
        m_window->showNormal();
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
    // After it is shown: positions in the text are known only when the text has its width.
    m_window->showTopic(toQString(topic));
    if (first)
        m_window->clearHistory();
    return Done{};
}

void QtHelpViewer::close()
{
    if (m_window)
        m_window->close();
}

} // namespace tallyhoop::qt
