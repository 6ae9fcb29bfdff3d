// qt/line_icon.cpp - an icon engine that paints its picture in the colour of the moment.
#include "qt/line_icon.h"

#include "qt/svg_picture.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <optional>
#include <utility>

namespace tallyhoop::qt {

namespace {

class LineIcon : public QIconEngine
{
public:
    explicit LineIcon(SvgPicture picture) : m_picture{std::move(picture)} {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        m_picture.paint(*painter, place, QApplication::palette().color(group, role));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap{size};
        pixmap.fill(Qt::transparent);
        QPainter painter{&pixmap};
        paint(&painter, QRect{QPoint{}, size}, mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new LineIcon{m_picture}; }

private:
    SvgPicture m_picture;
};

} // namespace

QIcon lineIcon(const QString& resource)
{
    QFile file{resource};
    if (!file.open(QIODevice::ReadOnly))
        return {};
    std::optional<SvgPicture> picture = SvgPicture::read(file.readAll());
    return picture ? QIcon{new LineIcon{*std::move(picture)}} : QIcon{};
}

} // namespace tallyhoop::qt
