// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

struct EscapedText {
    QString text;
    bool specialChars = false; ///< an escape is in it: special characters have to be allowed
};

/// A text as a search box holds it: a tab as "\t", CR LF as "\n", any other control character as "\xHH".
[[nodiscard]] EscapedText escapedControls(QStringView text);

/// The text that the escapes stand for: "\n" (CR LF or LF), "\t", "\xHH", "\uHHHH" and "\\". Another
/// backslash stands for itself. Fails with badHexadecimalEscape.
///   unescaped("a\\tb", false) is "a", TAB, "b".
[[nodiscard]] QString unescaped(QString text, bool crlf);

/// Where the first escape stands that unescaped() fails for, from 0; -1 if there is none.
///   badEscapeAt(u"a\\x4z") == 1
[[nodiscard]] qsizetype badEscapeAt(QStringView text);

/// One kind of them: `prefix` in either case, then up to `digits` hexadecimal digits.
[[nodiscard]] QString withHexEscapes(QStringView text, QStringView prefix, qsizetype digits);

} // namespace tolvo
