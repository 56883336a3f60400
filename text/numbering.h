// SPDX-License-Identifier: MIT
// List numbers: their styles, the marks made of them, and the marks of lists taken off again.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <array>
#include <optional>

namespace tolvo {

/// The most blanks that any tool puts before a line or behind a mark.
inline constexpr int mostSpaces = 255;

/// The styles of a numbered list, in the order of the dialog's list. The first five count one level.
enum class ListStyle { Decimal, LowerLetters, UpperLetters, LowerRoman, UpperRoman, Outline };
inline constexpr int lastListStyle = static_cast<int>(ListStyle::Outline);
inline constexpr std::array<QStringView, 6> listStyleNames = {
    u"1 2 3 4", u"a b c d", u"A B C D", u"i  ii  iii  iv", u"I  II  III  IV", u"1.2  1.3  1.4"};

/// What stands around a number, in the order of the dialog's list.
struct FollowCharacters {
    QStringView name;
    QStringView before;
    QStringView behind;
};
inline constexpr std::array<FollowCharacters, 4> followCharacters = {
    {{u"None", u"", u""}, {u".", u"", u"."}, {u")", u"", u")"}, {u"( )", u"(", u")"}}};
inline constexpr int lastFollowChar = static_cast<int>(followCharacters.size()) - 1;

/// The mark of an item, with its separator: a TAB, or blanks up to exactly `spaces` characters. A mark wider
/// than that is cut: the column is kept rather than the number. `style` is one of the first five; values out
/// of range are brought to the nearest, and `spaces` to 1 at least, so that no item is without a mark.
/// Letters begin at 1 and don't go below "a".
[[nodiscard]] QString numlistFormatNumber(qint64 number, int style, int followChar, bool tab, int spaces);

/// Gen_Procs: the length of the Roman mark at the start of a line (behind its indentation), if it is to be
/// taken for a list's: it is sure enough by itself, or the line before or behind it (beyond one blank line)
/// has a Roman mark too. So a lone "i." stays a word, and "i.", "ii.", "iii." are a list.
[[nodiscard]] std::optional<qsizetype> RomanNeighbourAgrees(const QStringList &lines, qsizetype index);

} // namespace tolvo
