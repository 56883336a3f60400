// SPDX-License-Identifier: MIT
#include "shell/window_sizes.h"

#include <QRegularExpression>
#include <QStringList>

namespace tolvo {

QString written(const WindowSizes &sizes) {
    QStringList parts;
    for (auto size = sizes.begin(); size != sizes.end(); ++size)
        parts += QStringLiteral("%1 %2x%3").arg(size.key()).arg(size->width()).arg(size->height());
    return parts.join(u'|');
}

WindowSizes readSizes(const QString &text) {
    static const QRegularExpression form(QStringLiteral("^(\\w+) ([1-9]\\d{0,4})x([1-9]\\d{0,4})$"));
    WindowSizes sizes;
    for (const QString &part : text.split(u'|')) {
        if (const auto match = form.match(part); match.hasMatch())
            sizes[match.captured(1)] = {match.captured(2).toInt(), match.captured(3).toInt()};
    }
    return sizes;
}

QSize allowedSize(QSize remembered, QSize contents, QSize screen) {
    return remembered.expandedTo(contents).boundedTo(screen);
}

} // namespace tolvo
