// SPDX-License-Identifier: MIT
#include "widgets/roving_focus.h"

#include <QKeyEvent>
#include <QWidget>

namespace tolvo {

RovingFocus::RovingFocus(QList<QWidget *> members, QObject *parent)
    : QObject(parent), m_members(std::move(members)) {
    for (QWidget *member : m_members)
        member->installEventFilter(this);
    stopAt(m_members.front());
}

void RovingFocus::stopAt(QWidget *member) {
    for (QWidget *other : m_members)
        other->setFocusPolicy(other == member ? Qt::TabFocus : Qt::NoFocus);
}

bool RovingFocus::eventFilter(QObject *watched, QEvent *event) {
    auto *member = static_cast<QWidget *>(watched);
    if (event->type() == QEvent::FocusIn) {
        stopAt(member);
    } else if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if ((key->modifiers() & ~Qt::KeypadModifier) == 0)
            return keyPressed(m_members.indexOf(member), key->key());
    }
    return QObject::eventFilter(watched, event);
}

bool RovingFocus::keyPressed(qsizetype from, int key) {
    const qsizetype last = m_members.size() - 1;
    qsizetype to = from;
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        to = qMax<qsizetype>(from - 1, 0);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        to = qMin(from + 1, last);
        break;
    case Qt::Key_Home:
        to = 0;
        break;
    case Qt::Key_End:
        to = last;
        break;
    default:
        return false;
    }
    m_members.at(to)->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace tolvo
