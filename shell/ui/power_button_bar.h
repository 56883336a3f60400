// SPDX-License-Identifier: MIT
// The row of the eight PowerButtons.
#pragma once

#include "powerbuttons/CPowerButton.h"

#include <QAbstractButton>
#include <array>
#include <functional>

namespace tolvo {

/// One PowerButton: its text icon on white with its number in a badge, or a dashed place with the number
/// alone.
class PowerButtonImage : public QAbstractButton {
    Q_OBJECT
  public:
    PowerButtonImage(int number, QWidget *parent);
    void showButton(const CPowerButton &button);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    void paintBadge(QPainter &painter, const QRectF &tile) const;
    void paintEmpty(QPainter &painter, const QRectF &tile) const;

    int m_number;
    CPowerButton m_button;
};

class PowerButtonBar : public QWidget {
    Q_OBJECT
  public:
    explicit PowerButtonBar(QWidget *parent = nullptr);

    /// Paints the icon of an index from 0 and sets its tool tip.
    void showButton(int index, const CPowerButton &button);

    /// Called with the index from 0 and whether the right button was used.
    std::function<void(int index, bool right)> onClick;

  private:
    std::array<PowerButtonImage *, CPowerButtonCollection::buttonCount> m_images{};
};

} // namespace tolvo
