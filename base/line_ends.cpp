// SPDX-License-Identifier: MIT
#include "base/line_ends.h"

#include <algorithm>

namespace tolvo {

// QString::replace moves the rest of the text once for every thousand hits; these copy each unit once.

QString lfToCrLf(QStringView text) {
    const auto count = std::count(text.begin(), text.end(), QChar(u'\n'));
    QString result(text.size() + count, Qt::Uninitialized);
    QChar *out = result.data();
    qsizetype start = 0;
    for (qsizetype end; (end = text.indexOf(u'\n', start)) >= 0; start = end + 1) {
        out = std::copy(text.begin() + start, text.begin() + end, out);
        *out++ = u'\r';
        *out++ = u'\n';
    }
    std::copy(text.begin() + start, text.end(), out);
    return result;
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
