// SPDX-License-Identifier: MIT
// Texts in columns. The cells of a row are parted by tabs, commas (with quotes, as CSV has them), semicolons,
// bars or runs of blanks: by the one of them that parts most lines into the same number of cells. A quoted
// cell may hold line ends (RFC 4180), and so may one of a Markdown table, as <br>.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>

namespace tolvo {

/// Rows of cells; rows may have different numbers of them.
using Table = QList<QStringList>;

/// What becomes of the line ends in a quoted cell.
enum class CellLineEnds { Kept, Blanks };

/// Reads a table. The line under the head of a Markdown table is no row. Blank lines are rows without a cell.
/// A quote that is not closed is an ordinary character.
[[nodiscard]] Table readTable(QStringView text, CellLineEnds lineEnds = CellLineEnds::Kept);

/// The table with its columns aligned by blanks, as wide as a fixed-width font shows them, two blanks between
/// them; columns of numbers at the right. Line ends in a quoted cell become a blank.
[[nodiscard]] QString alignedTable(QStringView text);
[[nodiscard]] QString alignedTable(const Table &table);
/// As a table of Markdown, its first row the head; bars inside cells are escaped, line ends become <br>, and
/// a <br> that a cell holds becomes &lt;br>, so that readTable() gives back the cells. Blank lines go, but
/// for the line end at the end of the text.
///   markdownTable() of the lines "a⇥b" and "1⇥2" gives the lines "| a | b |", "| --- | --- |", "| 1 | 2 |"
[[nodiscard]] QString markdownTable(QStringView text);
/// As CSV (RFC 4180) with commas; a cell with a comma, a quote or a line end is quoted.
[[nodiscard]] QString csvTable(QStringView text);
/// With a tab between the cells; a tab inside a cell becomes a blank, and so do its line ends.
[[nodiscard]] QString tabTable(QStringView text);
/// With tabs as tabTable() has them, rows as columns and columns as rows. A line end at the end of the text
/// stays there.
[[nodiscard]] QString transposedTable(QStringView text);

} // namespace tolvo
