// SPDX-License-Identifier: MIT
// Strict conversions of stored texts: a text that is no number or flag is a failure, not a 0.
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace tolvo {

/// A 32-bit integer, halves rounded to even. Fails with a type mismatch for a text that is no number, the
/// empty text included, and with an overflow beyond 32 bits.
[[nodiscard]] int toInteger(const QString &text);

/// The same, with `otherwise` in place of a failure.
[[nodiscard]] int toIntegerOr(const QString &text, int otherwise);

/// A number. Fails with a type mismatch.
[[nodiscard]] double toNumber(const QString &text);

/// "True" or "False" in any case, or a number other than 0 or equal to it. Fails with a type mismatch.
[[nodiscard]] bool toFlag(const QString &text);

/// The lenient twin: a text that is no flag says no.
[[nodiscard]] bool saysYes(const QString &text);

/// The word "True" or "False".
[[nodiscard]] QString flagWord(bool flag);

/// "1" or "0".
[[nodiscard]] QString flagDigit(bool flag);

/// The store's form of a date and time, "YYYY-MM-DD HH:mm:ss". Reading fails with a type mismatch.
[[nodiscard]] QString dateText(const QDateTime &date);
[[nodiscard]] QDateTime toDate(const QString &text);
/// The same, with nothing in place of a failure.
[[nodiscard]] std::optional<QDateTime> dateIn(const QString &text);

} // namespace tolvo
