// SPDX-License-Identifier: MIT
// A written list of columns.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

namespace tolvo {

/// From one column to another, both counted from 1; a range may run down. `last` is 0 for one that goes on to
/// the end.
struct ColumnRange {
    qsizetype first = 1;
    qsizetype last = 0;
    bool isOne = false; ///< a single column, which counts where a table lacks it, too
};

struct ColumnList {
    static constexpr qsizetype mostRanges = 100;
    QList<ColumnRange> ranges;
    QString trouble; ///< why the list can't be read, in words; empty if it can

    /// The columns, counted from 0, in a table of so many; ranges end where the table does.
    ///   those of "5,3-1" in a table of two are 4, 1, 0
    [[nodiscard]] QList<qsizetype> columnsOf(qsizetype width) const;
};

/// Reads numbers and ranges with commas between them: "3,1,2", "2-4", "1,4-", "-3", "3-1". Blanks around them
/// and empty places don't count.
[[nodiscard]] ColumnList readColumnList(QStringView text);

} // namespace tolvo
