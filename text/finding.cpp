// SPDX-License-Identifier: MIT
#include "text/finding.h"

namespace tolvo {

namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isPartOfWord(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

bool endsAddress(QChar c) {
    return c.isSpace() || c.unicode() < u' ' ||
           QStringView(u"<>\"\u201C\u201D\u201E\u00AB\u00BB").contains(c);
}

/// An address without the punctuation after it.
QStringView trimmedAddress(QStringView address) {
    qsizetype round = 0;
    for (const QChar c : address)
        round += c == u'(' ? 1 : c == u')' ? -1 : 0;
    while (!address.isEmpty()) {
        const QChar last = address.back();
        const bool loneBracket = last == u')' && round < 0;
        if (!loneBracket && !QStringView(u".,;:!?'*]}\u2019\u2026").contains(last))
            break;
        round += loneBracket ? 1 : 0;
        address.chop(1);
    }
    return address;
}

/// The start of a scheme that ends at a place, such as "https"; the place itself if there is none.
qsizetype startOfScheme(QStringView text, qsizetype end) {
    constexpr qsizetype longest = 20;
    qsizetype start = end;
    const auto fits = [](QChar c) {
        return c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'+' || c == u'-' || c == u'.');
    };
    while (start > 0 && end - start < longest && fits(text[start - 1]))
        --start;
    while (start < end && !text[start].isLetter())
        ++start;
    return start;
}

bool isLocal(QChar c) {
    return c.isLetterOrNumber() || QStringView(u"!#$%&'*+-/=?^_`{|}~.").contains(c);
}

} // namespace

QStringList webAddresses(QStringView text) {
    QStringList found;
    for (qsizetype i = 0; i < text.size(); ++i) {
        qsizetype start = i;
        const bool scheme = text[i] == u':' && text.sliced(i).startsWith(u"://");
        if (scheme)
            start = startOfScheme(text, i);
        const bool named = (text[i] == u'w' || text[i] == u'W') && (i == 0 || !isPartOfWord(text[i - 1])) &&
                           text.sliced(i).startsWith(u"www.", Qt::CaseInsensitive);
        if (scheme ? start == i : !named)
            continue;
        qsizetype end = i;
        while (end < text.size() && !endsAddress(text[end]))
            ++end;
        const QStringView address = trimmedAddress(text.sliced(start, end - start));
        const qsizetype prefix = i - start + (scheme ? 3 : 4);
        if (address.size() > prefix)
            found += address.toString();
        i = end - 1;
    }
    return found;
}

QStringList mailAddresses(QStringView text) {
    QStringList found;
    qsizetype free = 0; // what stands before belongs to the last address
    for (qsizetype at = text.indexOf(u'@'); at >= 0; at = text.indexOf(u'@', at + 1)) {
        qsizetype start = at;
        while (start > free && isLocal(text[start - 1]))
            --start;
        while (start < at && QStringView(u".'/").contains(text[start]))
            ++start;
        qsizetype end = at + 1;
        while (end < text.size() && (text[end].isLetterOrNumber() || text[end] == u'-' || text[end] == u'.'))
            ++end;
        while (end > at + 1 && !text[end - 1].isLetterOrNumber())
            --end;
        const QStringView domain = text.sliced(at + 1, end - at - 1);
        const bool whole = start < at && text[at - 1] != u'.' && domain.contains(u'.') &&
                           !domain.contains(u"..") && domain.front().isLetterOrNumber();
        if (whole)
            found += text.sliced(start, end - start).toString();
        free = whole ? end : at + 1;
    }
    return found;
}

QStringList numbersIn(QStringView text) {
    QStringList found;
    const auto at = [&](qsizetype place) {
        return place >= 0 && place < text.size() ? text[place] : QChar(u' ');
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isDigit(text[i]))
            continue;
        const bool sign = at(i - 1) == u'-' || at(i - 1) == u'+' || at(i - 1) == u'\u2212';
        qsizetype start = sign && !isPartOfWord(at(i - 2)) && at(i - 2) != at(i - 1) ? i - 1 : i;
        if (start == i && i > 1 && at(i - 1) == u'.' && !isPartOfWord(at(i - 2)) && at(i - 2) != u'.')
            start = i - 1;
        const bool inWord = isPartOfWord(at(start - 1));
        qsizetype end = i;
        while (isDigit(at(end)) ||
               (QStringView(u".,'\u00A0\u202F\u2019").contains(at(end)) && isDigit(at(end + 1))))
            ++end;
        const qsizetype exponent = end + (at(end + 1) == u'-' || at(end + 1) == u'+' ? 2 : 1);
        if ((at(end) == u'e' || at(end) == u'E') && isDigit(at(exponent))) {
            end = exponent;
            while (isDigit(at(end)))
                ++end;
        }

        if (!inWord)
            found += text.sliced(start, end - start).toString();
        i = end - 1;
    }
    return found;
}

} // namespace tolvo
