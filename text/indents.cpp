// SPDX-License-Identifier: MIT
// Indentation, and TABs against blanks.
#include "text/cTextMethods.h"

#include "base/strings.h"
#include "text/lines.h"

namespace tolvo {

QString cTextMethods::Indent(QStringView text, QStringView indent) const {
    return changeLines(text, [indent](QStringView line, QString &result) {
        // A blank line carries no white space afterwards.
        if (trimBlanks(line).isEmpty())
            return;
        result += indent;
        result += line;
    });
}

QString cTextMethods::Unindent(QStringView text, QStringView indent) const {
    return changeLines(text, [indent](QStringView line, QString &result) {
        result += line.startsWith(indent) ? line.sliced(indent.size()) : line;
    });
}

QString cTextMethods::Tab2space(QStringView text, int startColumn, int tabWidth) const {
    const qsizetype width = qMax(tabWidth, 1);
    // Only the remainder counts, and it must not be negative.
    const qsizetype firstColumn = (startColumn % width + width) % width;
    qsizetype column = firstColumn;
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\t') {
            const qsizetype blanks = width - column % width;
            result.resize(result.size() + blanks, u' ');
            column += blanks;
            continue;
        }
        result += text[i];
        ++column;
        if (text[i] == u'\n' && i > 0 && text[i - 1] == u'\r')
            column = 0;
    }
    return result;
}

QString cTextMethods::Spaces2tab(QStringView text) const {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u' ' || i + 1 == text.size() || text[i + 1] != u' ') {
            result += text[i];
            continue;
        }
        while (i + 1 < text.size() && text[i + 1] == u' ')
            ++i;
        result += u'\t';
    }
    return result;
}

} // namespace tolvo
