// SPDX-License-Identifier: MIT
#include "text/table_cells.h"

#include "text/lines.h"

#include <algorithm>
#include <array>

namespace tolvo {

namespace {

using Cells = QList<QStringView>;

bool holdsLineEnd(QStringView text) {
    return text.contains(u'\r') || text.contains(u'\n');
}

/// A cell of CSV as it is written.
struct CsvCell {
    QStringView written;
    qsizetype end; ///< where the sign after it stands, or the CR LF, or the end of the text
};

/// A cell without quotes at the front of a text.
template <char16_t sign>
CsvCell plainCell(QStringView text) {
    const auto isLineEnd = [text](qsizetype at) {
        return text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n';
    };
    qsizetype end = 0;
    while (end < text.size() && text[end] != sign && !isLineEnd(end))
        ++end;
    const QStringView written = text.first(end);
    return {sign == tabSign.front() ? written : trimBlanks(written), end};
}

/// The cell at the front of a text. An attempt to read a quoted one goes as far as the next quote that is not
/// doubled. A cell that begins within it begins with an even number of quotes, which an attempt does not get
/// past: however many quotes are open, all attempts together read the text a few times.
template <char16_t sign>
CsvCell csvCell(QStringView text) {
    constexpr bool betweenTabs = sign == tabSign.front();
    const QStringView cell = betweenTabs ? text : leftTrimBlanks(text);
    const qsizetype length = cell.startsWith(u'"') ? endOfQuoted(cell) : -1;
    if (length < 0)
        return plainCell<sign>(text);
    const QStringView quoted = cell.first(length);
    const QStringView after = betweenTabs ? cell.sliced(length) : leftTrimBlanks(cell.sliced(length));
    const bool ends = after.isEmpty() || after.front() == sign || after.startsWith(lineEnd);
    const qsizetype end = text.size() - after.size();
    const bool isMeant = betweenTabs ? quoted.contains(sign) || holdsLineEnd(quoted)
                                     : end == length || !quoted.contains(lineEnd);
    return ends && isMeant ? CsvCell{quoted, end} : plainCell<sign>(text);
}

template <char16_t sign>
Cells csvCells(QStringView row) {
    Cells cells;
    for (QStringView rest = row;;) {
        const CsvCell cell = csvCell<sign>(rest);
        cells += cell.written;
        if (cell.end == rest.size())
            return cells;
        rest = rest.sliced(cell.end + 1);
    }
}

template <char16_t sign>
qsizetype endOfCsvRow(QStringView text) {
    for (qsizetype at = 0;; ++at) {
        at += csvCell<sign>(text.sliced(at)).end;
        if (at == text.size() || text[at] != sign)
            return at;
    }
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

QString withoutEscapes(QStringView cell) {
    return cell.toString().replace(QStringLiteral("\\|"), barSign.toString());
}

QString withoutQuotes(QStringView cell) {
    if (!cell.startsWith(u'"') || endOfQuoted(cell) != cell.size())
        return cell.toString();
    return cell.sliced(1).chopped(1).toString().replace(QStringLiteral("\"\""), QStringLiteral("\""));
}

QString withoutQuotesAroundLines(QStringView cell) {
    return cell.contains(tabSign.front()) || holdsLineEnd(cell) ? withoutQuotes(cell) : cell.toString();
}

constexpr std::array<Parting, 5> all{
    {{tabSign, csvCells<u'\t'>, withoutQuotesAroundLines, endOfCsvRow<u'\t'>},
     {barSign, cellsByBars, withoutEscapes, nullptr},
     {u";", csvCells<u';'>, withoutQuotes, endOfCsvRow<u';'>},
     {u",", csvCells<u','>, withoutQuotes, endOfCsvRow<u','>},
     {blankSign, cellsByBlanks, asWritten, nullptr}}};

} // namespace

std::span<const Parting> partings() {
    return all;
}

Cells cellsOf(QStringView row, const Parting &parting) {
    return trimWhiteSpace(row).isEmpty() ? Cells() : parting.cells(row);
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

qsizetype endOfQuoted(QStringView text) {
    for (qsizetype i = 1; i < text.size(); ++i) {
        if (text[i] != u'"')
            continue;
        if (i + 1 == text.size() || text[i + 1] != u'"')
            return i + 1;
        ++i;
    }
    return -1;
}

QString quotedCell(QStringView text) {
    return u'"' + text.toString().split(u'"').join(QStringLiteral("\"\"")) + u'"';
}

} // namespace tolvo
