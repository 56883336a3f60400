// SPDX-License-Identifier: MIT
#include "widgets/LinkLabel.h"

#include "widgets/themed_icon.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

namespace tolvo {

LinkLabel::LinkLabel(const QString &words, const QString &address, Underline underline, QWidget *parent)
    : QLabel(parent), m_words(words), m_address(address), m_underline(underline) {
    setAccessibleName(words);
    // QLabel's own way by keys stops twice: at the label, then at the link in it.
    setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QLabel::linkHovered, this, [this](const QString &over) {
        m_hovered = !over.isEmpty();
        write();
    });
    write();
}

void LinkLabel::write() {
    const bool underlined = m_underline == Underline::Always || m_hovered;
    setText(QStringLiteral("<a href=\"%1\" style=\"color:%2; text-decoration:%3\">%4</a>")
                .arg(m_address, accentOn(palette(), QPalette::Window).name(),
                     underlined ? QStringLiteral("underline") : QStringLiteral("none"), m_words));
}

void LinkLabel::changeEvent(QEvent *event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        write();
}

void LinkLabel::paintEvent(QPaintEvent *event) {
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(accentOn(palette(), QPalette::Window), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
}

void LinkLabel::keyPressEvent(QKeyEvent *event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        emit linkActivated(m_address);
    else
        QLabel::keyPressEvent(event);
}

} // namespace tolvo
