// SPDX-License-Identifier: MIT
#include "platform/line_ends.h"

#include <algorithm>

namespace tolvo {

// QString::replace moves the rest of the text once for every thousand hits; these functions copy each unit
// once.

QString lfToCrLf(QString text) {
    const auto count = std::count(text.cbegin(), text.cend(), QChar(u'\n'));
    qsizetype end = text.size(); // of what is not yet in its place
    text.resize(end + count);
    QChar *const first = text.data();
    for (QChar *out = first + text.size(); out != first + end;) {
        const qsizetype lineFeed = QStringView(first, end).lastIndexOf(u'\n');
        out = std::copy_backward(first + lineFeed + 1, first + end, out);
        *--out = u'\n';
        *--out = u'\r';
        end = lineFeed;
    }
    return text;
}

QString crLfToLf(QStringView text) {
    QString result(text.size(), Qt::Uninitialized);
    QChar *out = result.data();
    qsizetype start = 0;
    for (qsizetype end = -1; (end = text.indexOf(u'\n', end + 1)) >= 0;) {
        if (end == start || text[end - 1] != u'\r')
            continue;
        out = std::copy(text.begin() + start, text.begin() + end - 1, out);
        start = end;
    }
    out = std::copy(text.begin() + start, text.end(), out);
    result.truncate(out - result.constData());
    return result;
}

} // namespace tolvo
