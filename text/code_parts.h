// SPDX-License-Identifier: MIT
// What the codes of all notations are read and written with.
#pragma once

#include "text/coding.h"

#include <QByteArray>
#include <optional>

namespace tolvo {

/// Counts a code that could not be decoded, at its place in the coded text.
void noteBadCode(DecodedText &decoded, qsizetype at);

/// The text of valid UTF-8; nothing for other bytes.
[[nodiscard]] std::optional<QString> fromUtf8(const QByteArray &bytes);

/// The value of hexadecimal digits; nothing for a text with anything else, and for none.
[[nodiscard]] std::optional<uint> hexNumber(QStringView digits);

/// Appends the lowest `width` hexadecimal digits of a number.
void addHex(QString &result, uint number, int width, QStringView digits = u"0123456789abcdef");

/// How many bytes a UTF-8 sequence has by its first; 0 for a byte that begins none.
[[nodiscard]] qsizetype sequenceLength(uchar first);

/// The character of a code point; half of a surrogate pair for such a code.
[[nodiscard]] QString characterOf(char32_t code);

} // namespace tolvo
