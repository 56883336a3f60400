// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace tolvo {

/// Paints the entries of a history, with a word on each at the right edge.
class HistoryDelegate final : public QStyledItemDelegate {
  public:
    static constexpr int wordRole = Qt::UserRole + 1; ///< what the word is in the model; may be missing

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace tolvo
