// SPDX-License-Identifier: MIT
#include "widgets/PrimaryButton.h"

#include "widgets/contrast.h"
#include "widgets/grid.h"
#include "widgets/themed_icon.h"

#include <QPainter>
#include <QStyle>

namespace tolvo {

PrimaryButton::PrimaryButton(const QString &caption, QWidget *parent) : QPushButton(caption, parent) {
    setAttribute(Qt::WA_Hover);
}

QSize PrimaryButton::sizeHint() const {
    const Grid grid(*this);
    const QSize caption = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {caption.width() + 2 * grid.margin(), std::max(grid.target(), caption.height())};
}

QColor PrimaryButton::ground() const {
    if (!isEnabled())
        return mixed(palette().color(QPalette::Window),
                     palette().color(QPalette::Active, QPalette::WindowText), 1.3);
    const QColor filled = accent(palette());
    if (isDown())
        return filled.darker(130);
    // Away from the caption's colour, so that it stays as easy to read.
    const bool lightCaption = readableOn(filled) == Qt::white;
    return underMouse() ? (lightCaption ? filled.darker(118) : filled.lighter(112)) : filled;
}

void PrimaryButton::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor filled = ground();
    const qreal radius = Grid(*this).smallGap();
    painter.setPen(Qt::NoPen);
    painter.setBrush(filled);
    painter.drawRoundedRect(rect(), radius, radius);
    constexpr double quiet = 2.5;
    const QColor ink = isEnabled()
                           ? readableOn(filled)
                           : mixed(filled, palette().color(QPalette::Active, QPalette::WindowText), quiet);
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(ink, 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(3, 3, -3, -3), radius - 1, radius - 1);
    }
    const bool letters = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
    painter.setPen(ink);
    painter.drawText(rect(), Qt::AlignCenter | (letters ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                     text());
}

} // namespace tolvo
