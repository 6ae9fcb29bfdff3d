// qt/widgets/page_area.h - holds a page's content and scrolls it where the display is too small.
#pragma once

#include <QScrollArea>

namespace tallyhoop::qt {

/// Takes the room that its content needs, but never more than a window can have on this display.
class PageArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit PageArea(QWidget* content);
    ~PageArea() override;
    PageArea(const PageArea&) = delete;
    PageArea& operator=(const PageArea&) = delete;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QSize leastFor(int width) const;
    void fit();
    QSize within(QSize wanted) const;
    void follow(QWidget* focused);
};

/// What a window manager puts around a window, roughly: it is not known before the window is shown.
inline constexpr QSize kWindowFrame{8, 36};

/// @returns the room for a window without its frame on the display of a widget
QSize roomForWindow(const QWidget& widget);

} // namespace tallyhoop::qt
