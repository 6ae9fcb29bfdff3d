// packaging/windows/draw_icon.cpp - draws packaging/tallyhoop.svg in the sizes that Windows shows: draw_icon SVG FOLDER
#include "qt/svg_picture.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <cstdlib>

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
    for (const int size : {16, 20, 24, 32, 40, 48, 64, 256}) {
        QImage image{size, size, QImage::Format_ARGB32};
        image.fill(Qt::transparent);
        QPainter painter{&image};
        painter.setRenderHint(QPainter::Antialiasing);
        picture->paint(painter, image.rect(), Qt::black);
        painter.end();
        if (!image.save(QStringLiteral("%1/%2.png").arg(QString::fromLocal8Bit(argv[2])).arg(size)))
            return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
