// SPDX-License-Identifier: MIT
// Text on its way in and out of tolvo-pipe.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace tolvo {

/// The offset of the first byte that is no UTF-8; nothing if all is well.
[[nodiscard]] std::optional<qsizetype> firstBadByte(const QByteArray &bytes);

/// Decodes valid UTF-8; a byte order mark stays in the text.
[[nodiscard]] QString fromUtf8(const QByteArray &bytes);

/// A JSON string with its quotes. Halves of surrogate pairs come through as escapes.
[[nodiscard]] QString jsonString(const QString &text);

} // namespace tolvo
