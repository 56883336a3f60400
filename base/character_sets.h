// SPDX-License-Identifier: MIT
// The character sets that tools share. Each is one constant; contains() tests for membership.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Blank, TAB, no-break space, CR, LF, in this order: what the tools take for white space.
inline constexpr QStringView sWhiteSpace = u" \t\u00A0\r\n";
/// True for a member of sWhiteSpace.
[[nodiscard]] constexpr bool isWhiteSpace(char16_t unit) {
    return unit == u' ' || unit == u'\t' || unit == 0x00A0 || unit == u'\r' || unit == u'\n';
}

inline constexpr QStringView stopCharacters = u".,?!;:";
inline constexpr QStringView sentenceEnds = u".?!";
inline constexpr QStringView openingBrackets = u"([{";
inline constexpr QStringView closingBrackets = u")]}";
inline constexpr QStringView quoteMarks = u"'\u2018\u2019\u201C\u201D\"";
inline constexpr QStringView bulletMarks = u"\u2022\u00B7*-";
/// Blank, LF, CR, TAB, double quote, asterisk, vertical bar: the characters that end a file name or an
/// address in a text.
inline constexpr QStringView wordBreakers = u" \n\r\t\"*|";

/// True if the set holds the unit; false for the empty set.
[[nodiscard]] inline bool contains(QStringView set, char16_t unit) {
    for (const QChar member : set) {
        if (member.unicode() == unit)
            return true;
    }
    return false;
}

/// The members of character classes, for use inside a bracket expression. Letters are those of Windows-1252
/// in code order; "alphanum" adds the digits to them, "word" the underscore as well. The first two sets are
/// made once, the others at each call.
[[nodiscard]] const QString &SEARCH_CHARS_UPPER();
[[nodiscard]] const QString &SEARCH_CHARS_LOWER();
[[nodiscard]] QString SEARCH_CHARS_DIGIT();
[[nodiscard]] QString SEARCH_CHARS_ALPHA();
[[nodiscard]] QString SEARCH_CHARS_ALPHANUM();
[[nodiscard]] QString SEARCH_CHARS_WORD();
[[nodiscard]] QString SEARCH_CHARS_PUNCTUATION();

} // namespace tolvo
