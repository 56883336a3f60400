// SPDX-License-Identifier: MIT
#pragma once

#include "search/result_lines.h"

#include <QList>
#include <QStyledItemDelegate>

namespace tolvo {

/// Paints the lines of a Find All, one row each, with the hit in bold.
class HitDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// One for each row, as shownHitLine() gives them.
    void setLines(const QList<HitLine> &lines) { m_lines = lines; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    /// As high as a line of the font, whatever the text.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

  private:
    QList<HitLine> m_lines;
};

} // namespace tolvo
