// qt/file_drops.cpp - looks at drags before the widgets do: a text box would take the name of a file for a text.
#include "qt/file_drops.h"

#include "qt/main_frame.h"
#include "qt/page.h"
#include "qt/paths.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <filesystem>
#include <vector>

namespace tallyhoop::qt {

namespace {

std::vector<std::filesystem::path> filesIn(const QMimeData& data)
{
    std::vector<std::filesystem::path> files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls)
        if (url.isLocalFile())
            files.push_back(toPath(url.toLocalFile()));
    return files;
}

bool isDrag(QEvent::Type type) { return type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop; }

} // namespace

FileDrops::FileDrops(MainFrame& frame) : QObject{&frame}, m_frame{frame}
{
    frame.setAcceptDrops(true);
    qApp->installEventFilter(this);
}

/// @returns the page whose screen takes what is dragged, nullptr for none
Page* FileDrops::targetOf(const QObject& watched, const QDropEvent& event) const
{
    const auto* const widget = qobject_cast<const QWidget*>(&watched);
    Page* const page = m_frame.visiblePage();
    if (widget == nullptr || widget->window() != &m_frame || page == nullptr || !page->screen().takesFiles() ||
        !page->desk().accepts(&page->screen()))
        return nullptr;
    return filesIn(*event.mimeData()).empty() ? nullptr : page;
}

bool FileDrops::eventFilter(QObject* watched, QEvent* event)
{
    if (!isDrag(event->type()))
        return false;
    auto& drop = static_cast<QDropEvent&>(*event);
    Page* const page = targetOf(*watched, drop);
    if (page == nullptr)
        return false;
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (event->type() == QEvent::Drop)
        // Once the program from which they come has its answer, for which it waits.
        QTimer::singleShot(0, page, [page, files = filesIn(*drop.mimeData())] {
            page->run([&] { page->screen().filesDropped(files); });
        });
    return true;
}

} // namespace tallyhoop::qt
