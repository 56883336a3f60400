// SPDX-License-Identifier: MIT
#include "text/marked_lines.h"

#include "base/collation.h"

#include <algorithm>

namespace tolvo {

namespace {

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

qsizetype blanksAt(QStringView text, qsizetype at) {
    const qsizetype start = at;
    while (at < text.size() && isBlank(text[at]))
        ++at;
    return at - start;
}

/// The length of a mark of a comment at the front; 0 for none. A blank or the end follows it.
qsizetype commentLength(QStringView text) {
    for (const QStringView sign : {u"///", u"//!", u"//", u"#", u";;", u";", u"--", u"%"}) {
        if (text.startsWith(sign) && (text.size() == sign.size() || isBlank(text[sign.size()])))
            return sign.size();
    }
    return 0;
}

/// The length of a mark of a list at the front, without what follows it; 0 for none.
qsizetype listLength(QStringView text) {
    constexpr qsizetype mostDigits = 3;
    if (text.isEmpty())
        return 0;
    if (QStringView(u"-*+\u2022\u2023\u25AA\u25CF\u25E6\u2013\u2043\u00B7").contains(text[0]))
        return 1;
    const qsizetype start = text[0] == u'(' ? 1 : 0;
    qsizetype end = start;
    while (end < text.size() && end - start <= mostDigits && text[end].isDigit())
        ++end;
    const bool number = end > start && end - start <= mostDigits;
    if (!number && start < text.size() && text[start].isLetter())
        end = start + 1;
    if (end == start || end >= text.size())
        return 0;
    return text[end] == u')' || (number && start == 0 && text[end] == u'.') ? end + 1 : 0;
}

bool isWide(QStringView character) {
    return displayWidth(character) == 2;
}

} // namespace

QString MarkedLine::nextMark() const {
    const bool tab = list.endsWith(u'\t');
    return indent % signs % (tab ? QString(u'\t') : QString(columnsOf(list), u' '));
}

MarkedLine markedLine(QStringView line) {
    MarkedLine marked;
    qsizetype at = blanksAt(line, 0);
    marked.indent = line.first(at);
    const qsizetype signs = at;
    while (at < line.size() && (line[at] == u'>' || line[at] == u'|'))
        at += 1 + blanksAt(line, at + 1);
    if (at == signs) {
        if (const qsizetype length = commentLength(line.sliced(at)))
            at += length + blanksAt(line, at + length);
    }
    marked.signs = line.sliced(signs, at - signs);
    const qsizetype length = listLength(line.sliced(at));
    const qsizetype after = length > 0 ? blanksAt(line, at + length) : 0;
    if (after > 0 && at + length + after < line.size()) {
        marked.list = line.sliced(at, length + after);
        at += length + after;
    }
    qsizetype end = line.size();
    while (end > at && isBlank(line[end - 1]))
        --end;
    marked.words = line.sliced(at, end - at);
    return marked;
}

qsizetype columnsOf(QStringView text) {
    constexpr char16_t firstAccent = 0x300;
    constexpr qsizetype tabStop = 8;
    if (std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c < firstAccent; }))
        return text.size();
    qsizetype columns = 0;
    for (qsizetype start = 0;;) {
        const qsizetype tab = text.indexOf(u'\t', start);
        columns += displayWidth(text.sliced(start, (tab < 0 ? text.size() : tab) - start));
        if (tab < 0)
            return columns;
        columns += tabStop - columns % tabStop;
        start = tab + 1;
    }
}

bool beginsWide(QStringView text) {
    return isWide(
        text.first(text.size() > 1 && text[0].isHighSurrogate() ? 2 : std::min<qsizetype>(1, text.size())));
}

bool endsWide(QStringView text) {
    return isWide(
        text.last(text.size() > 1 && text.back().isLowSurrogate() ? 2 : std::min<qsizetype>(1, text.size())));
}

} // namespace tolvo
