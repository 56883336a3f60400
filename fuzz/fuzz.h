// SPDX-License-Identifier: MIT
// What the fuzz targets share: texts from raw bytes, and what to do about a law that is broken.
#pragma once

#include <QString>
#include <cstdint>
#include <cstdlib>

namespace tolvo::fuzz {

/// The bytes as characters of one byte each, so that escapes are found soon; 0xFF is a lone surrogate.
inline QString textOf(const std::uint8_t *data, std::size_t size) {
    return QString::fromLatin1(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size))
        .replace(QChar(0xFF), QChar(0xD800));
}

/// Ends the run if something that always holds doesn't.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace tolvo::fuzz
