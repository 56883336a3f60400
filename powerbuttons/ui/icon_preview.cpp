// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/icon_preview.h"

#include "powerbuttons/ui/icon_painter.h"

namespace tolvo {

namespace {
constexpr int line = 1;
}

IconPreview::IconPreview(int magnification, QWidget *parent)
    : QWidget(parent), m_magnification(magnification) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void IconPreview::setIcon(const ButtonIcon &icon) {
    m_icon = icon;
    update();
}

QSize IconPreview::sizeHint() const {
    const int side = iconSide * m_magnification + 2 * line;
    return {side, side};
}

void IconPreview::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    paintIcon(painter, rect().adjusted(line, line, -line, -line), m_icon);
}

} // namespace tolvo
