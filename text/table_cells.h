// SPDX-License-Identifier: MIT
// The cells of a line, as they are written and as they are meant.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace tolvo {

inline constexpr QStringView tabSign = u"\t";
inline constexpr QStringView barSign = u"|";
inline constexpr QStringView blankSign = u"  "; ///< two blanks or more

/// A way to part cells: tabs, bars, semicolons, commas or runs of blanks.
struct Parting {
    QStringView sign; ///< is in every line that it parts

    /// The cells as they are written, with the quotes of CSV and the escapes of Markdown, without blanks
    /// around them; those between tabs have their blanks. The bars at both ends of a row part nothing.
    QList<QStringView> (*cells)(QStringView line);
    /// What a cell means.
    ///   of the Parting by commas, value(u"\"a, b\"") == u"a, b"
    QString (*value)(QStringView cell);
};

/// The one that parts most lines into the same number of cells; the one by tabs if none parts any.
[[nodiscard]] const Parting &bestParting(const QList<QStringView> &lines);

/// The cells of a line, none of a blank one.
[[nodiscard]] QList<QStringView> cellsOf(QStringView line, const Parting &parting);
[[nodiscard]] QStringList valuesOf(QStringView line, const Parting &parting);

/// Whether a line is the one under the head of a Markdown table: dashes between bars, maybe with colons.
///   isLineUnderHead(u"| --- | :---: |")
[[nodiscard]] bool isLineUnderHead(QStringView line);

/// A text as a quoted cell of CSV (RFC 4180).
///   quotedCell(u"a \"b\"") == u"\"a \"\"b\"\"\""
[[nodiscard]] QString quotedCell(QStringView text);

} // namespace tolvo
