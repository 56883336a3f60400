// SPDX-License-Identifier: MIT
// Gen_Procs: small string procedures. Positions count from 1, in UTF-16 code units.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace tolvo {

/// The field splitter of all small formats. The part of `s` before the first `separator` (one character),
/// trimmed of blanks; `s` becomes the rest behind it, untrimmed. Without a separator: all of `s`, trimmed,
/// and `s` becomes empty. Fails with an overflow for a separator behind position 32767, which bounds what may
/// be parsed.
[[nodiscard]] QString parse(QString &s, QChar separator);

/// Removes blanks (U+0020 alone) at both ends, at the front, at the end.
[[nodiscard]] QStringView trimBlanks(QStringView text);
[[nodiscard]] QStringView leftTrimBlanks(QStringView text);
[[nodiscard]] QStringView rightTrimBlanks(QStringView text);

/// The same for all five characters of sWhiteSpace, line ends included.
[[nodiscard]] QStringView trimWhiteSpace(QStringView text);
[[nodiscard]] QStringView leftTrimWhiteSpace(QStringView text);
[[nodiscard]] QStringView rightTrimWhiteSpace(QStringView text);

/// The substring of `length` units from `start` (from 1); empty for a start below 1, cut at the text's end.
[[nodiscard]] QStringView MidOrEmpty(QStringView text, qsizetype start, qsizetype length);

/// Cuts a buffer at its first NUL, in place, and returns it.
QString CToBStr(QString &buffer);

/// The index from 0 of the first element equal to `text`, or -1.
[[nodiscard]] int IndexInList(const QString &text, const QStringList &list);

/// The position (from 1) of the last occurrence, 0 if none; overlapping occurrences count: "aa" in "aaa"
/// gives 2.
[[nodiscard]] qsizetype lastIndexOf(QStringView text, QStringView needle, Qt::CaseSensitivity compare);

/// Replaces every "%" followed by the decimal digits of i by element i, for i from 0 upwards. "%1" is also
/// replaced inside "%10": templates hold few placeholders.
[[nodiscard]] QString FillTemplate(QString text, const QStringList &values);

/// `singular` if the flag is set, else `plural`. With more than one value, value i replaces "%" followed by i
/// + 1: the numbering starts at 1 here, unlike in FillTemplate. With a single value the template comes back
/// as it stands; the callers are written for that asymmetry.
[[nodiscard]] QString FillCountedTemplate(const QString &singular, const QString &plural, bool flag,
                                          const QStringList &values);

/// Removes every CR and LF at the end.
[[nodiscard]] QStringView StripTrailingEOL(QStringView text);

/// The lines of a text, split at the exact pair CR LF. An empty text has no lines at all; a text that ends in
/// CR LF has a last, empty line.
[[nodiscard]] QList<QStringView> splitLines(QStringView text);

/// Calls `visit(line, isLast)` for each line of splitLines without building a list.
template <class Visitor>
void forEachLine(QStringView text, Visitor visit) {
    if (text.isEmpty())
        return;
    qsizetype start = 0;
    for (;;) {
        const qsizetype end = text.indexOf(u"\r\n", start);
        if (end < 0)
            break;
        visit(text.sliced(start, end - start), false);
        start = end + 2;
    }
    visit(text.sliced(start), true);
}

} // namespace tolvo
