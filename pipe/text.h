// SPDX-License-Identifier: MIT
// Text on its way in and out of tolvo-pipe.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>

namespace tolvo {

/// The offset of the first byte that is not UTF-8, a sequence cut at the end included; nothing if all is
/// well.
[[nodiscard]] std::optional<qsizetype> firstBadByte(QByteArrayView bytes);

/// The number of bytes up to a sequence that the end cuts off, and whose rest may still come; all if none is
/// cut.
[[nodiscard]] qsizetype wholeSequences(QByteArrayView bytes);

/// Decodes valid UTF-8; a byte order mark stays in the text.
[[nodiscard]] QString fromUtf8(QByteArrayView bytes);

/// A JSON string with its quotes. Halves of surrogate pairs come through as escapes.
[[nodiscard]] QString jsonString(const QString &text);

} // namespace tolvo
