// SPDX-License-Identifier: MIT
// The rules of text_troubles: each gives the places of one trouble, or none if there is too little of it.
#pragma once

#include "shell/text_troubles.h"

#include <QStringView>

namespace tolvo {

/// A text seen as lines.
struct TextLines {
    /// The text must outlive the lines.
    explicit TextLines(QStringView text);

    QList<QStringView> lines;
    int filled = 0;         ///< lines that are not blank
    bool isListing = false; ///< of a program or of columns: its layout is meant
};

[[nodiscard]] QList<LinePart> mailQuotes(const TextLines &text);
[[nodiscard]] QList<LinePart> wrappedLines(const TextLines &text);
[[nodiscard]] QList<LinePart> lineNumbers(const TextLines &text);
[[nodiscard]] QList<LinePart> htmlCodes(const TextLines &text);
[[nodiscard]] QList<LinePart> addressCodes(const TextLines &text);
[[nodiscard]] QList<LinePart> allCapitals(const TextLines &text);
[[nodiscard]] QList<LinePart> mixedLineEnds(const TextLines &text);
[[nodiscard]] QList<LinePart> doubleBlanks(const TextLines &text);
[[nodiscard]] QList<LinePart> blankLines(const TextLines &text);
[[nodiscard]] QList<LinePart> listNumbers(const TextLines &text);
[[nodiscard]] QList<LinePart> bullets(const TextLines &text);
[[nodiscard]] QList<LinePart> trailingBlanks(const TextLines &text);
[[nodiscard]] QList<LinePart> curlyQuotes(const TextLines &text);

} // namespace tolvo
