// SPDX-License-Identifier: MIT
#pragma once

#include <QHBoxLayout>
#include <QWidget>
#include <optional>
#include <utility>

namespace tolvo {

/// A row that goes on in further lines where it is too narrow for the least widths of its items: with large
/// letters, or in a small window. With room it is a QHBoxLayout. Stretches count for nothing in folded lines.
class FoldingRow final : public QHBoxLayout {
    Q_OBJECT

  public:
    using QHBoxLayout::QHBoxLayout;

    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] int minimumHeightForWidth(int width) const override { return heightForWidth(width); }
    void setGeometry(const QRect &area) override;
    /// The least width of all in one line.
    [[nodiscard]] int unfoldedWidth() const;

  private:
    struct Place {
        QLayoutItem *item;
        QRect area;
    };
    [[nodiscard]] bool isFoldedAt(int width) const { return width < unfoldedWidth(); }
    /// The items in lines that are so wide, from the upper left corner on.
    [[nodiscard]] QList<Place> folded(int width) const;
};

/// Holds folding rows, and is never lower than they are at its width: what holds it need not ask for that.
/// Where the screen has room for them beside the neighbour, rows don't fold. Its layout is a column.
class FoldingColumn final : public QWidget {
    Q_OBJECT

  public:
    explicit FoldingColumn(const QWidget &neighbour);
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent *event) override;

  private:
    class Column;
    /// What the least size depends on besides the contents.
    struct Surroundings {
        int width;
        int neighbour;
        int room;
        bool operator==(const Surroundings &) const = default;
    };
    [[nodiscard]] QSize leastSize(const Surroundings &around) const;

    const QWidget &m_neighbour;
    /// Asked for some dozen times while a window is laid out; goes when the contents change.
    mutable std::optional<std::pair<Surroundings, QSize>> m_least;
};

} // namespace tolvo
