// SPDX-License-Identifier: MIT
#include "widgets/ElidedLabel.h"

#include "platform/desktop/plain_tool_tip.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace tolvo {

ElidedLabel::ElidedLabel(const QString &name, const QString &nameWithoutText)
    : m_nameWithoutText(nameWithoutText) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setAccessibleName(nameWithoutText);
}

void ElidedLabel::showText(const QString &text) {
    setText(text);
    setAccessibleName(text.isEmpty() ? m_nameWithoutText : text);
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QRect area = contentsRect();
    style()->drawItemText(&painter, area, static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft), palette(),
                          isEnabled(), fontMetrics().elidedText(text(), Qt::ElideRight, area.width()),
                          foregroundRole());
}

bool ElidedLabel::event(QEvent *event) {
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const bool whole = fontMetrics().horizontalAdvance(text()) <= contentsRect().width();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       whole ? QString() : plainToolTip(text()), this);
    return true;
}

} // namespace tolvo
