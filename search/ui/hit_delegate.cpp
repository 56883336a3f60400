// SPDX-License-Identifier: MIT
#include "search/ui/hit_delegate.h"

#include "search/ui/row_ink.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int room = 3; ///< around a line, in pixels

QFont bold(QFont font) {
    font.setBold(true);
    return font;
}

} // namespace

void HitDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    paintBareRow(*painter, row);

    const HitLine line = m_lines.value(index.row());
    const QRect inside = row.rect.adjusted(room, 0, -room, 0);
    // Measured in bold: the line may end a little early, but never leaves its row.
    const QString text = QFontMetrics(bold(row.font)).elidedText(line.text, Qt::ElideRight, inside.width());
    QTextLayout layout(text, row.font);
    const int shown = static_cast<int>(text.size());
    QTextLayout::FormatRange hit;
    hit.start = std::min(line.hitStart, shown);
    hit.length = std::min(line.hitLength, shown - hit.start);
    hit.format.setFontWeight(QFont::Bold);
    layout.setFormats({hit});
    layout.beginLayout();
    QTextLine first = layout.createLine();
    if (first.isValid())
        first.setLineWidth(inside.width() + 1);
    layout.endLayout();
    painter->save();
    painter->setClipRect(row.rect);
    painter->setPen(inkOf(row));
    layout.draw(painter, QPointF(inside.left(),
                                 inside.top() + (inside.height() - layout.boundingRect().height()) / 2));
    painter->restore();
}

QSize HitDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const {
    return {0, QFontMetrics(bold(option.font)).height() + 2 * room};
}

} // namespace tolvo
