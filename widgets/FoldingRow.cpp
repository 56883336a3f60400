// SPDX-License-Identifier: MIT
#include "widgets/FoldingRow.h"

#include "widgets/grid.h"
#include "widgets/screen_fit.h"

#include <QResizeEvent>
#include <QStyle>
#include <algorithm>

namespace tolvo {

QSize FoldingRow::minimumSize() const {
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = std::max(widest, itemAt(i)->minimumSize().width());
    return {widest, QHBoxLayout::minimumSize().height()};
}

int FoldingRow::unfoldedWidth() const {
    int sum = 0;
    for (int i = 0; i < count(); ++i) {
        QLayoutItem *item = itemAt(i);
        if (item->isEmpty() || item->spacerItem() != nullptr)
            continue;
        const auto *inner = item->widget() ? qobject_cast<FoldingRow *>(item->widget()->layout()) : nullptr;
        sum += (sum > 0 ? spacing() : 0) + (inner ? inner->unfoldedWidth() : item->minimumSize().width());
    }
    return sum;
}

QList<FoldingRow::Place> FoldingRow::folded(int width) const {
    QList<Place> places;
    QPoint next;
    int lineHeight = 0;
    for (int i = 0; i < count(); ++i) {
        QLayoutItem *item = itemAt(i);
        if (item->isEmpty() || item->spacerItem() != nullptr)
            continue;
        QSize size = item->sizeHint().boundedTo({width, QLAYOUTSIZE_MAX});
        if (item->hasHeightForWidth())
            size.setHeight(item->heightForWidth(size.width()));
        if (next.x() > 0 && next.x() + size.width() > width) {
            next = {0, next.y() + lineHeight + spacing()};
            lineHeight = 0;
        }
        places += {item, QRect(next, size)};
        next.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return places;
}

int FoldingRow::heightForWidth(int width) const {
    if (!isFoldedAt(width))
        return QHBoxLayout::hasHeightForWidth() ? QHBoxLayout::heightForWidth(width)
                                                : QHBoxLayout::sizeHint().height();
    int height = 0;
    for (const Place &place : folded(width))
        height = std::max(height, place.area.bottom() + 1);
    return height;
}

void FoldingRow::setGeometry(const QRect &area) {
    QHBoxLayout::setGeometry(area); // makes up for what has changed, and remembers the area
    if (!isFoldedAt(area.width()))
        return;
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    for (const Place &place : folded(area.width()))
        place.item->setGeometry(QStyle::visualRect(direction, area, place.area.translated(area.topLeft())));
}

class FoldingColumn::Column final : public QVBoxLayout {
  public:
    explicit Column(FoldingColumn &owner) : QVBoxLayout(&owner), m_owner(owner) {}
    void invalidate() override {
        m_owner.m_least.reset();
        QVBoxLayout::invalidate();
    }

  private:
    FoldingColumn &m_owner;
};

FoldingColumn::FoldingColumn(const QWidget &neighbour) : m_neighbour(neighbour) {
    new Column(*this);
}

QSize FoldingColumn::minimumSizeHint() const {
    const Surroundings around{.width = width(),
                              .neighbour = m_neighbour.minimumSizeHint().width(),
                              .room = roomOnScreen(*this).width()};
    if (!m_least || m_least->first != around)
        m_least.emplace(around, leastSize(around));
    return m_least->second;
}

QSize FoldingColumn::leastSize(const Surroundings &around) const {
    QSize least = QWidget::minimumSizeHint();
    int unfolded = least.width();
    for (const FoldingRow *row : findChildren<FoldingRow *>())
        unfolded = std::max(unfolded, row->unfoldedWidth());
    const int margins = 4 * Grid(*this).margin();
    if (around.neighbour + unfolded + margins <= around.room)
        least.setWidth(unfolded);
    const int here = std::max(around.width, least.width());
    return {least.width(), std::max(least.height(), layout()->totalMinimumHeightForWidth(here))};
}

void FoldingColumn::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (event->oldSize().width() != width())
        updateGeometry();
}

} // namespace tolvo
