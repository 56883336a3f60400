// SPDX-License-Identifier: MIT
#include "text/column_choice.h"

#include "text/column_list.h"
#include "text/line_list.h"
#include "text/table_rows.h"
#include "text/tables.h"

#include <QSet>
#include <QStringBuilder>
#include <algorithm>

namespace tolvo {

namespace {

/// What stands between the cells of the table, and around its rows.
struct Frame {
    QString between;
    QString before;
    QString after;
};

/// Reads it off the first row with more than one cell: whether blanks are beside the sign, and bars at the
/// ends.
Frame frameOf(const QList<QStringView> &rows, const Parting &parting) {
    Frame frame{parting.sign.toString(), {}, {}};
    for (const QStringView row : rows) {
        const QList<QStringView> cells = cellsOf(row, parting);
        if (cells.size() < 2)
            continue;
        const QStringView gap(cells.at(0).end(), cells.at(1).begin());
        const bool isBar = parting.sign == barSign;
        const QString blank(parting.sign != tabSign && gap.endsWith(u' ') ? 1 : 0, u' ');
        frame.between = (isBar ? blank : QString()) % parting.sign % blank;
        if (isBar && trimBlanks(row).startsWith(barSign)) {
            frame.before = barSign % blank;
            frame.after = blank % barSign;
        }
        break;
    }
    return frame;
}

/// Picks cells of rows.
class Choice {
  public:
    Choice(const ColumnList &list, bool drops, qsizetype width)
        : m_drops(drops), m_columns(list.columnsOf(width)), m_named(m_columns.begin(), m_columns.end()) {}

    /// A cell that the row lacks is `missing`.
    template <class Cell>
    [[nodiscard]] QList<Cell> of(const QList<Cell> &row, const Cell &missing) const {
        QList<Cell> chosen;
        if (!m_drops) {
            for (const qsizetype column : m_columns)
                chosen += row.value(column, missing);
            return chosen;
        }
        for (qsizetype column = 0; column < row.size(); ++column) {
            if (!m_named.contains(column))
                chosen += row.at(column);
        }
        return chosen;
    }

  private:
    bool m_drops;
    QList<qsizetype> m_columns;
    QSet<qsizetype> m_named;
};

/// A cell with a quote that is not closed would take in what comes after it elsewhere in the row.
QString safeCell(QStringView cell, const Parting &parting) {
    const bool isOpen = cell.startsWith(u'"') && (parting.sign == u"," || parting.sign == u";") &&
                        parting.value(cell) == cell;
    return isOpen ? quotedCell(cell) : cell.toString();
}

QString rowOf(const QList<QStringView> &cells, const Frame &frame, const Parting &parting) {
    QStringList written;
    for (const QStringView cell : cells)
        written += safeCell(cell, parting);
    const QString row = written.join(frame.between);
    // An empty cell at an end of a row without bars around it would be lost.
    const bool needsBars = parting.sign == barSign && frame.before.isEmpty() && !cells.isEmpty() &&
                           (cells.front().isEmpty() || cells.back().isEmpty());
    if (needsBars)
        return barSign % row % barSign;
    return frame.before % row % frame.after;
}

} // namespace

ChosenLines chosenColumns(QStringView text, const ColumnSettings &settings) {
    const ColumnList columns = readColumnList(settings.columns);
    if (!columns.trouble.isEmpty())
        return {text.toString(), columns.trouble};
    const TableRows table = tableRows(text);
    const Parting &parting = *table.parting;
    const LineList list(table.rows);
    qsizetype width = 0;
    for (const QStringView row : list.lines)
        width = std::max(width, cellsOf(row, parting).size());
    const Choice choice(columns, settings.drop, width);

    if (parting.sign == blankSign) {
        Table chosen;
        for (const QStringView row : list.lines) {
            const QStringList cells = valuesOf(row, parting);
            chosen += cells.isEmpty() ? cells : choice.of<QString>(cells, {});
        }
        return {alignedTable(chosen) + (list.endsInLineEnd ? lineEnd.toString() : QString()), {}};
    }
    const Frame frame = frameOf(list.lines, parting);
    QStringList written;
    for (const QStringView row : list.lines) {
        const QList<QStringView> cells = cellsOf(row, parting);
        const bool isUnderHead = parting.sign == barSign && written.size() == 1 && isLineUnderHead(row);
        written += cells.isEmpty()
                       ? QString()
                       : rowOf(choice.of<QStringView>(cells, isUnderHead ? u"---" : u""), frame, parting);
    }
    return {list.joined(written), {}};
}

} // namespace tolvo
