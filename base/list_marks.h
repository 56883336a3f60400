// SPDX-License-Identifier: MIT
// Gen_Procs: telling a list mark ("12.", "(4)", "iv)") from ordinary text at the start of a line. A line that
// starts with "i." or "mix)" may be an item or a word, so a mark carries a confidence.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace tolvo {

struct ListMark {
    QString number; ///< the number text, Roman numerals in lower case
    qsizetype length =
        0; ///< UTF-16 units from the line's start that make up the mark, its closing character included
    int tenths = 0; ///< confidence in tenths (5 is 0.5): decimal, so that 0.9 less 0.4 is exactly 0.5
};

/// A decimal mark such as "12.", "3)", "(4)" or "1.2.3" at the very start of the line; a blank ends one too,
/// with less confidence. The scan never takes the line's last character, so that "12" alone is no mark.
[[nodiscard]] std::optional<ListMark> ParseDecimalMark(QStringView line);

/// A Roman mark such as "iv." or "(iv)" at the very start of the line; a blank does not end one.
[[nodiscard]] std::optional<ListMark> ParseRomanMark(QStringView line);

/// True for a Roman numeral up to 3999, in either case, and for the empty string.
[[nodiscard]] bool IsRomanNumeral(QStringView text);

} // namespace tolvo
