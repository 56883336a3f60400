// SPDX-License-Identifier: MIT
// Draws an icon while the program is built: draw_icon SVG SIDE PNG, the side in pixels.
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char **argv) {
    const int side = argc == 4 ? QString::fromLocal8Bit(argv[2]).toInt() : 0;
    if (side <= 0) {
        std::fputs("usage: draw_icon SVG SIDE PNG\n", stderr);
        return 2;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter);
    painter.end();
    return drawing.isValid() && picture.save(QString::fromLocal8Bit(argv[3]), "PNG") ? 0 : 1;
}
