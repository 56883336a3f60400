// SPDX-License-Identifier: MIT
// Gen_Procs: recognises a list mark ("12.", "(4)", "iv)") at the start of a line. A line that starts with
// "i." or "mix)" may be an item or a sentence, so a mark carries a confidence.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace tolvo {

/// The mark at the start of a line.
struct ListMark {
    QString number; ///< without brackets and closing character; Roman numerals in lower case
    /// Its UTF-16 units from the start of the line, the closing character included.
    qsizetype length = 0;
    int tenths = 0; ///< the confidence in tenths: whole numbers, so that 0.9 - 0.4 is exactly 0.5
};

/// Reads a decimal mark such as "12.", "3)", "(4)" or "1.2.3" at the very start of the line. The mark ends in
/// a full stop, a closing bracket, a TAB, or, with less confidence, a blank; a mark that opens with a bracket
/// must close with one. Each 50 of the number lowers the confidence by a tenth. A line of digits alone has
/// none.
///   "12. Item" gives {"12", 3, 5}, "12 apples" gives {"12", 3, 3}
[[nodiscard]] std::optional<ListMark> ParseDecimalMark(QStringView line);

/// Reads a Roman mark such as "iv." or "(iv)" at the very start of the line. A blank doesn't end one.
/// Numerals that are also words or abbreviations, such as "i" and "mix", have less confidence.
///   "x. y" gives {"x", 2, 7}, "MIX) it" gives {"mix", 4, 3}
[[nodiscard]] std::optional<ListMark> ParseRomanMark(QStringView line);

/// True for a Roman numeral up to 3999 in subtractive notation, in any case, and for the empty string. "IV"
/// is one, "IIII" is not. Source of the notation: https://en.wikipedia.org/wiki/Roman_numerals (standard
/// form).
[[nodiscard]] bool IsRomanNumeral(QStringView text);

} // namespace tolvo
