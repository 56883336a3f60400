// SPDX-License-Identifier: MIT
#include "text/tables.h"

#include "base/collation.h"
#include "text/lines.h"
#include "text/table_rows.h"

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

bool holdsOneOf(const QString &cell, QStringView signs) {
    return std::any_of(cell.begin(), cell.end(), [signs](QChar c) { return signs.contains(c); });
}

QString withLinesJoined(QString cell) {
    static const QRegularExpression lineEnds(QStringLiteral("[\\r\\n]+"));
    return holdsOneOf(cell, u"\r\n") ? cell.replace(lineEnds, QStringLiteral(" ")) : cell;
}

/// A cell for Markdown. A <br> of its own becomes &lt;br>, a &lt;br> of its own becomes &amp;lt;br>, and so
/// on; as a code, between backticks, it means no line end anyhow.
QString withoutLines(QString cell) {
    static const QRegularExpression written(QStringLiteral("(?i)&((?:amp;)*+lt;br */?>)"));
    static const QRegularExpression own(QStringLiteral("(?i)(?<!`)<(?=br */?>)|<(?=br */?>(?!`))"));
    static const QRegularExpression lineEnds(QStringLiteral("\\r\\n|\\r|\\n"));
    if (!holdsOneOf(cell, u"<&\r\n"))
        return cell;
    return cell.replace(written, QStringLiteral("&amp;\\1"))
        .replace(own, QStringLiteral("&lt;"))
        .replace(lineEnds, QStringLiteral("<br>"));
}

/// The other way round.
QString withLines(QString cell) {
    static const QRegularExpression broken(QStringLiteral("(?i)(?<!`)<br */?>|<br */?>(?!`)"));
    static const QRegularExpression own(QStringLiteral("(?i)&lt;(br */?>)"));
    static const QRegularExpression written(QStringLiteral("(?i)&amp;((?:amp;)*+lt;br */?>)"));
    if (!holdsOneOf(cell, u"<&"))
        return cell;
    return cell.replace(broken, lineEnd.toString())
        .replace(own, QStringLiteral("<\\1"))
        .replace(written, QStringLiteral("&\\1"));
}

template <class Change>
void changeCells(Table &table, Change change) {
    for (QStringList &row : table) {
        for (QString &cell : row)
            cell = change(cell);
    }
}

/// The line end at the end of the text, which is a row without cells.
QString takeLineEnd(Table &table) {
    if (table.size() < 2 || !table.back().isEmpty())
        return {};
    table.removeLast();
    return lineEnd.toString();
}

} // namespace

Table readTable(QStringView text, CellLineEnds lineEnds) {
    const auto [parting, rows] = tableRows(text);
    const bool joins = lineEnds == CellLineEnds::Blanks;
    bool isMarkdown = false;
    Table table;
    for (const QStringView row : rows) {
        if (table.size() == 1 && parting->sign == barSign && isLineUnderHead(row)) {
            isMarkdown = true;
            continue;
        }
        QStringList values;
        for (const QStringView cell : cellsOf(row, *parting)) {
            const QString value = parting->value(cell);
            const bool isQuoted = value.size() < cell.size();
            values += joins && isQuoted ? withLinesJoined(value) : value;
        }
        table += values;
    }
    if (isMarkdown)
        changeCells(table, [joins](const QString &cell) {
            return joins ? withLinesJoined(withLines(cell)) : withLines(cell);
        });
    return table;
}

QString alignedTable(QStringView text) {
    return alignedTable(readTable(text, CellLineEnds::Blanks));
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
    const QString end = takeLineEnd(table);
    table.removeIf([](const QStringList &row) { return row.isEmpty(); });
    changeCells(table, [](const QString &cell) {
        return withoutLines(cell).replace(barSign.toString(), QStringLiteral("\\|"));
    });
    const qsizetype columns = columnsOf(table);
    QStringList lines;
    for (QStringList &row : table) {
        row.resize(columns);
        lines += QStringLiteral("| %1 |").arg(row.join(u" | "));
        if (lines.size() == 1)
            lines += u'|' + QStringLiteral(" --- |").repeated(columns);
    }
    return lines.join(lineEnd) + end;
}

QString csvTable(QStringView text) {
    return writtenTable(readTable(text), u",", [](const QString &cell) {
        const bool plain = !holdsOneOf(cell, u",\"\r\n") && trimBlanks(cell).size() == cell.size();
        return plain ? cell : quotedCell(cell);
    });
}

QString tabTable(QStringView text) {
    return writtenTable(readTable(text, CellLineEnds::Blanks), u"\t", withoutTabs);
}

QString transposedTable(QStringView text) {
    Table table = readTable(text, CellLineEnds::Blanks);
    const QString end = takeLineEnd(table);
    Table transposed(columnsOf(table));
    for (const QStringList &row : table) {
        for (qsizetype c = 0; c < transposed.size(); ++c)
            transposed[c] += row.value(c);
    }
    return writtenTable(transposed, u"\t", withoutTabs) + end;
}

} // namespace tolvo
