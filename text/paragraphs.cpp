// SPDX-License-Identifier: MIT
// Blank lines, and the joining of a paragraph's lines.
#include "text/cTextMethods.h"

#include "base/character_sets.h"
#include "base/list_marks.h"
#include "base/strings.h"
#include "text/lines.h"

namespace tolvo {

namespace {

bool isBlankLine(QStringView line) {
    return trimWhiteSpace(line).isEmpty();
}

/// True if the next line, judged by its first character, continues `line`: it is neither indented nor an item
/// with a bullet, and `line` is not a numbered item.
bool mayJoin(QStringView line, int nextStart) {
    return nextStart > u'\t' && nextStart != u' ' && !isOneOf(bulletMarks, nextStart) &&
           !ParseDecimalMark(line) && !ParseRomanMark(line);
}

/// Runs of empty lines shrink to one.
QString singleEmptyLines(QStringView text) {
    QString result;
    result.reserve(text.size());
    const QList<QStringView> lines = splitLines(text);
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
        if (lines[i].isEmpty() && lines[i + 1].isEmpty())
            continue;
        result += lines[i];
        result += lineEnd;
    }
    if (!lines.isEmpty())
        result += lines.last();
    return result;
}

} // namespace

QString cTextMethods::removeExtraLines(QStringView text, bool single, bool multiple) const {
    const QList<QStringView> lines = splitLines(text);
    const qsizetype last = lines.size() - 1;
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i <= last; ++i) {
        if (!isBlankLine(lines[i])) {
            result += rightTrimBlanks(lines[i]);
            result += lineEnd;
            continue;
        }
        if (!single)
            result += lineEnd;
        if (i == last || !isBlankLine(lines[i + 1]))
            continue;
        // A run of blank lines: the line that ends it is counted too and then handled again, so a run that is
        // kept grows by one.
        do {
            ++i;
            if (!multiple)
                result += lineEnd;
        } while (i < last && isBlankLine(lines[i]));
        --i;
    }
    while (result.endsWith(lineEnd))
        result.chop(lineEnd.size());
    result.truncate(rightTrimBlanks(result).size());
    return result;
}

QString cTextMethods::Paragraph(QStringView text) const {
    const QList<QStringView> lines = splitLines(text);
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i + 1 < lines.size(); ++i) {
        const int nextStart = unitAt(lines[i + 1], 1);
        const QStringView line = rightTrimBlanks(lines[i]);
        result += line;
        if (mayJoin(line, nextStart)) {
            if (!line.isEmpty())
                result += u' ';
            continue;
        }
        result += lineEnd;
        if (nextStart == noUnit && !result.endsWith(u"\r\n\r\n"))
            result += lineEnd;
    }
    if (!lines.isEmpty())
        result += lines.last();
    return singleEmptyLines(result);
}

} // namespace tolvo
