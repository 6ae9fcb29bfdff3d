// qt/widgets/page_area.cpp - measures the display, and scrolls to the widget that gets the focus.
#include "qt/widgets/page_area.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollBar>

namespace tallyhoop::qt {

namespace {

constexpr QSize kMenuAndStatus{0, 60}; ///< above and below the content

} // namespace

PageArea::PageArea(QWidget* content)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
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
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

/// Scrolls to the widget that gets the focus, by a key or by the program.
void PageArea::follow(QWidget* focused)
{
    if (focused && widget()->isAncestorOf(focused))
        ensureWidgetVisible(focused);
}

QSize roomForWindow(const QWidget& widget) { return widget.screen()->availableGeometry().size() - kWindowFrame; }

} // namespace tallyhoop::qt
