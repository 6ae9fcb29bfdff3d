// qt/svg_picture.h - our icons, which are drawn in a small part of SVG.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <optional>
#include <vector>

class QPainter;

namespace tallyhoop::qt {

/// A picture of paths, circles and rectangles, in groups or not, each with a fill and a stroke.
class SvgPicture
{
public:
    /// @returns nothing when it is no SVG, or has anything else in it: an element, a path command, a colour
    static std::optional<SvgPicture> read(const QByteArray& svg);

    /// Paints the picture as large as fits into this place.
    /// @param current the colour of what is drawn in "currentColor"
    void paint(QPainter& painter, const QRectF& place, const QColor& current) const;

private:
    friend class SvgReader;

    /// How shapes are painted; what an element does not say it takes from the one around it.
    struct Style {
        QString fill = QStringLiteral("black"); ///< a colour, "currentColor" or "none", as is the next one
        QString stroke = QStringLiteral("none");
        qreal strokeWidth = 1;
        Qt::PenCapStyle cap = Qt::FlatCap;
        Qt::PenJoinStyle join = Qt::SvgMiterJoin;
    };
    struct Shape {
        QPainterPath outline;
        Style style;
    };

    QRectF m_viewBox;
    std::vector<Shape> m_shapes; ///< the lowest first
};

} // namespace tallyhoop::qt
