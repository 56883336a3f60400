// SPDX-License-Identifier: MIT
// What Unicode calls characters.
#pragma once

#include <QList>
#include <QString>

namespace tolvo {

/// "RIGHTWARDS ARROW"; a character without a name of its own is described, as "<private use-E000>".
[[nodiscard]] QString characterName(char32_t character);

/// "U+2192"
[[nodiscard]] QString characterCode(char32_t character);

/// The code points of what a reader takes for one character at a position of a text, a unit counted from 0:
/// a letter with the accents after it, an emoji with all its parts, both parts of CR LF. A lone half of a
/// surrogate pair stands for itself. None at the end of the text.
///   characterAt(u"e\u0301x", 0) is {0x65, 0x301}
[[nodiscard]] QList<char32_t> characterAt(const QString &text, qsizetype position);

} // namespace tolvo
