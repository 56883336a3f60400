// SPDX-License-Identifier: MIT
// Indentation, and the conversion between TABs and blanks.
#include "text/cTextMethods.h"

#include "base/strings.h"
#include "text/lines.h"

namespace tolvo {

QString cTextMethods::Indent(QStringView text, QStringView indent) const {
    return changeLines(text, [indent](QStringView line, QString &result) {
        // A line of blanks becomes empty.
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
        const qsizetype start = i;
        while (i < text.size() && text[i] != u'\t' && text[i] != u'\n')
            ++i;
        result += text.sliced(start, i - start);
        column += i - start;
        if (i == text.size())
            break;
        if (text[i] == u'\t') {
            const qsizetype blanks = width - column % width;
            result.resize(result.size() + blanks, u' ');
            column += blanks;
        } else {
            result += u'\n';
            column = i > 0 && text[i - 1] == u'\r' ? 0 : column + 1;
        }
    }
    return result;
}

QString cTextMethods::Spaces2tab(QStringView text) const {
    QString result;
    result.reserve(text.size());
    qsizetype start = 0; // of what is not yet copied
    for (qsizetype i; (i = text.indexOf(u"  ", start)) >= 0;) {
        result += text.sliced(start, i - start);
        result += u'\t';
        for (start = i; start < text.size() && text[start] == u' ';)
            ++start;
    }
    result += text.sliced(start);
    return result;
}

} // namespace tolvo
