// qt/widgets/page_area.cpp - measures the display, and scrolls to the widget that gets the focus.
#include "qt/widgets/page_area.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace tallyhoop::qt {

namespace {

constexpr QSize kMenuAndStatus{0, 60}; ///< above and below the content

} // namespace

PageArea::PageArea(QWidget* content)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    content->setAutoFillBackground(false); // shows the window's background, as without the area
    viewport()->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

/// Its content is destroyed after it and then loses the focus, which must not reach follow() any more.
PageArea::~PageArea() { disconnect(qApp, nullptr, this, nullptr); }

QSize PageArea::within(QSize wanted) const
{
    const QSize room = roomForWindow(*this) - kMenuAndStatus;
    if (wanted.height() > room.height())
        wanted.rwidth() += verticalScrollBar()->sizeHint().width();
    return wanted.boundedTo(room);
}

QSize PageArea::sizeHint() const { return within(widget()->sizeHint()); }

QSize PageArea::minimumSizeHint() const { return within(widget()->minimumSizeHint()); }

bool PageArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        fit();
    }
    return QScrollArea::eventFilter(watched, event);
}

void PageArea::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

/// @returns the least size of the content in a page of this width
QSize PageArea::leastFor(int width) const
{
    if (!widget())
        return {};
    QSize least = widget()->minimumSizeHint();
    const QLayout* const layout = widget()->layout();
    if (layout && layout->hasHeightForWidth())
        least.setHeight(layout->totalMinimumHeightForWidth(std::max(width, least.width())));
    return least;
}

/// Gives the content the whole area, and more where it cannot be that small. Qt's own resizing asks content with a text
/// that wraps for the height that it would like to have, and so scrolls where there is room enough.
void PageArea::fit()
{
    if (!widget())
        return;
    QSize room = maximumViewportSize();
    if (leastFor(room.width()).height() > room.height())
        room.rwidth() -= verticalScrollBar()->sizeHint().width();
    const QSize least = leastFor(room.width());
    if (least.width() > room.width())
        room.rheight() -= horizontalScrollBar()->sizeHint().height();
    widget()->resize(room.expandedTo(least));
}

/// Scrolls to the widget that gets the focus, by a key or by the program.
void PageArea::follow(QWidget* focused)
{
    if (focused && widget()->isAncestorOf(focused))
        ensureWidgetVisible(focused);
}

QSize roomForWindow(const QWidget& widget) { return widget.screen()->availableGeometry().size() - kWindowFrame; }

} // namespace tallyhoop::qt
