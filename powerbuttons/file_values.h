// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace tolvo {

/// A text as the value of one line: as it is, or in quotes with escapes if a line could not hold it, as it
/// has line ends, control characters, halves of surrogate pairs, or blanks at its ends.
///   "a" gives a; " a\r\n" gives " a\r\n" with the quotes and the escapes
[[nodiscard]] QString fileValue(const QString &text);

/// The other way round; blanks around the value don't count. Nothing for a value in quotes that is damaged.
[[nodiscard]] std::optional<QString> textOfFileValue(const QString &value);

} // namespace tolvo
