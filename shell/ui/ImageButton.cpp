// SPDX-License-Identifier: MIT
#include "shell/ui/ImageButton.h"

#include "widgets/contrast.h"
#include "widgets/grid.h"
#include "widgets/themed_icon.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

namespace tolvo {

ImageButton::ImageButton(const QString &icon, const QString &name) {
    setIcon(themedIcon(icon));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(name);
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setIconSize({Grid(*this).icon(), Grid(*this).icon()});
}

void ImageButton::showName(bool shown) {
    const QString text = shown ? m_shortName : QString();
    if (this->text() == text)
        return;
    setText(text);
    setToolButtonStyle(text.isEmpty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon);
    updateGeometry();
}

QSize ImageButton::namedSize() const {
    const Grid grid(*this);
    const QSize name = fontMetrics().size(Qt::TextSingleLine, m_shortName);
    return {std::max(grid.target(), name.width() + grid.gap()),
            grid.icon() + name.height() + 3 * grid.smallGap()};
}

QSize ImageButton::sizeHint() const {
    if (!text().isEmpty())
        return namedSize();
    return {Grid(*this).target(), Grid(*this).target()};
}

QSize ImageButton::minimumSizeHint() const {
    if (!text().isEmpty())
        return namedSize();
    return {Grid(*this).icon() + Grid(*this).smallGap(), Grid(*this).target()};
}

void ImageButton::changeEvent(QEvent *event) {
    if (event->type() == QEvent::FontChange)
        setIconSize({Grid(*this).icon(), Grid(*this).icon()});
    QToolButton::changeEvent(event);
}

void ImageButton::paintEvent(QPaintEvent *event) {
    QToolButton::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(accent(palette()), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

GroupLine::GroupLine() {
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize GroupLine::sizeHint() const {
    return {2 * Grid(*this).smallGap() + 1, Grid(*this).icon()};
}

void GroupLine::paintEvent(QPaintEvent *) {
    constexpr double quiet = 1.6; // it parts what would be understood without it
    const QColor ground = palette().color(QPalette::Window);
    QPainter(this).fillRect(width() / 2, 0, 1, height(),
                            mixed(ground, palette().color(QPalette::WindowText), quiet));
}

} // namespace tolvo
