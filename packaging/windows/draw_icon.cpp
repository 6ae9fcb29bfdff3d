// packaging/windows/draw_icon.cpp - draws packaging/tallyhoop.svg in the sizes that Windows shows, and for the last
// page of the installer: draw_icon SVG FOLDER
#include "qt/svg_picture.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <cstdlib>

namespace {

/// @param place of the icon
void draw(QImage& image, const tallyhoop::qt::SvgPicture& icon, const QRect& place)
{
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    icon.paint(painter, place, Qt::black);
}

/// @returns the icon in the middle of a column of a calm colour, in the size that the installer has
QImage column(const tallyhoop::qt::SvgPicture& icon)
{
    constexpr int kIcon = 116;
    QImage image{164, 314, QImage::Format_RGB32};
    image.fill(QColor{0xEC, 0xEF, 0xF4});
    draw(image, icon, {(image.width() - kIcon) / 2, (image.height() - kIcon) / 2, kIcon, kIcon});
    return image.convertToFormat(QImage::Format_RGB888);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3)
        return EXIT_FAILURE;
    QFile file{QString::fromLocal8Bit(argv[1])};
    if (!file.open(QIODevice::ReadOnly))
        return EXIT_FAILURE;
    const auto picture = tallyhoop::qt::SvgPicture::read(file.readAll());
    if (!picture)
        return EXIT_FAILURE;
    const QString folder = QString::fromLocal8Bit(argv[2]);
    for (const int size : {16, 20, 24, 32, 40, 48, 64, 256}) {
        QImage image{size, size, QImage::Format_ARGB32};
        image.fill(Qt::transparent);
        draw(image, *picture, image.rect());
        if (!image.save(QStringLiteral("%1/%2.png").arg(folder).arg(size)))
            return EXIT_FAILURE;
    }
    return column(*picture).save(folder + QStringLiteral("/finished.bmp")) ? EXIT_SUCCESS : EXIT_FAILURE;
}
