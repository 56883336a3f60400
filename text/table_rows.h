// SPDX-License-Identifier: MIT
// The rows of a text that is a table: mostly its lines, but a quoted cell of CSV (RFC 4180) may run over line
// ends.
#pragma once

#include "text/table_cells.h"

#include <QStringList>

namespace tolvo {

struct TableRows {
    const Parting *parting = nullptr; ///< of all rows
    QList<QStringView> rows;
};

/// Reads the rows by the parting that makes rows with the same number of cells, more than one, of most lines;
/// lines parted by tabs if none parts any. Cells run over line ends if most rows then have the same number of
/// cells and these rows take as many lines as agree line by line. That is not so for a stray quote in a
/// table, nor for the quotes of prose.
///   tableRows(u"a,\"b|c\",d|e,f,g").rows == {u"a,\"b|c\",d", u"e,f,g"} where "|" is a line end
[[nodiscard]] TableRows tableRows(QStringView text);

/// What the cells of a row mean, none of a blank one.
[[nodiscard]] QStringList valuesOf(QStringView row, const Parting &parting);

} // namespace tolvo
