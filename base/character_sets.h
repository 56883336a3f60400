// SPDX-License-Identifier: MIT
// The character sets that tools share. Each is one constant; CharacterSet asks membership in constant time
// for ASCII.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Blank, TAB, no-break space, CR, LF, in this order: the only white space of the system.
inline constexpr QStringView sWhiteSpace = u" \t\u00A0\r\n";
[[nodiscard]] constexpr bool isWhiteSpace(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == 0x00A0 || unit == u'\r' || unit == u'\n';
}

inline constexpr QStringView stopCharacters = u".,?!;:";
inline constexpr QStringView sentenceEnds = u".?!";
inline constexpr QStringView openingBrackets = u"([{";
inline constexpr QStringView closingBrackets = u")]}";
inline constexpr QStringView quoteMarks = u"'\u2018\u2019\u201C\u201D\"";
inline constexpr QStringView bulletMarks = u"\u2022\u00B7*-";
/// Blank, LF, CR, TAB, double quote, asterisk, vertical bar: what ends a file name or an address inside a
/// text.
inline constexpr QStringView wordBreakers = u" \n\r\t\"*|";

/// True if the set holds the unit.
[[nodiscard]] inline bool contains(QStringView set, char16_t unit) {
    for (const QChar member : set) {
        if (member.unicode() == unit)
            return true;
    }
    return false;
}

/// Letter sets for use inside a bracket expression, from Windows-1252 in code order.
/// The first two are made once; the others are put together from them.
[[nodiscard]] const QString &SEARCH_CHARS_UPPER();
[[nodiscard]] const QString &SEARCH_CHARS_LOWER();
[[nodiscard]] QString SEARCH_CHARS_DIGIT();
[[nodiscard]] QString SEARCH_CHARS_ALPHA();
[[nodiscard]] QString SEARCH_CHARS_ALPHANUM();
[[nodiscard]] QString SEARCH_CHARS_WORD();
[[nodiscard]] QString SEARCH_CHARS_PUNCTUATION();

} // namespace tolvo
