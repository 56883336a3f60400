// SPDX-License-Identifier: MIT
// Marked parts of the text, and what of the text is in sight.
#include "platform/desktop/PlainTextBox.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

namespace tolvo {

namespace {

/// The place of each is looked for in its line, so of a screen full of them only a part is painted.
constexpr int mostStretchesPainted = 2000;

} // namespace

void PlainTextBox::setTint(TintLayer layer, const QList<Stretch> &stretches) {
    if (m_tint.set(layer, stretches))
        viewport()->update();
}

void PlainTextBox::fadeTint(TintLayer layer, float share) {
    m_tint.setStrength(layer, share);
    if (!m_tint.of(layer).isEmpty())
        viewport()->update();
}

Stretch PlainTextBox::textInSight() const {
    const auto lineAt = [this](const QPoint &point) {
        const QTextCursor cursor = cursorForPosition(point);
        const QTextLine line = cursor.block().layout()->lineForTextPosition(cursor.positionInBlock());
        const int start = toText(cursor.block().position()) + line.textStart();
        return Stretch{start, line.textLength()};
    };
    const int start = lineAt(viewport()->rect().topLeft()).start;
    const Stretch last = lineAt(viewport()->rect().bottomLeft());
    return {start, last.start + last.length - start};
}

void PlainTextBox::paintTint(TextTint::Side side, const QRect &exposed) {
    if (m_tint.isEmpty())
        return;
    QPainter painter(viewport());
    int left = mostStretchesPainted;
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && left > 0; block = block.next()) {
        const QRectF area = blockBoundingGeometry(block).translated(contentOffset());
        if (area.top() > exposed.bottom())
            return;
        m_tint.paint(painter, side, block, area.topLeft(), exposed, palette(), left);
    }
}

void PlainTextBox::lookLike(const PlainTextBox &other) {
    setZoom(other.m_zoom);
    setTextFont(other.m_textFont);
    setMarks(other.m_marks);
}

} // namespace tolvo
