// SPDX-License-Identifier: MIT
#include "text/tables.h"

#include "base/collation.h"
#include "text/lines.h"
#include "text/table_cells.h"

#include <QRegularExpression>
#include <algorithm>

namespace tolvo {

namespace {

bool isNumber(const QString &cell) {
    static const QRegularExpression number(QStringLiteral(R"(^[-+]?[0-9][0-9.,' ]*%?$)"));
    return number.match(cell).hasMatch();
}

qsizetype columnsOf(const Table &table) {
    qsizetype columns = 0;
    for (const QStringList &row : table)
        columns = std::max(columns, row.size());
    return columns;
}

template <class Cell>
QString writtenTable(const Table &table, QStringView separator, Cell written) {
    QStringList lines;
    for (const QStringList &row : table) {
        QStringList cells;
        for (const QString &cell : row)
            cells += written(cell);
        lines += cells.join(separator);
    }
    return lines.join(lineEnd);
}

/// How a column is laid out.
struct Column {
    qsizetype width = 0;
    bool numbers = true;
};

QList<Column> layoutOf(const Table &table) {
    QList<Column> columns(columnsOf(table));
    for (qsizetype r = 0; r < table.size(); ++r) {
        for (qsizetype c = 0; c < table[r].size(); ++c) {
            const QString &cell = table[r][c];
            columns[c].width = std::max(columns[c].width, displayWidth(cell));
            const bool mayBeHead = r == 0;
            columns[c].numbers = columns[c].numbers && (mayBeHead || cell.isEmpty() || isNumber(cell));
        }
    }
    return columns;
}

QString withoutTabs(const QString &cell) {
    return QString(cell).replace(u'\t', u' ');
}

} // namespace

Table readTable(QStringView text) {
    const QList<QStringView> lines = splitLines(text);
    const Parting &parting = bestParting(lines);
    Table table;
    for (const QStringView line : lines) {
        const QStringList cells = valuesOf(line, parting);
        if (cells.isEmpty() || table.size() != 1 || parting.sign != barSign || !isLineUnderHead(line))
            table += cells;
    }
    return table;
}

QStringList cellsOfColumn(QStringView text, int column) {
    const QList<QStringView> lines = splitLines(text);
    const Parting &parting = bestParting(lines);
    QStringList cells;
    for (const QStringView line : lines)
        cells += valuesOf(line, parting).value(column - 1);
    return cells;
}

QString alignedTable(QStringView text) {
    return alignedTable(readTable(text));
}

QString alignedTable(const Table &table) {
    const QList<Column> columns = layoutOf(table);
    QStringList lines;
    for (const QStringList &row : table) {
        QString line;
        for (qsizetype c = 0; c < row.size(); ++c) {
            const QString padding(columns[c].width - displayWidth(row[c]), u' ');
            line += c == 0 ? QStringView() : QStringView(u"  ");
            line += columns[c].numbers ? padding + row[c] : row[c] + padding;
        }
        lines += rightTrimBlanks(line).toString();
    }
    return lines.join(lineEnd);
}

QString markdownTable(QStringView text) {
    Table table = readTable(text);
    table.removeIf([](const QStringList &row) { return row.isEmpty(); });
    const qsizetype columns = columnsOf(table);
    QStringList lines;
    for (QStringList &row : table) {
        row.resize(columns);
        row.replaceInStrings(QStringLiteral("|"), QStringLiteral("\\|"));
        lines += QStringLiteral("| %1 |").arg(row.join(u" | "));
        if (lines.size() == 1)
            lines += u'|' + QStringLiteral(" --- |").repeated(columns);
    }
    return lines.join(lineEnd);
}

QString csvTable(QStringView text) {
    return writtenTable(readTable(text), u",", [](const QString &cell) {
        const bool plain =
            !cell.contains(u',') && !cell.contains(u'"') && trimBlanks(cell).size() == cell.size();
        return plain ? cell : quotedCell(cell);
    });
}

QString tabTable(QStringView text) {
    return writtenTable(readTable(text), u"\t", withoutTabs);
}

QString transposedTable(QStringView text) {
    const Table table = readTable(text);
    Table transposed(columnsOf(table));
    for (const QStringList &row : table) {
        for (qsizetype c = 0; c < transposed.size(); ++c)
            transposed[c] += row.value(c);
    }
    return writtenTable(transposed, u"\t", withoutTabs);
}

} // namespace tolvo
