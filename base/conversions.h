// SPDX-License-Identifier: MIT
// Strict conversions of stored texts: a text that is not a number, flag or date is a Failure, not a 0. The
// lenient reading of numbers is ValueOf (base/numbers.h).
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace tolvo {

/// Reads a 32-bit integer and rounds halves to even: "2.5" is 2. White space around the number is ignored.
/// Fails with a type mismatch for a text that is not a number, the empty text included, and with an overflow
/// beyond 32 bits.
[[nodiscard]] int toInteger(const QString &text);

/// Reads a number, with a point as decimal separator. White space around it is ignored. Fails with a type
/// mismatch for a text that is not a number, and with an overflow for one that is too large.
[[nodiscard]] double toNumber(const QString &text);

/// Reads a flag: "True" or "False" in any case, or a number, where 0 is false and any other is true. Fails
/// with a type mismatch for any other text.
[[nodiscard]] bool toFlag(const QString &text);

/// True for "True" in any case and for a text that ValueOf reads as a number other than 0; false for anything
/// else.
[[nodiscard]] bool saysYes(const QString &text);

/// "True" or "False".
[[nodiscard]] QString flagWord(bool flag);

/// "1" or "0".
[[nodiscard]] QString flagDigit(bool flag);

/// The store's form of a date and time: "2024-02-29 23:59:01".
[[nodiscard]] QString dateText(const QDateTime &date);
/// Reads that form. Fails with a type mismatch for any other text and for a date that doesn't exist.
[[nodiscard]] QDateTime toDate(const QString &text);
/// The same, but returns nothing instead of failing.
[[nodiscard]] std::optional<QDateTime> dateIn(const QString &text);

} // namespace tolvo
