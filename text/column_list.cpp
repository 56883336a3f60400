// SPDX-License-Identifier: MIT
#include "text/column_list.h"

#include "base/numbers.h"
#include "base/strings.h"

#include <algorithm>

namespace tolvo {

namespace {

/// Digits as a number that counts from 1; 0 for anything else.
qsizetype columnNumber(QStringView text) {
    const bool digits = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return digits ? text.toInt() : 0;
}

/// Fills the range of an entry such as "2", "2-4", "4-" or "-3"; false for any other text.
bool readRange(QStringView entry, ColumnRange &range) {
    const qsizetype dash = entry.indexOf(u'-');
    if (dash < 0) {
        range.first = range.last = columnNumber(entry);
        range.isOne = true;
        return range.first > 0;
    }
    const QStringView from = trimBlanks(entry.first(dash));
    const QStringView to = trimBlanks(entry.sliced(dash + 1));
    range.first = from.isEmpty() ? 1 : columnNumber(from);
    range.last = columnNumber(to);
    return range.first > 0 && (range.last > 0 || (to.isEmpty() && !from.isEmpty()));
}

} // namespace

ColumnList readColumnList(QStringView text) {
    ColumnList list;
    for (const QStringView part : text.split(u',')) {
        const QStringView entry = trimBlanks(part);
        ColumnRange range;
        if (entry.isEmpty())
            continue;
        if (!readRange(entry, range))
            return {{},
                    QStringLiteral("%1 is not a column: name columns by numbers from 1, such as 3,1 or 2-4")
                        .arg(entry)};
        list.ranges += range;
    }
    if (list.ranges.isEmpty())
        list.trouble = QStringLiteral("Name columns by their numbers, such as 3,1 or 2-4");
    else if (list.ranges.size() > ColumnList::mostRanges)
        list.trouble = QStringLiteral("Name at most %1 columns or ranges").arg(ColumnList::mostRanges);
    return list;
}

QList<qsizetype> ColumnList::columnsOf(qsizetype width) const {
    QList<qsizetype> columns;
    for (const ColumnRange &range : ranges) {
        const qsizetype last = range.last == 0 ? width : range.last;
        if (range.isOne) {
            columns += range.first - 1;
        } else if (last < range.first && range.last > 0) {
            for (qsizetype column = std::min(range.first, width); column >= last; --column)
                columns += column - 1;
        } else {
            for (qsizetype column = range.first; column <= std::min(last, width); ++column)
                columns += column - 1;
        }
    }
    return columns;
}

} // namespace tolvo
