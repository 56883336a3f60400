// SPDX-License-Identifier: MIT
// The cells of a row, as they are written and as they are meant.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>
#include <span>

namespace tolvo {

inline constexpr QStringView tabSign = u"\t";
inline constexpr QStringView barSign = u"|";
inline constexpr QStringView blankSign = u"  "; ///< two blanks or more

/// A way to part cells: tabs, bars, semicolons, commas or runs of blanks.
struct Parting {
    QStringView sign; ///< is in every row that it parts

    /// The cells as they are written, with the quotes of CSV and the escapes of Markdown, without blanks
    /// around them; those between tabs have their blanks. The bars at both ends of a row part nothing.
    QList<QStringView> (*cells)(QStringView row);
    /// What a cell means.
    ///   of the Parting by commas, value(u"\"a, b\"") == u"a, b"
    QString (*value)(QStringView cell);
    /// Where the row at the front of a text ends if its quoted cells may hold line ends: before a CR LF, or
    /// at the end of the text. Null where cells have no quotes.
    ///
    /// A quote is the first unit of such a cell, and the one that closes it the last. Between tabs only a
    /// cell that holds a tab or a line end is quoted, as spreadsheets write them. A quote that is not closed,
    /// or not at the end of its cell, is an ordinary character, and the row ends with its line.
    qsizetype (*endOfRow)(QStringView text);
};

/// All of them, in the order in which they are tried.
[[nodiscard]] std::span<const Parting> partings();

/// The cells of a row, none of a blank one.
[[nodiscard]] QList<QStringView> cellsOf(QStringView row, const Parting &parting);

/// Whether a line is the one under the head of a Markdown table: dashes between bars, maybe with colons.
///   isLineUnderHead(u"| --- | :---: |")
[[nodiscard]] bool isLineUnderHead(QStringView line);

/// Where a quoted cell at the front of a text ends, its quotes counted; -1 if it is not closed.
///   endOfQuoted(u"\"a \"\"b\"\"\", c") == 9
[[nodiscard]] qsizetype endOfQuoted(QStringView text);

/// A text as a quoted cell of CSV (RFC 4180).
///   quotedCell(u"a \"b\"") == u"\"a \"\"b\"\"\""
[[nodiscard]] QString quotedCell(QStringView text);

} // namespace tolvo
