// SPDX-License-Identifier: MIT
#include "text/table_rows.h"

#include "text/lines.h"

#include <QHash>
#include <algorithm>

namespace tolvo {

namespace {

using Rows = QList<QStringView>;

/// The rows that have the most usual number of cells above 1.
struct Agreement {
    qsizetype rows = 0;
    qsizetype longRows = 0; ///< of more than one line
    qsizetype lines = 0;    ///< that these rows take
};

bool isLong(QStringView row) {
    return row.contains(lineEnd);
}

Agreement agreementOf(const Rows &rows, const Parting &parting) {
    QHash<qsizetype, Agreement> agreements;
    Agreement most;
    for (const QStringView row : rows) {
        const qsizetype cells = row.contains(parting.sign) ? parting.cells(row).size() : 0;
        if (cells < 2)
            continue;
        Agreement &agreement = agreements[cells];
        ++agreement.rows;
        agreement.longRows += isLong(row) ? 1 : 0;
        agreement.lines += 1 + row.count(lineEnd);
        if (agreement.lines > most.lines)
            most = agreement;
    }
    return most;
}

Rows rowsBy(const Parting &parting, QStringView text) {
    Rows rows;
    for (QStringView rest = text;;) {
        const qsizetype end = parting.endOfRow(rest);
        rows += rest.first(end);
        if (end == rest.size())
            return rows;
        rest = rest.sliced(end + lineEnd.size());
    }
}

struct Reading {
    Rows rows;
    qsizetype lines = 0; ///< that agree
};

/// The rows with cells that run over line ends; none if there is no such cell, or if not most rows agree, and
/// most of those with such cells.
Reading readLongRows(const Parting &parting, QStringView text) {
    if (parting.endOfRow == nullptr || !text.contains(u'"'))
        return {};
    const Rows rows = rowsBy(parting, text);
    const Agreement agreement = agreementOf(rows, parting);
    const auto isBlank = [](QStringView row) { return trimWhiteSpace(row).isEmpty(); };
    const qsizetype blankRows = std::count_if(rows.begin(), rows.end(), isBlank);
    const qsizetype longRows = std::count_if(rows.begin(), rows.end(), isLong);
    const bool mostAgree = 2 * agreement.rows > rows.size() - blankRows && 2 * agreement.longRows > longRows;
    return mostAgree ? Reading{rows, agreement.lines} : Reading();
}

/// Whether a sign found in all lines may still be a part of cells. Commas and semicolons are common in texts;
/// tabs and bars are written to separate.
bool mayStandInCells(QStringView sign) {
    return sign == u"," || sign == u";";
}

} // namespace

TableRows tableRows(QStringView text) {
    const Rows lines = splitLines(text);
    TableRows best{partings().data(), lines};
    qsizetype most = 0;
    for (const Parting &parting : partings()) {
        if (const qsizetype agree = agreementOf(lines, parting).lines; agree > most) {
            most = agree;
            best = {&parting, lines};
        }
        const Reading reading = readLongRows(parting, text);
        const bool winsTies = best.parting == &parting || mayStandInCells(best.parting->sign);
        if (reading.lines > most || (reading.lines > 0 && reading.lines == most && winsTies)) {
            most = reading.lines;
            best = {&parting, reading.rows};
        }
    }
    return best;
}

QStringList valuesOf(QStringView row, const Parting &parting) {
    QStringList values;
    for (const QStringView cell : cellsOf(row, parting))
        values += parting.value(cell);
    return values;
}

} // namespace tolvo
