// qt/svg_picture.cpp - reads and paints the elements of an icon.
#include "qt/svg_picture.h"

#include "qt/svg_path.h"

#include <QPainter>
#include <QPen>
#include <QXmlStreamReader>
#include <algorithm>
#include <utility>

namespace tallyhoop::qt {

class SvgReader
{
public:
    explicit SvgReader(const QByteArray& svg) : m_xml{svg} {}

    std::optional<SvgPicture> read()
    {
        if (m_xml.readNextStartElement() && m_xml.name() == QLatin1String{"svg"}) {
            const QStringList box = text("viewBox").split(QLatin1Char{' '});
            if (box.size() == 4)
                m_picture.m_viewBox = {box[0].toDouble(), box[1].toDouble(), box[2].toDouble(), box[3].toDouble()};
            readChildren(styleIn({}));
        }
        const bool isRead = !m_hasFailed && !m_xml.hasError() && m_picture.m_viewBox.isValid();
        return isRead ? std::optional{std::move(m_picture)} : std::nullopt;
    }

private:
    void readChildren(const SvgPicture::Style& style)
    {
        while (!m_hasFailed && m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String{"g"}) {
                readChildren(styleIn(style));
                continue;
            }
            if (m_xml.name() != QLatin1String{"title"})
                readShape(styleIn(style));
            m_xml.skipCurrentElement();
        }
    }

    void readShape(const SvgPicture::Style& style)
    {
        QPainterPath outline;
        if (m_xml.name() == QLatin1String{"path"}) {
            const std::optional<QPainterPath> path = svgPath(text("d"));
            m_hasFailed = m_hasFailed || !path;
            outline = path.value_or(QPainterPath{});
        } else if (m_xml.name() == QLatin1String{"circle"}) {
            outline.addEllipse(QPointF{number("cx"), number("cy")}, number("r"), number("r"));
        } else if (m_xml.name() == QLatin1String{"rect"}) {
            const qreal radius = number("rx");
            outline.addRoundedRect({number("x"), number("y"), number("width"), number("height")}, radius, radius);
        } else {
            m_hasFailed = true;
        }
        m_picture.m_shapes.push_back({outline, style});
    }

    /// @param around that of the element around this one
    SvgPicture::Style styleIn(SvgPicture::Style around)
    {
        const auto colour = [this](const char* name, QString& kept) {
            if (text(name).isEmpty())
                return;
            kept = text(name);
            const bool isWord = kept == QLatin1String{"none"} || kept == QLatin1String{"currentColor"};
            m_hasFailed = m_hasFailed || (!isWord && !QColor::isValidColor(kept));
        };
        colour("fill", around.fill);
        colour("stroke", around.stroke);
        if (!text("stroke-width").isEmpty())
            around.strokeWidth = number("stroke-width");
        if (text("stroke-linecap") == QLatin1String{"round"})
            around.cap = Qt::RoundCap;
        if (text("stroke-linejoin") == QLatin1String{"round"})
            around.join = Qt::RoundJoin;
        return around;
    }

    QString text(const char* name) const { return m_xml.attributes().value(QLatin1String{name}).toString(); }

    qreal number(const char* name) const { return text(name).toDouble(); }

    QXmlStreamReader m_xml;
    SvgPicture m_picture;
    bool m_hasFailed = false;
};

std::optional<SvgPicture> SvgPicture::read(const QByteArray& svg) { return SvgReader{svg}.read(); }

void SvgPicture::paint(QPainter& painter, const QRectF& place, const QColor& current) const
{
    const auto colourOf = [&](const QString& name) {
        return name == QLatin1String{"currentColor"} ? current : QColor{name};
    };
    const qreal scale = std::min(place.width() / m_viewBox.width(), place.height() / m_viewBox.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.center());
    painter.scale(scale, scale);
    painter.translate(-m_viewBox.center());
    for (const Shape& shape : m_shapes) {
        const Style& style = shape.style;
        const bool isFilled = style.fill != QLatin1String{"none"};
        const bool isStroked = style.stroke != QLatin1String{"none"};
        painter.setBrush(isFilled ? QBrush{colourOf(style.fill)} : QBrush{Qt::NoBrush});
        painter.setPen(
            isStroked ? QPen{QBrush{colourOf(style.stroke)}, style.strokeWidth, Qt::SolidLine, style.cap, style.join}
                      : QPen{Qt::NoPen});
        painter.drawPath(shape.outline);
    }
    painter.restore();
}

} // namespace tallyhoop::qt
