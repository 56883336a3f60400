// SPDX-License-Identifier: MIT
// Every icon, as we paint it and as the toolkit's reader of SVG does.
#include "widgets/icon_drawing.h"

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <gtest/gtest.h>

namespace tolvo {
namespace {

template <typename Paint>
QImage picture(int side, const Paint &paint) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    paint(painter, QRectF(0, 0, side, side));
    return image;
}

/// The mean difference of the colours of a pixel, 0 to 255. Curves are made of other pieces, so edges differ
/// a little.
double difference(const QImage &one, const QImage &other) {
    int sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            sum +=
                std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
        }
    }
    return sum / 3.0 / one.width() / one.height();
}

TEST(IconLikeness, EveryIconLooksAsTheToolkitPaintsIt) {
    int icons = 0;
    for (QDirIterator files(QStringLiteral(":/icons")); files.hasNext();) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
        const QByteArray svg =
            file.readAll().replace("currentColor", "#203040").replace("accentColor", "#016331");
        for (const int side : {16, 20, 24, 48, 96}) {
            const QImage ours = picture(side, [&svg](QPainter &painter, const QRectF &square) {
                paintDrawing(painter, square, svg);
            });
            const QImage theirs = picture(side, [&svg](QPainter &painter, const QRectF &square) {
                QSvgRenderer(svg).render(&painter, square);
            });
            EXPECT_LT(difference(ours, theirs), 1.5) << qPrintable(file.fileName()) << " " << side;
        }
        ++icons;
    }
    EXPECT_GT(icons, 20);
}

} // namespace
} // namespace tolvo
