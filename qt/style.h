// qt/style.h - how our widgets are drawn: flat, with round corners and some air, in the palette's own colours.
#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace tallyhoop::qt {

class Style : public QProxyStyle
{
    Q_OBJECT

public:
    Style();

    /// The colours used where the platform has none of its own.
    static QPalette calmPalette();

    /// Some desktops name their main colours only, and Qt fills up with what suits a light ground.
    /// @returns a palette in which just those roles are set that cannot be seen on the ground of this one
    static QPalette mendedRoles(const QPalette& platform);

    /// Called for the desktop's palette, at the start and after every change of it.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace tallyhoop::qt
