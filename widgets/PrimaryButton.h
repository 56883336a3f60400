// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

namespace tolvo {

/// The button of a window's main action: filled with the accent, the same under every style.
class PrimaryButton final : public QPushButton {
    Q_OBJECT

  public:
    explicit PrimaryButton(const QString &caption, QWidget *parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    [[nodiscard]] QColor ground() const;
};

} // namespace tolvo
