// SPDX-License-Identifier: MIT
// White space inside and around lines, and the marks at their ends.
#include "text/cTextMethods.h"

#include "base/character_sets.h"
#include "base/strings.h"
#include "text/lines.h"

namespace tolvo {

namespace {

/// Appends a line with each run of blanks reduced to one, or to none beside a TAB. The line has no white
/// space at its ends.
void appendSingleSpaced(QStringView line, QString &result) {
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] != u' ') {
            result += line[i];
            continue;
        }
        const bool afterTab = line[i - 1] == u'\t';
        while (line[i + 1] == u' ')
            ++i;
        if (!afterTab && line[i + 1] != u'\t')
            result += u' ';
    }
}

} // namespace

QString cTextMethods::TrimTrail(QStringView text) const {
    return changeLines(text, [](QStringView line, QString &result) { result += rightTrimWhiteSpace(line); });
}

QString cTextMethods::LTrimWhiteSpace(QStringView text) const {
    return leftTrimWhiteSpace(text).toString();
}

QString cTextMethods::TrimWhiteSpace(QStringView text) const {
    return changeLines(text, [](QStringView line, QString &result) { result += trimWhiteSpace(line); });
}

QString cTextMethods::TrimStopChars(QStringView text) const {
    return trimStopCharacters(text).toString();
}

QString cTextMethods::TrimQuotes(QStringView text) const {
    return trimQuoteMarks(text).toString();
}

QString cTextMethods::SingleSpace(QStringView text) const {
    QString blanks = text.toString();
    blanks.replace(QChar(u'\u00A0'), QChar(u' '));
    return changeLines(blanks, [](QStringView line, QString &result) {
        const QStringView content = trimWhiteSpace(line);
        if (content.isEmpty())
            return;
        result += line.first(content.begin() - line.begin());
        appendSingleSpaced(content, result);
    });
}

QString cTextMethods::RegularEOL(QStringView text) const {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype start = i;
        while (i < text.size() && text[i] != u'\r' && text[i] != u'\n')
            ++i;
        result += text.sliced(start, i - start);
        // A lone CR at the very end is dropped.
        if (i == text.size() || (text[i] == u'\r' && i + 1 == text.size()))
            break;
        result += lineEnd;
        if (text[i] == u'\r' && text[i + 1] == u'\n')
            ++i;
    }
    return result;
}

} // namespace tolvo
