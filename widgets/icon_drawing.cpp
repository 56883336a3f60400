// SPDX-License-Identifier: MIT
#include "widgets/icon_drawing.h"

#include "widgets/drawn_path.h"

#include <QPainter>
#include <QXmlStreamReader>
#include <vector>

namespace tolvo {

namespace {

/// What an element hands down to those inside it.
struct Style {
    QBrush fill = Qt::black;
    QPen stroke = Qt::NoPen;
    qreal width = 1;
    Qt::PenCapStyle cap = Qt::FlatCap;
    Qt::PenJoinStyle join = Qt::SvgMiterJoin;
};

void readStyle(Style &style, const QXmlStreamAttributes &attributes) {
    const QStringView none = u"none";
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QStringView name = attribute.name();
        const QStringView value = attribute.value();
        if (name == QLatin1String("fill"))
            style.fill = value == none ? QBrush(Qt::NoBrush) : QBrush(QColor(value.toString()));
        else if (name == QLatin1String("stroke"))
            style.stroke = value == none ? QPen(Qt::NoPen) : QPen(QColor(value.toString()));
        else if (name == QLatin1String("stroke-width"))
            style.width = value.toDouble();
        else if (name == QLatin1String("stroke-linecap"))
            style.cap = value == QLatin1String("round") ? Qt::RoundCap : Qt::FlatCap;
        else if (name == QLatin1String("stroke-linejoin"))
            style.join = value == QLatin1String("round") ? Qt::RoundJoin : Qt::SvgMiterJoin;
    }
    style.stroke.setWidthF(style.width);
    style.stroke.setCapStyle(style.cap);
    style.stroke.setJoinStyle(style.join);
}

QPainterPath shapeOf(QStringView element, const QXmlStreamAttributes &attributes) {
    const auto number = [&attributes](const char *name) {
        return attributes.value(QLatin1String(name)).toDouble();
    };
    QPainterPath shape;
    if (element == QLatin1String("path"))
        shape = drawnPath(attributes.value(QLatin1String("d")));
    else if (element == QLatin1String("circle"))
        shape.addEllipse(QPointF(number("cx"), number("cy")), number("r"), number("r"));
    else if (element == QLatin1String("rect"))
        shape.addRoundedRect(QRectF(number("x"), number("y"), number("width"), number("height")),
                             number("rx"), number("rx"));
    shape.setFillRule(Qt::WindingFill);
    return shape;
}

/// The transformation from the view box, four numbers, to the square.
QTransform fromViewBox(QStringView viewBox, const QRectF &square) {
    const QList<QStringView> numbers = viewBox.split(u' ', Qt::SkipEmptyParts);
    if (numbers.size() != 4 || numbers[2].toDouble() <= 0 || numbers[3].toDouble() <= 0)
        return {};
    QTransform transform = QTransform::fromTranslate(square.x(), square.y());
    transform.scale(square.width() / numbers[2].toDouble(), square.height() / numbers[3].toDouble());
    return transform.translate(-numbers[0].toDouble(), -numbers[1].toDouble());
}

} // namespace

void paintDrawing(QPainter &painter, const QRectF &square, const QByteArray &file) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    std::vector<Style> styles{Style()};
    for (QXmlStreamReader xml(file); !xml.atEnd();) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::EndElement)
            styles.pop_back();
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        styles.push_back(styles.back());
        readStyle(styles.back(), attributes);
        if (xml.name() == QLatin1String("svg"))
            painter.setTransform(fromViewBox(attributes.value(QLatin1String("viewBox")), square), true);
        painter.setPen(styles.back().stroke);
        painter.setBrush(styles.back().fill);
        painter.drawPath(shapeOf(xml.name(), attributes));
    }
    painter.restore();
}

} // namespace tolvo
