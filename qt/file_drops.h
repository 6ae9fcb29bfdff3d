// qt/file_drops.h - files that are dropped onto the frame, wherever on it, go to the screen that is shown.
#pragma once

#include <QObject>

class QDropEvent;

namespace tallyhoop::qt {

class MainFrame;
class Page;

/// Files only: a text that is dropped goes to the box under the pointer, as ever. So do files where the screen has no
/// use for them.
class FileDrops : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the frame, which lets drops come.
    explicit FileDrops(MainFrame& frame);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Page* targetOf(const QObject& watched, const QDropEvent& event) const;

    MainFrame& m_frame;
};

} // namespace tallyhoop::qt
