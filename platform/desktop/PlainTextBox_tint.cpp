// SPDX-License-Identifier: MIT
// Tinted stretches of the text.
#include "platform/desktop/PlainTextBox.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

namespace tolvo {

namespace {

/// The place of each is looked for in its line, so of a screen full of them only a part is painted.
constexpr int mostStretchesPainted = 2000;

constexpr qreal edgeWidth = 2;

/// The text stays readable on the ground; the edge stands out from the ground of the box.
struct TintColours {
    QColor ground;
    QColor edge;
};

TintColours tintColours(const QPalette &palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? TintColours{QColor(84, 66, 0), QColor(255, 205, 80)}
                : TintColours{QColor(255, 236, 158), QColor(176, 112, 0)};
}

/// The part of a line from one place to another, in the coordinates of its layout; a thin upright where both
/// are one place.
QRectF areaIn(const QTextLine &line, int from, int to) {
    const qreal one = line.cursorToX(from);
    const qreal other = line.cursorToX(to);
    const qreal width = std::abs(other - one);
    return {std::min(one, other) - (width == 0 ? edgeWidth / 2 : 0), line.y(), std::max(width, edgeWidth),
            line.height()};
}

class TintPainter {
  public:
    TintPainter(QPainter &painter, const QList<Stretch> &tint, const TintColours &colours)
        : m_painter(painter), m_tint(tint), m_colours(colours) {}

    /// Paints what lies in a block; `origin` is where its layout begins.
    void paint(const QTextBlock &block, const QPointF &origin) {
        const int start = block.position() + block.blockNumber(); // a line end is two units of the text
        const int end = start + block.length() - 1;
        auto stretch = std::partition_point(m_tint.begin(), m_tint.end(), [start](const Stretch &one) {
            return one.start + one.length < start;
        });
        for (; stretch != m_tint.end() && stretch->start <= end && m_left > 0; ++stretch, --m_left)
            paint(*block.layout(), origin, std::max(stretch->start, start) - start,
                  std::min(stretch->start + stretch->length, end) - start);
    }
    [[nodiscard]] bool done() const { return m_left <= 0; }

  private:
    void paint(const QTextLayout &layout, const QPointF &origin, int from, int to) {
        const QTextLine last = layout.lineForTextPosition(to);
        for (QTextLine line = layout.lineForTextPosition(from); line.isValid();
             line = layout.lineAt(line.lineNumber() + 1)) {
            const int lineEnd = line.textStart() + line.textLength();
            paint(areaIn(line, std::max(from, line.textStart()), std::min(to, lineEnd)).translated(origin));
            if (line.lineNumber() >= last.lineNumber())
                return;
        }
    }
    void paint(const QRectF &area) {
        const bool upright = area.width() <= edgeWidth;
        m_painter.fillRect(area, upright ? m_colours.edge : m_colours.ground);
        if (!upright)
            m_painter.fillRect(QRectF(area.left(), area.bottom() - edgeWidth, area.width(), edgeWidth),
                               m_colours.edge);
    }

    QPainter &m_painter;
    const QList<Stretch> &m_tint;
    TintColours m_colours;
    int m_left = mostStretchesPainted;
};

} // namespace

void PlainTextBox::setTint(const QList<Stretch> &stretches) {
    if (m_tint == stretches)
        return;
    m_tint = stretches;
    viewport()->update();
}

/// Before the text, which thus stands on it.
void PlainTextBox::paintTint(const QRect &exposed) {
    if (m_tint.isEmpty())
        return;
    QPainter painter(viewport());
    TintPainter tint(painter, m_tint, tintColours(palette()));
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && !tint.done(); block = block.next()) {
        const QRectF area = blockBoundingGeometry(block).translated(contentOffset());
        if (area.top() > exposed.bottom())
            return;
        tint.paint(block, area.topLeft());
    }
}

void PlainTextBox::lookLike(const PlainTextBox &other) {
    setZoom(other.m_zoom);
    setTextFont(other.m_textFont);
    setMarks(other.m_marks);
}

} // namespace tolvo
