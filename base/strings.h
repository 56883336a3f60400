// SPDX-License-Identifier: MIT
// Gen_Procs: small string procedures. Positions count from 1, in UTF-16 code units.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace tolvo {

/// Takes the first field off a text: returns what precedes the first separator, trimmed of blanks, and leaves
/// in `s` what follows it, untrimmed. From " a , b, " it returns "a" and leaves " b, ". Without a separator
/// it returns all of `s`, trimmed, and leaves `s` empty. Fails with an overflow if the first separator is
/// after position 32767.
[[nodiscard]] QString parse(QString &s, QChar separator);

/// Removes blanks (U+0020 only) at both ends, at the front or at the end.
[[nodiscard]] QStringView trimBlanks(QStringView text);
[[nodiscard]] QStringView leftTrimBlanks(QStringView text);
[[nodiscard]] QStringView rightTrimBlanks(QStringView text);

/// Removes all five characters of sWhiteSpace, line ends included, at both ends, at the front or at the end.
[[nodiscard]] QStringView trimWhiteSpace(QStringView text);
[[nodiscard]] QStringView leftTrimWhiteSpace(QStringView text);
[[nodiscard]] QStringView rightTrimWhiteSpace(QStringView text);

/// The substring of `length` units from position `start`: MidOrEmpty(u"abc", 2, 9) == u"bc". Empty for a
/// start outside the text or a length below 1.
[[nodiscard]] QStringView MidOrEmpty(QStringView text, qsizetype start, qsizetype length);

/// Cuts a buffer at its first NUL, in place, and returns it. A buffer without a NUL stays as it is.
QString CToBStr(QString &buffer);

/// The index (from 0) of the first element that equals `text` exactly; -1 if there is none.
[[nodiscard]] int IndexInList(const QString &text, const QStringList &list);

/// The position (from 1) of the last occurrence; 0 if there is none or the needle is empty. Overlapping
/// occurrences count: "aa" in "aaa" gives 2.
[[nodiscard]] qsizetype lastIndexOf(QStringView text, QStringView needle, Qt::CaseSensitivity compare);

/// Replaces "%0", "%1" and so on by the values: FillTemplate("%1 of %0", {"a", "b"}) == "b of a". The values
/// go in one after the other, so "%1" is replaced inside "%10" too, and inside a value that holds it.
[[nodiscard]] QString FillTemplate(QString text, const QStringList &values);

/// `singular` if the flag is set, else `plural`, with "%1", "%2" and so on replaced by the values: the
/// numbering starts at 1, unlike in FillTemplate. With a single value the template is returned as it stands.
[[nodiscard]] QString FillCountedTemplate(const QString &singular, const QString &plural, bool flag,
                                          const QStringList &values);

/// Removes every CR and LF at the end, paired or not.
[[nodiscard]] QStringView StripTrailingEOL(QStringView text);

/// The lines of a text, split at the exact pair CR LF; a lone CR or LF is part of its line. An empty text has
/// no lines at all. A text that ends in CR LF has an empty last line.
[[nodiscard]] QList<QStringView> splitLines(QStringView text);

/// Calls `visit(line, isLast)` for each line of splitLines in order, without building a list.
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
