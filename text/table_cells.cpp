// SPDX-License-Identifier: MIT
#include "text/table_cells.h"

#include "base/strings.h"

#include <QHash>
#include <algorithm>
#include <array>

namespace tolvo {

namespace {

using Cells = QList<QStringView>;

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

Cells cellsBy(QStringView line, QChar separator) {
    Cells cells;
    for (QStringView rest = line;;) {
        const QStringView trimmed = leftTrimBlanks(rest);
        const qsizetype quoted = trimmed.startsWith(u'"') ? endOfQuoted(trimmed) : -1;
        const QStringView after = quoted < 0 ? QStringView() : leftTrimBlanks(trimmed.sliced(quoted));
        if (quoted >= 0 && (after.isEmpty() || after.front() == separator)) {
            cells += trimmed.first(quoted);
            if (after.isEmpty())
                return cells;
            rest = after.sliced(1);
            continue;
        }
        const qsizetype end = rest.indexOf(separator);
        cells += trimBlanks(end < 0 ? rest : rest.first(end));
        if (end < 0)
            return cells;
        rest = rest.sliced(end + 1);
    }
}

Cells cellsByTabs(QStringView line) {
    return line.split(u'\t');
}

Cells cellsByCommas(QStringView line) {
    return cellsBy(line, u',');
}

Cells cellsBySemicolons(QStringView line) {
    return cellsBy(line, u';');
}

Cells cellsByBars(QStringView line) {
    QStringView inner = trimBlanks(line);
    if (inner.startsWith(u'|'))
        inner = inner.sliced(1);
    if (inner.endsWith(u'|') && !inner.endsWith(u"\\|"))
        inner.chop(1);
    Cells cells;
    qsizetype start = 0;
    for (qsizetype i = 0; i < inner.size(); ++i) {
        if (inner.sliced(i).startsWith(u"\\|")) {
            ++i;
        } else if (inner[i] == u'|') {
            cells += trimBlanks(inner.sliced(start, i - start));
            start = i + 1;
        }
    }
    return cells << trimBlanks(inner.sliced(start));
}

Cells cellsByBlanks(QStringView line) {
    Cells cells;
    for (QStringView rest = trimBlanks(line);;) {
        const qsizetype end = rest.indexOf(blankSign);
        cells += end < 0 ? rest : rest.first(end);
        if (end < 0)
            return cells;
        rest = leftTrimBlanks(rest.sliced(end));
    }
}

QString asWritten(QStringView cell) {
    return cell.toString();
}

QString withoutQuotes(QStringView cell) {
    if (!cell.startsWith(u'"') || endOfQuoted(cell) != cell.size())
        return cell.toString();
    return cell.sliced(1).chopped(1).toString().replace(QStringLiteral("\"\""), QStringLiteral("\""));
}

QString withoutEscapes(QStringView cell) {
    return cell.toString().replace(QStringLiteral("\\|"), barSign.toString());
}

constexpr std::array<Parting, 5> partings{{{tabSign, cellsByTabs, asWritten},
                                           {barSign, cellsByBars, withoutEscapes},
                                           {u";", cellsBySemicolons, withoutQuotes},
                                           {u",", cellsByCommas, withoutQuotes},
                                           {blankSign, cellsByBlanks, asWritten}}};

/// How many rows the most usual number of cells above 1 has.
qsizetype agreement(const QList<QStringView> &lines, const Parting &parting) {
    QHash<qsizetype, qsizetype> rows;
    qsizetype most = 0;
    for (const QStringView line : lines) {
        const qsizetype cells = line.contains(parting.sign) ? parting.cells(line).size() : 0;
        if (cells > 1)
            most = std::max(most, ++rows[cells]);
    }
    return most;
}

} // namespace

const Parting &bestParting(const QList<QStringView> &lines) {
    const Parting *best = partings.data();
    qsizetype mostAgreement = 0;
    for (const Parting &parting : partings) {
        const qsizetype rows = agreement(lines, parting);
        if (rows > mostAgreement) {
            mostAgreement = rows;
            best = &parting;
        }
    }
    return *best;
}

QList<QStringView> cellsOf(QStringView line, const Parting &parting) {
    return trimWhiteSpace(line).isEmpty() ? Cells() : parting.cells(line);
}

QStringList valuesOf(QStringView line, const Parting &parting) {
    QStringList values;
    for (const QStringView cell : cellsOf(line, parting))
        values += parting.value(cell);
    return values;
}

bool isLineUnderHead(QStringView line) {
    constexpr qsizetype fewestDashes = 3;
    const Cells cells = cellsByBars(line);
    return std::all_of(cells.begin(), cells.end(), [](QStringView cell) {
        QStringView dashes = cell;
        if (dashes.startsWith(u':'))
            dashes = dashes.sliced(1);
        if (dashes.endsWith(u':'))
            dashes.chop(1);
        return dashes.size() >= fewestDashes && dashes.count(u'-') == dashes.size();
    });
}

QString quotedCell(QStringView text) {
    return u'"' + text.toString().replace(QStringLiteral("\""), QStringLiteral("\"\"")) + u'"';
}

} // namespace tolvo
