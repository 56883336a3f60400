// SPDX-License-Identifier: MIT
#include "shell/ui/part_walk.h"

#include <QWidget>

namespace tolvo {

void walkParts(const QList<WindowPart> &parts, bool forward) {
    const qsizetype count = parts.size();
    qsizetype place = forward ? -1 : count;
    for (qsizetype i = 0; i < count; ++i) {
        const QWidget *area = parts.at(i).area;
        if (area->hasFocus() || area->isAncestorOf(area->window()->focusWidget()))
            place = i;
    }
    for (qsizetype tries = 0; tries < count; ++tries) {
        place = (place + (forward ? 1 : count - 1)) % count;
        if (QWidget *entrance = parts.at(place).entrance()) {
            entrance->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

QWidget *firstStop(QWidget *area) {
    const auto stops = [area](const QWidget *widget) {
        return (widget == area || area->isAncestorOf(widget)) && widget->isVisible() && widget->isEnabled() &&
               (widget->focusPolicy() & Qt::TabFocus) != 0;
    };
    // From the first control of the window on: the chain is a ring.
    QWidget *const begin = area->window();
    for (QWidget *widget = begin->nextInFocusChain(); widget != begin; widget = widget->nextInFocusChain()) {
        if (stops(widget))
            return widget;
    }
    return nullptr;
}

} // namespace tolvo
