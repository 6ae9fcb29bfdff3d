// qt/svg_path.cpp - reads a path command by command.
#include "qt/svg_path.h"

#include <QLineF>
#include <QRectF>
#include <QRegularExpression>
#include <QStringList>
#include <array>
#include <cmath>
#include <utility>

namespace tallyhoop::qt {

namespace {

/// Where an arc of a circle goes: the SVG standard gives its two ends, the painter wants its centre.
struct Arc {
    qreal radius = 0;
    bool isLong = false;      ///< the longer of the two ways round
    bool isClockwise = false; ///< as it is seen, with y downwards
    QPointF end;
};

void addArc(QPainterPath& path, Arc arc)
{
    const QPointF start = path.currentPosition();
    const QLineF chord{start, arc.end};
    if (arc.radius <= 0 || chord.length() == 0) {
        path.lineTo(arc.end);
        return;
    }
    const qreal half = chord.length() / 2;
    const qreal radius = std::max(arc.radius, half); // one that is too small is made to reach
    // The centre is on the line through the middle of the chord, at a right angle to it.
    const qreal distance = std::sqrt(radius * radius - half * half) * (arc.isLong == arc.isClockwise ? -1 : 1);
    const QPointF across{-chord.dy() / chord.length(), chord.dx() / chord.length()};
    const QPointF centre = chord.center() + across * distance;
    // QLineF's angles run counterclockwise, as those of arcTo do.
    const qreal from = QLineF{centre, start}.angle();
    const qreal to = QLineF{centre, arc.end}.angle();
    const qreal way = arc.isClockwise ? -std::fmod(from - to + 360, 360) : std::fmod(to - from + 360, 360);
    path.arcTo(QRectF{centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius}, from, way);
}

class PathReader
{
public:
    explicit PathReader(QStringView text)
    {
        static const QRegularExpression kWords{QStringLiteral("[A-Za-z]|[-+]?(?:\\d+\\.?\\d*|\\.\\d+)|[^\\s,]")};
        for (auto word = kWords.globalMatch(text); word.hasNext();)
            m_words.append(word.next().captured());
    }

    std::optional<QPainterPath> read()
    {
        char command = 0;
        while (m_at < m_words.size() && !m_hasFailed) {
            if (m_words[m_at].front().isLetter())
                command = m_words[m_at++].front().toLatin1();
            else if (command == 'M' || command == 'm') // the points after the first one are ends of lines
                command = command == 'M' ? 'L' : 'l';
            obey(command);
        }
        return m_hasFailed ? std::nullopt : std::optional{m_path};
    }

private:
    void obey(char command)
    {
        const QPointF origin = command >= 'a' ? m_path.currentPosition() : QPointF{};
        switch (command) {
        case 'M':
        case 'm':
            return m_path.moveTo(point(origin));
        case 'L':
        case 'l':
            return m_path.lineTo(point(origin));
        case 'H':
        case 'h':
            return m_path.lineTo(origin.x() + number(), m_path.currentPosition().y());
        case 'V':
        case 'v':
            return m_path.lineTo(m_path.currentPosition().x(), origin.y() + number());
        case 'C':
        case 'c': {
            const QPointF first = point(origin);
            const QPointF second = point(origin);
            m_secondControl = second;
            m_path.cubicTo(first, second, point(origin));
            m_lastCurve = m_path.currentPosition();
            return;
        }
        case 'S':
        case 's': {
            // Its first control point is the mirror image of the last one of the curve before it.
            const QPointF here = m_path.currentPosition();
            const QPointF first = m_lastCurve == here ? 2 * here - m_secondControl : here;
            const QPointF second = point(origin);
            m_secondControl = second;
            m_path.cubicTo(first, second, point(origin));
            m_lastCurve = m_path.currentPosition();
            return;
        }
        case 'A':
        case 'a':
            return arc(origin);
        case 'Z':
        case 'z':
            return m_path.closeSubpath();
        default:
            m_hasFailed = true;
        }
    }

    void arc(QPointF origin)
    {
        Arc arc;
        arc.radius = number();
        const qreal otherRadius = number();
        const qreal turn = number();
        arc.isLong = number() != 0;
        arc.isClockwise = number() != 0;
        arc.end = point(origin);
        if (otherRadius != arc.radius || turn != 0)
            m_hasFailed = true;
        else
            addArc(m_path, arc);
    }

    qreal number()
    {
        bool isNumber = false;
        const qreal value = m_at < m_words.size() ? m_words[m_at++].toDouble(&isNumber) : 0;
        m_hasFailed = m_hasFailed || !isNumber;
        return value;
    }

    QPointF point(QPointF origin)
    {
        const qreal x = number();
        return origin + QPointF{x, number()};
    }

    QStringList m_words;
    qsizetype m_at = 0;
    bool m_hasFailed = false;
    QPainterPath m_path;
    QPointF m_secondControl;            ///< of the last curve
    std::optional<QPointF> m_lastCurve; ///< where it ends
};

} // namespace

std::optional<QPainterPath> svgPath(QStringView text) { return PathReader{text}.read(); }

} // namespace tallyhoop::qt
