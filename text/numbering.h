// SPDX-License-Identifier: MIT
// List numbers: their styles, and the marks made of them.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <array>
#include <optional>

namespace tolvo {

/// The most blanks that any tool puts before a line or after a mark.
inline constexpr int mostSpaces = 255;

/// The styles of a numbered list, by the numbers in the store and of the dialog's list. The first five have
/// one level; the outline has as many as its indentation.
enum class ListStyle { Decimal, LowerLetters, UpperLetters, LowerRoman, UpperRoman, Outline };
inline constexpr int lastListStyle = static_cast<int>(ListStyle::Outline);
inline constexpr std::array<QStringView, 6> listStyleNames = {
    u"1 2 3 4", u"a b c d", u"A B C D", u"i  ii  iii  iv", u"I  II  III  IV", u"1.2  1.3  1.4"};

/// What stands around a number, by the numbers in the store and of the dialog's list.
enum class FollowChar { None, Stop, Bracket, Brackets };
/// A choice of FollowChar: the entry of the list, and the characters.
struct FollowCharacters {
    QStringView name;
    QStringView before;
    QStringView after;
};
inline constexpr std::array<FollowCharacters, 4> followCharacters = {
    {{u"None", u"", u""}, {u".", u"", u"."}, {u")", u"", u")"}, {u"( )", u"(", u")"}}};
inline constexpr int lastFollowChar = static_cast<int>(followCharacters.size()) - 1;

/// The mark of an item, followed by a TAB, or padded with blanks to exactly `spaces` characters; a mark that
/// is wider is cut to that. `style` is any but Outline, and `spaces` 1 to mostSpaces; a value out of range
/// is brought to the nearest. Letters
/// count from 1, and numbers below that give "a".
///   numlistFormatNumber(4, ListStyle::LowerRoman, FollowChar::Stop, true, 0) == u"iv.\t"
///   numlistFormatNumber(123, ListStyle::Decimal, FollowChar::Stop, false, 2) == u"12"
[[nodiscard]] QString numlistFormatNumber(qint64 number, ListStyle style, FollowChar followChar, bool tab,
                                          int spaces);

/// Gen_Procs: the length of the Roman mark of a line, after its indentation, if it counts as the mark of a
/// list: its own confidence is 0.5 or more, or the line before or after it, skipping one blank line, has a
/// Roman mark too. `index` counts from 0 and must be in the list.
///   RomanNeighbourAgrees({"i. a", "ii. b"}, 0) == 2, RomanNeighbourAgrees({"i. said so"}, 0) == std::nullopt
[[nodiscard]] std::optional<qsizetype> RomanNeighbourAgrees(const QStringList &lines, qsizetype index);

} // namespace tolvo
