// SPDX-License-Identifier: MIT
// Which encoding the bytes of a text file are in.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>

namespace tolvo {

/// The text of a file, without its byte order mark. UTF-8 and UTF-16 are known by their marks; without one,
/// what is valid UTF-8 is UTF-8, what has a NUL in most of its even or of its odd places is UTF-16, and all
/// else is Windows-1252. Nothing for bytes that are no text: they hold other NULs, or many control
/// characters.
///   decodedText("\xE9") is "é", decodedText("\xC3\xA9") as well
[[nodiscard]] std::optional<QString> decodedText(QByteArrayView bytes);

} // namespace tolvo
