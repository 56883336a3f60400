// SPDX-License-Identifier: MIT
#include "widgets/themed_icon.h"

#include "widgets/contrast.h"
#include "widgets/icon_drawing.h"
#include "widgets/painted_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>

namespace tolvo {

namespace {

constexpr QColor darkGreen(1, 99, 49);
constexpr QColor lightGreen(104, 200, 140);

/// The role of what is written on a ground.
QPalette::ColorRole inkOn(QPalette::ColorRole ground) {
    switch (ground) {
    case QPalette::Base:
        return QPalette::Text;
    case QPalette::Button:
        return QPalette::ButtonText;
    default:
        return QPalette::WindowText;
    }
}

void paintThemed(QPainter &painter, const QRect &rect, QIcon::Mode mode, const QByteArray &file,
                 QPalette::ColorRole ground) {
    const QPalette palette = QGuiApplication::palette();
    const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor text =
        palette.color(group, mode == QIcon::Selected ? QPalette::HighlightedText : inkOn(ground));
    const bool plain = mode == QIcon::Normal || mode == QIcon::Active;
    const QColor second = plain ? accentOn(palette, ground) : text;
    QByteArray svg = file;
    svg.replace("currentColor", text.name().toLatin1()).replace("accentColor", second.name().toLatin1());
    const int side = qMin(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    paintDrawing(painter, square, svg);
}

} // namespace

bool isDark(const QPalette &palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

QColor accent(const QPalette &palette) {
    return isDark(palette) ? lightGreen : darkGreen;
}

QColor accentOn(const QPalette &palette, QPalette::ColorRole ground) {
    const QColor back = palette.color(ground);
    const QColor green = contrast(darkGreen, back) > contrast(lightGreen, back) ? darkGreen : lightGreen;
    return contrast(green, back) >= textContrast ? green : palette.color(inkOn(ground));
}

QIcon themedIcon(const QString &name, QPalette::ColorRole ground) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return paintedIcon(
        [svg = file.readAll(), ground](QPainter &painter, const QRect &rect, QIcon::Mode mode) {
            paintThemed(painter, rect, mode, svg, ground);
        });
}

} // namespace tolvo
