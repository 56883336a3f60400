// SPDX-License-Identifier: MIT
// Character references of markup: "&#65;", "&#x41;", "&amp;".
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Decodes the numeric references. "&#" is taken out whatever follows it. Only codes of Windows-1252 and the
/// full-width forms have a character; a reference to any other is deleted, and from then on references only
/// lose their "&#". Digits directly behind a reference are read as a further one. Fails with an overflow for
/// a reference of 32768 characters or more and for a hexadecimal one beyond 32 bits.
[[nodiscard]] QString decodeNumericEntities(QStringView text);

/// Decodes the named references, as if by replacing one name after the other: "&amp;lt;" becomes "<" but
/// "&amp;amp;" becomes "&amp;". Case counts for "&dagger;" and "&Dagger;" alone.
[[nodiscard]] QString decodeNamedEntities(QStringView text);

} // namespace tolvo
