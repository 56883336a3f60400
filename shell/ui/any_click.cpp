// SPDX-License-Identifier: MIT
#include "shell/ui/any_click.h"

#include <QAbstractButton>
#include <QContextMenuEvent>
#include <QMouseEvent>

namespace tolvo {

AnyClick::AnyClick(QAbstractButton *button, std::function<void(bool)> clicked)
    : QObject(button), m_button(button), m_clicked(std::move(clicked)) {
    button->installEventFilter(this);
    connect(button, &QAbstractButton::clicked, this, [this] { m_clicked(false); });
}

bool AnyClick::eventFilter(QObject *watched, QEvent *event) {
    const auto rightButton = [event] {
        return static_cast<QMouseEvent *>(event)->button() == Qt::RightButton;
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (!rightButton())
            break;
        m_button->setDown(true);
        return true;
    case QEvent::MouseButtonRelease:
        if (!rightButton())
            break;
        m_button->setDown(false);
        if (m_button->isEnabled() && m_button->rect().contains(static_cast<QMouseEvent *>(event)->pos()))
            m_clicked(true);
        return true;
    case QEvent::ContextMenu:
        if (static_cast<QContextMenuEvent *>(event)->reason() == QContextMenuEvent::Keyboard)
            m_clicked(true);
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tolvo
