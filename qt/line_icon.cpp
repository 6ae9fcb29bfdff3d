// qt/line_icon.cpp - an icon engine that sets the colour in the SVG text whenever it paints.
#include "qt/line_icon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace tallyhoop::qt {

namespace {

class LineIcon : public QIconEngine
{
public:
    explicit LineIcon(QByteArray svg) : m_svg{std::move(svg)} {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        const QColor textColour = QApplication::palette().color(group, role);
        QByteArray svg = m_svg;
        svg.replace("currentColor", textColour.name().toLatin1());
        QSvgRenderer{svg}.render(painter, place);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap{size};
        pixmap.fill(Qt::transparent);
        QPainter painter{&pixmap};
        paint(&painter, QRect{QPoint{}, size}, mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new LineIcon{m_svg}; }

private:
    QByteArray m_svg;
};

} // namespace

QIcon lineIcon(const QString& resource)
{
    QFile file{resource};
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon{new LineIcon{file.readAll()}};
}

} // namespace tallyhoop::qt
