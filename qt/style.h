// qt/style.h - how our widgets are drawn: as Qt's Fusion draws them, with some padding, in the palette's own colours,
// and with outlines of our own where Fusion's cannot be seen.
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

    /// Those of a person who chose dark ones.
    static QPalette darkPalette();

    /// Some desktops define their main colours only, and Qt fills in colours that suit a light background.
    /// @returns a palette that sets just those roles which have too little contrast with this one's background
    static QPalette readableRoles(const QPalette& platform);

    /// Called for the desktop's palette, at the start and after every change of it.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
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
