// SPDX-License-Identifier: MIT
#include "platform/desktop/EscapeWatch.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>

namespace tolvo {

std::shared_ptr<void> EscapeWatch::guard() {
    m_escape = false;
    qGuiApp->installEventFilter(this);
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    return {this, [](EscapeWatch *watch) {
                QGuiApplication::restoreOverrideCursor();
                qGuiApp->removeEventFilter(watch);
            }};
}

bool EscapeWatch::eventFilter(QObject *, QEvent *event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
            m_escape = true;
        return true;
    case QEvent::Close:
        event->ignore();
        return true;
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::TabletMove:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace tolvo
