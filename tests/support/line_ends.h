// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo::test {

/// A text with LF as other programs of this system get it: with CR LF on Windows.
inline QString inLinesOfSystem(QString text) {
#ifdef Q_OS_WIN
    text.replace(u'\n', QLatin1StringView("\r\n"));
#endif
    return text;
}

} // namespace tolvo::test
