// SPDX-License-Identifier: MIT
#include "search/ui/history_delegate.h"

#include "search/ui/row_ink.h"

#include <QPainter>

namespace tolvo {

namespace {

constexpr int room = 4; ///< around entry and word, in pixels

QFont wordFont(QFont font) {
    font.setItalic(true);
    return font;
}

int widthOfWord(const QFont &font, const QString &word) {
    return word.isEmpty() ? 0 : QFontMetrics(wordFont(font)).horizontalAdvance(word) + 3 * room;
}

} // namespace

void HistoryDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    paintBareRow(*painter, row);
    const QString word = index.data(wordRole).toString();
    const QRect inside = row.rect.adjusted(room, 0, -room, 0);
    const QRect entry = inside.adjusted(0, 0, -widthOfWord(row.font, word), 0);
    painter->save();
    painter->setPen(inkOf(row));
    painter->setFont(row.font);
    painter->drawText(entry, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      row.fontMetrics.elidedText(row.text, Qt::ElideRight, entry.width()));
    painter->setFont(wordFont(row.font));
    painter->drawText(inside, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, word);
    painter->restore();
}

QSize HistoryDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const {
    const QString word = index.data(wordRole).toString();
    return QStyledItemDelegate::sizeHint(option, index) +
           QSize(widthOfWord(option.font, word) + 2 * room, room);
}

} // namespace tolvo
