// SPDX-License-Identifier: MIT
#include "widgets/announce.h"

#include <QAccessible>
#include <QWidget>

namespace tolvo {

void announce(QWidget *control, const QString &text) {
    if (text.isEmpty() || !QAccessible::isActive())
        return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(control, text);
#else
    QAccessibleEvent event(control, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&event);
}

} // namespace tolvo
