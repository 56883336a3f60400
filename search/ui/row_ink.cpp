// SPDX-License-Identifier: MIT
#include "search/ui/row_ink.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

namespace tolvo {

QColor inkOf(const QStyleOptionViewItem &row) {
    const auto role = row.state.testFlag(QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
    if (!row.state.testFlag(QStyle::State_Enabled))
        return row.palette.color(QPalette::Disabled, role);
    return row.palette.color(row.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive,
                             role);
}

void paintBareRow(QPainter &painter, const QStyleOptionViewItem &row) {
    QStyleOptionViewItem bare = row;
    bare.text.clear();
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &bare, &painter, row.widget);
}

} // namespace tolvo
