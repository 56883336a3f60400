// SPDX-License-Identifier: MIT
#include "shell/ui/power_button_bar.h"

#include "platform/desktop/plain_tool_tip.h"
#include "powerbuttons/ui/icon_painter.h"
#include "shell/ui/any_click.h"
#include "widgets/themed_icon.h"

#include <QHBoxLayout>
#include <QPainter>

namespace tolvo {

namespace {

constexpr int frame = 2;

/// The tool tip, which names the keys: those of the function row, and the second set for desktops that keep
/// some of the first for themselves.
QString tooltip(const CPowerButton &button, int number) {
    if (!button.isDefined())
        return QStringLiteral("Right click to define this PowerButton (Shift-Alt-F%1)\nor Ctrl-Shift-%1")
            .arg(number);
    return QStringLiteral("%2 (Alt-F%1)\nor Ctrl-%1").arg(number).arg(button.Name);
}

} // namespace

PowerButtonImage::PowerButtonImage(int number, QWidget *parent) : QAbstractButton(parent), m_number(number) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize PowerButtonImage::sizeHint() const {
    return {iconSide + 2 * frame, iconSide + 2 * frame};
}

void PowerButtonImage::showButton(const CPowerButton &button) {
    m_button = button;
    const QString tip = tooltip(button, m_number);
    setToolTip(plainToolTip(tip));
    setAccessibleDescription(tip);
    setAccessibleName(button.isDefined() ? QStringLiteral("PowerButton %1: %2").arg(m_number).arg(button.Name)
                                         : QStringLiteral("PowerButton %1, not defined").arg(m_number));
    update();
}

void PowerButtonImage::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect icon(frame, frame, iconSide, iconSide);
    if (m_button.isDefined()) {
        paintIcon(painter, icon, shownIcon(m_button, m_number));
    } else {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
        painter.drawText(icon, Qt::AlignCenter, QString::number(m_number));
    }
    QColor line = palette().color(QPalette::Mid);
    if (underMouse() || hasFocus() || isDown())
        line = accent(palette());
    QPen pen(line, isDown() ? 2 : 1);
    if (!m_button.isDefined() && !underMouse() && !hasFocus())
        pen.setStyle(Qt::DotLine);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

PowerButtonBar::PowerButtonBar(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("frmIcontray"));
    setAccessibleName(QStringLiteral("PowerButtons"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (int i = 0; i < CPowerButtonCollection::buttonCount; ++i) {
        auto *image = new PowerButtonImage(i + 1, this);
        image->setObjectName(QStringLiteral("imgPower_%1").arg(i));
        new AnyClick(image, [this, i](bool right) {
            if (onClick)
                onClick(i, right);
        });
        layout->addWidget(image);
        m_images[static_cast<std::size_t>(i)] = image;
    }
}

void PowerButtonBar::showButton(int index, const CPowerButton &button) {
    m_images[static_cast<std::size_t>(index)]->showButton(button);
}

} // namespace tolvo
