// SPDX-License-Identifier: MIT
#include "text/tables.h"

#include "base/collation.h"
#include "text/lines.h"

#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <array>

namespace tolvo {

namespace {

/// Where a quoted cell of CSV ends, its quote counted; -1 if it is not closed.
qsizetype endOfQuoted(QStringView line) {
    for (qsizetype i = 1; i < line.size(); ++i) {
        if (line[i] != u'"')
            continue;
        if (i + 1 == line.size() || line[i + 1] != u'"')
            return i + 1;
        ++i;
    }
    return -1;
}

QStringList cellsBy(QStringView line, QChar separator) {
    QStringList cells;
    for (QStringView rest = line;;) {
        const QStringView trimmed = leftTrimBlanks(rest);
        const qsizetype quoted = trimmed.startsWith(u'"') ? endOfQuoted(trimmed) : -1;
        const QStringView after = quoted < 0 ? QStringView() : leftTrimBlanks(trimmed.sliced(quoted));
        if (quoted >= 0 && (after.isEmpty() || after.front() == separator)) {
            cells += trimmed.first(quoted).sliced(1).chopped(1).toString().replace(QStringLiteral("\"\""),
                                                                                   QStringLiteral("\""));
            if (after.isEmpty())
                return cells;
            rest = after.sliced(1);
            continue;
        }
        const qsizetype end = rest.indexOf(separator);
        cells += trimBlanks(end < 0 ? rest : rest.first(end)).toString();
        if (end < 0)
            return cells;
        rest = rest.sliced(end + 1);
    }
}

QStringList cellsByTabs(QStringView line) {
    return line.toString().split(u'\t');
}

QStringList cellsByCommas(QStringView line) {
    return cellsBy(line, u',');
}

QStringList cellsBySemicolons(QStringView line) {
    return cellsBy(line, u';');
}

/// The bars at both ends of a row of Markdown part nothing; an escaped one is part of its cell.
QStringList cellsByBars(QStringView line) {
    QStringView inner = trimBlanks(line);
    if (inner.startsWith(u'|'))
        inner = inner.sliced(1);
    if (inner.endsWith(u'|') && !inner.endsWith(u"\\|"))
        inner.chop(1);
    QStringList cells;
    QString cell;
    for (qsizetype i = 0; i < inner.size(); ++i) {
        if (inner.sliced(i).startsWith(u"\\|")) {
            cell += inner[++i];
        } else if (inner[i] == u'|') {
            cells += trimBlanks(cell).toString();
            cell.clear();
        } else {
            cell += inner[i];
        }
    }
    cells += trimBlanks(cell).toString();
    return cells;
}

QStringList cellsByBlanks(QStringView line) {
    static const QRegularExpression blanks(QStringLiteral(" {2,}"));
    return trimBlanks(line).toString().split(blanks);
}

/// A way to part cells: `sign` is in every line that it parts.
struct Split {
    QStringView sign;
    QStringList (*cells)(QStringView);
};

/// How many rows the most usual number of cells above 1 has.
qsizetype agreement(const QList<QStringView> &lines, const Split &split) {
    QHash<qsizetype, qsizetype> rows;
    qsizetype most = 0;
    for (const QStringView line : lines) {
        const qsizetype cells = line.contains(split.sign) ? split.cells(line).size() : 0;
        if (cells > 1)
            most = std::max(most, ++rows[cells]);
    }
    return most;
}

constexpr std::array<Split, 5> splits{{{u"\t", cellsByTabs},
                                       {u"|", cellsByBars},
                                       {u";", cellsBySemicolons},
                                       {u",", cellsByCommas},
                                       {u"  ", cellsByBlanks}}};

/// The one that parts most lines into the same number of cells.
const Split &bestSplit(const QList<QStringView> &lines) {
    const Split *best = splits.data();
    qsizetype mostAgreement = 0;
    for (const Split &split : splits) {
        const qsizetype rows = agreement(lines, split);
        if (rows > mostAgreement) {
            mostAgreement = rows;
            best = &split;
        }
    }
    return *best;
}

QStringList cellsOf(QStringView line, const Split &split) {
    return trimWhiteSpace(line).isEmpty() ? QStringList() : split.cells(line);
}

bool isLineUnderHead(const QStringList &cells) {
    static const QRegularExpression dashes(QStringLiteral("^:?-{3,}:?$"));
    return std::all_of(cells.begin(), cells.end(),
                       [](const QString &cell) { return dashes.match(cell).hasMatch(); });
}

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
    const Split &split = bestSplit(lines);
    Table table;
    for (const QStringView line : lines) {
        const QStringList cells = cellsOf(line, split);
        if (cells.isEmpty() || table.size() != 1 || split.cells != cellsByBars || !isLineUnderHead(cells))
            table += cells;
    }
    return table;
}

QStringList cellsOfColumn(QStringView text, int column) {
    const QList<QStringView> lines = splitLines(text);
    const Split &split = bestSplit(lines);
    QStringList cells;
    for (const QStringView line : lines)
        cells += cellsOf(line, split).value(column - 1);
    return cells;
}

QString alignedTable(QStringView text) {
    const Table table = readTable(text);
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
        return plain ? cell
                     : u'"' + QString(cell).replace(QStringLiteral("\""), QStringLiteral("\"\"")) + u'"';
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
