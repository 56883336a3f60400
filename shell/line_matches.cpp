// SPDX-License-Identifier: MIT
#include "shell/line_matches.h"

#include <algorithm>

namespace tolvo {

namespace {

/// The length of the character reference that begins at the ampersand; 0 if there is none.
qsizetype referenceLength(QStringView line, qsizetype ampersand) {
    qsizetype end = ampersand + 1;
    qsizetype count = 0;
    if (at(line, end) != u'#') {
        constexpr qsizetype fewestLetters = 2;
        constexpr qsizetype mostLetters = 8;
        constexpr qsizetype mostDigitsOfName = 2; // "&frac12;"
        count = countFrom(line, end, isAsciiLetter, mostLetters);
        if (count < fewestLetters)
            return 0;
        end += count;
        end += countFrom(line, end, isAsciiDigit, mostDigitsOfName);
    } else {
        constexpr qsizetype mostHexDigits = 6;
        constexpr qsizetype mostDigits = 7;
        const bool hex = at(line, end + 1) == u'x' || at(line, end + 1) == u'X';
        end += hex ? 2 : 1;
        count = hex ? countFrom(line, end, isHexDigit, mostHexDigits)
                    : countFrom(line, end, isAsciiDigit, mostDigits);
        end += count;
    }
    return count > 0 && at(line, end) == u';' ? end + 1 - ampersand : 0;
}

} // namespace

QChar at(QStringView line, qsizetype column) {
    return column >= 0 && column < line.size() ? line[column] : QChar();
}

bool isBlankOrTab(QChar c) {
    return c == u' ' || c == u'\t';
}

qsizetype countFrom(QStringView line, qsizetype column, bool (*isKind)(QChar), qsizetype most) {
    const qsizetype end = most < 0 ? line.size() : std::min(line.size(), column + most);
    qsizetype next = column;
    while (next < end && isKind(line[next]))
        ++next;
    return next - column;
}

bool isAsciiDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isHexDigit(QChar c) {
    return isAsciiDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

bool isAsciiLetter(QChar c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

QList<LineMatch> anyOf(QStringView line, QStringView wanted) {
    QList<LineMatch> found;
    for (qsizetype i = 0; i < line.size(); ++i) {
        for (const QChar c : wanted) {
            if (line[i] == c)
                found += {i, 1};
        }
    }
    return found;
}

QList<LineMatch> quoteMarks(QStringView line) {
    qsizetype end = 0;
    while (at(line, end) == u'>')
        end += at(line, end + 1) == u' ' ? 2 : 1;
    return end > 0 ? QList<LineMatch>{{0, end}} : QList<LineMatch>();
}

QList<LineMatch> leadingNumber(QStringView line, qsizetype mostDigits, QStringView signs) {
    const qsizetype start = countFrom(line, 0, isBlankOrTab);
    const qsizetype digits = countFrom(line, start, isAsciiDigit, mostDigits);
    const qsizetype end = start + digits + (signs.isEmpty() ? 0 : 1);
    if (digits == 0 || (!signs.isEmpty() && (end > line.size() || !signs.contains(line[end - 1]))))
        return {};
    const bool isAlone = isBlankOrTab(at(line, end)) || (signs.isEmpty() && end == line.size());
    return isAlone ? QList<LineMatch>{{start, end - start}} : QList<LineMatch>();
}

QList<LineMatch> leadingSign(QStringView line, QStringView signs) {
    const qsizetype start = countFrom(line, 0, isBlankOrTab);
    const bool found =
        start < line.size() && signs.contains(line[start]) && isBlankOrTab(at(line, start + 1));
    return found ? QList<LineMatch>{{start, 1}} : QList<LineMatch>();
}

QList<LineMatch> characterReferences(QStringView line) {
    QList<LineMatch> found;
    for (qsizetype i = line.indexOf(u'&'); i >= 0; i = line.indexOf(u'&', i + 1)) {
        if (const qsizetype length = referenceLength(line, i); length > 0)
            found += {i, length};
    }
    return found;
}

bool hasClosingTag(QStringView line) {
    for (qsizetype i = line.indexOf(u'/'); i >= 0; i = line.indexOf(u'/', i + 1)) {
        if (at(line, i + 1) == u'>' || (at(line, i - 1) == u'<' && isAsciiLetter(at(line, i + 1))))
            return true;
    }
    return false;
}

QList<LineMatch> percentCodes(QStringView line) {
    constexpr qsizetype digits = 2;
    QList<LineMatch> found;
    for (qsizetype i = line.indexOf(u'%'); i >= 0; i = line.indexOf(u'%', i + 1)) {
        if (countFrom(line, i + 1, isHexDigit, digits) == digits)
            found += {i, 1 + digits};
    }
    return found;
}

QList<LineMatch> innerBlanks(QStringView line) {
    QList<LineMatch> found;
    for (qsizetype i = line.indexOf(u' '); i >= 0; i = line.indexOf(u' ', i)) {
        const qsizetype length = countFrom(line, i, [](QChar c) { return c == u' '; });
        const qsizetype end = i + length;
        if (length > 1 && i > 0 && end < line.size() && line[i - 1] != u'\t' && line[end] != u'\t')
            found += {i, length};
        i = end;
    }
    return found;
}

QList<LineMatch> blanksAtEnd(QStringView line) {
    const auto isBlank = [](QChar c) { return isBlankOrTab(c) || c == u'\u00A0'; };
    qsizetype start = line.size();
    while (start > 0 && isBlank(line[start - 1]))
        --start;
    return start > 0 && start < line.size() ? QList<LineMatch>{{start, line.size() - start}}
                                            : QList<LineMatch>();
}

} // namespace tolvo
