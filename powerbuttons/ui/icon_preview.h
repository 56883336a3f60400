// SPDX-License-Identifier: MIT
#pragma once

#include "powerbuttons/icon_geometry.h"

#include <QWidget>

namespace tolvo {

/// An icon, magnified, with a thin line around it.
class IconPreview : public QWidget {
    Q_OBJECT
  public:
    IconPreview(int magnification, QWidget *parent);
    void setIcon(const ButtonIcon &icon);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    int m_magnification;
    ButtonIcon m_icon;
};

} // namespace tolvo
