// SPDX-License-Identifier: MIT
#include "widgets/FoldingChoice.h"

#include <QStringList>

namespace tolvo {

QString foldedText(const QString &text, const QFontMetrics &metrics, int width) {
    QStringList lines;
    for (const QString &word : text.split(u' ')) {
        const QString longer = lines.isEmpty() ? word : lines.last() + u' ' + word;
        if (!lines.isEmpty() && metrics.size(Qt::TextShowMnemonic, longer).width() <= width)
            lines.last() = longer;
        else
            lines += word;
    }
    return lines.join(u'\n');
}

} // namespace tolvo
