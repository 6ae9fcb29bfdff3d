// qt/widgets/picture_view.cpp - asks for the drawing while it paints, in units that grow with the application's
// letters.
#include "qt/widgets/picture_view.h"

#include "qt/look.h"
#include "qt/paint_drawing.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace tallyhoop::qt {

namespace {

constexpr double kUnitsInFont = 11.5; ///< so many units are as high as the application's letters

QAccessibleInterface* speakForPicture(const QString&, QObject* object)
{
    auto* const view = qobject_cast<PictureView*>(object);
    return view ? new QAccessibleWidget{view, QAccessible::Graphic} : nullptr;
}

ui::Colour between(const QColor& first, const QColor& second, double share)
{
    const auto mix = [share](int a, int b) { return static_cast<std::uint8_t>(qRound(a + (b - a) * share)); };
    return {mix(first.red(), second.red()), mix(first.green(), second.green()), mix(first.blue(), second.blue())};
}

} // namespace

PictureView::PictureView(const ui::Picture& picture, QWidget* parent) : QFrame{parent}, m_picture{picture}
{
    static const bool kInstalled = (QAccessible::installFactory(&speakForPicture), true);
    static_cast<void>(kInstalled);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken); // as lists have it
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureView::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    if (!m_picture.draw)
        return;
    const QRectF place = QRectF{contentsRect()}.adjusted(look::kTight, look::kTight, -look::kTight, -look::kTight);
    const double unit = QFontInfo{font()}.pixelSize() / kUnitsInFont;
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    paintDrawing(painter, m_picture.draw(place.width() / unit, place.height() / unit, pictureColours(palette())),
                 place);
}

ui::PictureColours pictureColours(const QPalette& palette)
{
    const QColor background = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const QColor accent = palette.color(QPalette::Link); // the style sees to it that it can be read
    return {.text = between(background, text, 1),
            .accent = between(background, accent, 1),
            .soft = between(background, accent, 0.4),
            .line = between(background, text, 0.5),
            .grid = between(background, text, 0.15)};
}

} // namespace tallyhoop::qt
