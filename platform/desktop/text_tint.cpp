// SPDX-License-Identifier: MIT
#include "platform/desktop/text_tint.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

namespace tolvo {

namespace {

/// Of a longer line only the units in sight are looked at.
constexpr int longestLineTakenWhole = 2000;

constexpr qreal edgeWidth = 2;

/// The text stays readable on the ground; the edge stands out from the ground of the box.
struct Look {
    QColor ground = Qt::transparent;
    QColor edge = Qt::transparent;
    bool isFrame = false;    ///< around the text instead of beneath it
    bool marksLines = false; ///< an empty mark means its line
};

Look lookOf(TintLayer layer, const QPalette &palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    switch (layer) {
    case TintLayer::Changes:
        return dark ? Look{{84, 66, 0}, {255, 205, 80}} : Look{{255, 236, 158}, {176, 112, 0}};
    case TintLayer::Troubles:
        return dark ? Look{.ground = {0, 82, 56}, .marksLines = true}
                    : Look{.ground = {176, 219, 199}, .marksLines = true};
    case TintLayer::Matches:
        return dark ? Look{{66, 46, 110}, {190, 165, 255}} : Look{{229, 219, 255}, {112, 70, 190}};
    case TintLayer::CurrentMatch:
        return {.edge = dark ? QColor(255, 170, 110) : QColor(190, 70, 0), .isFrame = true};
    }
    return {};
}

void fade(Look &look, float strength) {
    for (QColor *colour : {&look.ground, &look.edge})
        colour->setAlphaF(colour->alphaF() * strength);
}

/// Units of a block, from 0.
struct Units {
    int from;
    int to;
};

bool hasRightToLeft(QStringView text) {
    return std::any_of(text.begin(), text.end(), [](QChar unit) {
        return unit.direction() == QChar::DirR || unit.direction() == QChar::DirAL || unit.isSurrogate();
    });
}

/// The units of a line that may show between two places of its layout.
Units unitsInSight(const QTextLine &line, const QString &text, qreal left, qreal right) {
    const Units all{line.textStart(), line.textStart() + line.textLength()};
    if (line.textLength() <= longestLineTakenWhole || hasRightToLeft(text))
        return all;
    return {std::max(all.from, line.xToCursor(left) - 1), std::min(all.to, line.xToCursor(right) + 1)};
}

/// A part of a line in the coordinates of its layout; a thin upright where both ends are one place.
QRectF areaIn(const QTextLine &line, Units units) {
    const qreal one = line.cursorToX(units.from);
    const qreal other = line.cursorToX(units.to);
    const qreal width = std::abs(other - one);
    return {std::min(one, other) - (width == 0 ? edgeWidth / 2 : 0), line.y(), std::max(width, edgeWidth),
            line.height()};
}

void paintArea(QPainter &painter, const QRectF &area, const Look &look) {
    const QRectF bottom(area.left(), area.bottom() - edgeWidth, area.width(), edgeWidth);
    if (look.isFrame) {
        for (const QRectF &edge : {bottom, bottom.translated(0, edgeWidth - area.height()),
                                   QRectF(area.left() - edgeWidth, area.top(), edgeWidth, area.height()),
                                   QRectF(area.right(), area.top(), edgeWidth, area.height())})
            painter.fillRect(edge, look.edge);
        return;
    }
    const bool isUpright = area.width() <= edgeWidth;
    painter.fillRect(area, isUpright && look.edge.alpha() > 0 ? look.edge : look.ground);
    if (!isUpright)
        painter.fillRect(bottom, look.edge);
}

/// Paints the marks of one layer in one line.
class LinePainter {
  public:
    LinePainter(QPainter &painter, const QTextBlock &block, const QPointF &origin, const QTextLine &line,
                Units seen)
        : m_painter(painter), m_origin(origin), m_line(line), m_seen(seen),
          m_blockStart(block.position() + block.blockNumber()), // a line end is two units of the text
          m_isLast(line.lineNumber() == block.layout()->lineCount() - 1) {}

    void paint(const QList<Stretch> &tint, const Look &look, const QRectF &exposed, int &left) {
        const int from = m_blockStart + m_seen.from;
        const int to = m_blockStart + m_seen.to;
        auto stretch = std::partition_point(
            tint.begin(), tint.end(), [from](const Stretch &one) { return one.start + one.length < from; });
        for (; stretch != tint.end() && stretch->start <= to && left > 0; ++stretch) {
            if (!isHere(*stretch))
                continue;
            QRectF area = areaIn(m_line, {std::max(stretch->start, from) - m_blockStart,
                                          std::min(stretch->start + stretch->length, to) - m_blockStart});
            area.translate(m_origin);
            if (stretch->length == 0 && look.marksLines)
                area.setRight(exposed.right());
            paintArea(m_painter, area, look);
            --left;
        }
    }

  private:
    /// Not where it only touches the line: at the end of the line before, or where it goes on.
    [[nodiscard]] bool isHere(const Stretch &stretch) const {
        const int start = m_blockStart + m_line.textStart();
        const int end = start + m_line.textLength();
        const bool isBefore = stretch.length > 0 && stretch.start + stretch.length <= start;
        const bool isAfter = !m_isLast && stretch.start >= end;
        return !isBefore && !isAfter;
    }

    QPainter &m_painter;
    QPointF m_origin;
    const QTextLine &m_line;
    Units m_seen;
    int m_blockStart;
    bool m_isLast;
};

} // namespace

bool TextTint::set(TintLayer layer, const QList<Stretch> &stretches) {
    QList<Stretch> &present = m_layers[index(layer)];
    if (present == stretches)
        return false;
    present = stretches;
    return true;
}

bool TextTint::isEmpty() const {
    return std::all_of(m_layers.begin(), m_layers.end(), [](const auto &layer) { return layer.isEmpty(); });
}

void TextTint::paint(QPainter &painter, Side side, const QTextBlock &block, const QPointF &origin,
                     const QRectF &exposed, const QPalette &palette, int &left) const {
    const QRectF seen = exposed.translated(-origin);
    const QTextLayout &layout = *block.layout();
    const QString text = block.text();
    for (int number = 0; number < layout.lineCount() && left > 0; ++number) {
        const QTextLine line = layout.lineAt(number);
        if (line.y() + line.height() < seen.top())
            continue;
        if (line.y() > seen.bottom())
            return;
        LinePainter marks(painter, block, origin, line, unitsInSight(line, text, seen.left(), seen.right()));
        for (std::size_t layer = 0; layer < layers; ++layer) {
            Look look = lookOf(static_cast<TintLayer>(layer), palette);
            fade(look, m_strengths[layer]);
            if (look.isFrame == (side == Side::OverText))
                marks.paint(m_layers[layer], look, exposed, left);
        }
    }
}

} // namespace tolvo
