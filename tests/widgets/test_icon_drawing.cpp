// SPDX-License-Identifier: MIT
#include "widgets/drawn_path.h"
#include "widgets/icon_drawing.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace tolvo {
namespace {

TEST(DrawnPath, ReadsTheLettersOfIcons) {
    struct Case {
        const char16_t *letters;
        QRectF bounds;
        QPointF end;
    };
    const Case cases[] = {
        {u"M4 4h7v7H4z", {4, 4, 7, 7}, {4, 4}},
        {u"M3 19 8.5 5 14 19", {3, 5, 11, 14}, {14, 19}}, // pairs after the first are lines
        {u"m1 1 2 2-1-1", {1, 1, 2, 2}, {2, 2}},          // a sign parts numbers
        {u"M0 0l.5.5 1.5.5", {0, 0, 2, 1}, {2, 1}},       // a second point parts them too
        {u"M0,0 L10,0,10,5", {0, 0, 10, 5}, {10, 5}},
        {u"M0 0a5 5 0 0 1 10 0", {0, -5, 10, 5}, {10, 0}}, // clockwise: over the top
        {u"M0 0a5 5 0 0 0 10 0", {0, 0, 10, 5}, {10, 0}},
        {u"M0 0a5 5 0 0110 0", {0, -5, 10, 5}, {10, 0}},      // flags need no blanks
        {u"M0 0A1 1 0 0 1 10 0", {0, -5, 10, 5}, {10, 0}},    // too small: grows
        {u"M5 0a5 5 0 1 1-5 5", {0, 0, 10, 10}, {0, 5}},      // the long way
        {u"M0 0c0 4 4 4 4 0s4-4 4 0", {0, -3, 8, 6}, {8, 0}}, // the second curve mirrors the first
        {u"M1 2L3 4 oops 5 6", {1, 2, 2, 2}, {3, 4}},
        {u"", {}, {}},
    };
    for (const Case &c : cases) {
        const QPainterPath path = drawnPath(c.letters);
        const QRectF bounds = path.boundingRect();
        const QString what = QString::fromUtf16(c.letters);
        EXPECT_NEAR(bounds.left(), c.bounds.left(), 1e-3) << qPrintable(what);
        EXPECT_NEAR(bounds.top(), c.bounds.top(), 1e-3) << qPrintable(what);
        EXPECT_NEAR(bounds.right(), c.bounds.right(), 1e-3) << qPrintable(what);
        EXPECT_NEAR(bounds.bottom(), c.bounds.bottom(), 1e-3) << qPrintable(what);
        EXPECT_NEAR(path.currentPosition().x(), c.end.x(), 1e-3) << qPrintable(what);
        EXPECT_NEAR(path.currentPosition().y(), c.end.y(), 1e-3) << qPrintable(what);
    }
}

TEST(IconDrawing, HandsStylesDownAndLeavesBrokenFilesAlone) {
    const auto colourAt = [](const QByteArray &svg, int x, int y) {
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintDrawing(painter, QRectF(0, 0, 20, 20), svg);
        return image.pixelColor(x, y);
    };
    const QByteArray group =
        "<svg viewBox='0 0 10 10' fill='none' stroke='#ff0000' stroke-width='2'>"
        "<g fill='#0000ff' stroke='none'><circle cx='5' cy='5' r='2'/></g><path d='M0 1H10'/></svg>";
    EXPECT_EQ(colourAt(group, 10, 10), QColor(Qt::blue));
    EXPECT_EQ(colourAt(group, 10, 2), QColor(Qt::red));
    EXPECT_EQ(colourAt(group, 10, 17), QColor(Qt::white));
    EXPECT_EQ(colourAt("<svg viewBox='5 5 5 5'><rect x='5' y='5' width='1' height='1'/></svg>", 2, 2),
              QColor(Qt::black));
    for (const char *broken : {"", "</g></svg>", "<svg", "not a drawing"})
        EXPECT_EQ(colourAt(broken, 10, 10), QColor(Qt::white)) << broken;
}

} // namespace
} // namespace tolvo
