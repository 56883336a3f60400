// SPDX-License-Identifier: MIT
// A line taken apart: "  > - words" is an indentation, a mark of quotation, a mark of a list, and its words.
#pragma once

#include <QString>
#include <QStringBuilder>
#include <QStringView>

namespace tolvo {

struct MarkedLine {
    QStringView indent;
    QStringView signs; ///< of quoted mail (> and |) or comments (// # ; --), with the blanks after them
    QStringView list;  ///< "-", "*", a bullet, "12.", "a)" or "(3)", with the blanks after it
    QStringView words; ///< without the blanks at the end

    [[nodiscard]] bool isBlank() const { return words.isEmpty(); }
    /// What stands before the words.
    [[nodiscard]] QString mark() const { return QString(indent % signs % list); }
    /// The same for a line that carries it on: blanks under the mark of a list.
    [[nodiscard]] QString nextMark() const;
};

[[nodiscard]] MarkedLine markedLine(QStringView line);

/// How many columns a text takes, tab stops every 8.
[[nodiscard]] qsizetype columnsOf(QStringView text);

/// Whether a text begins, or ends, with a character that takes two columns: between two of them no blank
/// stands.
[[nodiscard]] bool beginsWide(QStringView text);
[[nodiscard]] bool endsWide(QStringView text);

} // namespace tolvo
