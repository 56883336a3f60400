// SPDX-License-Identifier: MIT
// Texts in columns. The cells of a row are parted by tabs, commas (with quotes, as CSV has them), semicolons,
// bars or runs of blanks: by the one of them that parts most rows into the same number of cells.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>

namespace tolvo {

/// Rows of cells; rows may have different numbers of them.
using Table = QList<QStringList>;

/// Reads a table. The line under the head of a Markdown table is no row. Blank lines are rows without a cell.
/// A quote that is not closed is an ordinary character.
[[nodiscard]] Table readTable(QStringView text);

/// For each line its cell in a column, which counts from 1; empty where a line has none.
///   cellsOfColumn(u"a;b|c", 2) == {u"b", u""}
[[nodiscard]] QStringList cellsOfColumn(QStringView text, int column);

/// The table with its columns aligned by blanks, as wide as a fixed-width font shows them, two blanks between
/// them; columns of numbers at the right.
[[nodiscard]] QString alignedTable(QStringView text);
[[nodiscard]] QString alignedTable(const Table &table);
/// As a table of Markdown, its first row the head; bars inside cells are escaped.
///   markdownTable(u"a⇥b|1⇥2") == u"| a | b ||| --- | --- ||| 1 | 2 |" with the line ends that "||" stands
///   for
[[nodiscard]] QString markdownTable(QStringView text);
/// As CSV (RFC 4180) with commas; a cell with a comma or a quote is quoted.
[[nodiscard]] QString csvTable(QStringView text);
/// With a tab between the cells; a tab inside a cell becomes a blank.
[[nodiscard]] QString tabTable(QStringView text);
/// With tabs, rows as columns and columns as rows.
[[nodiscard]] QString transposedTable(QStringView text);

} // namespace tolvo
