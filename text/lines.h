// SPDX-License-Identifier: MIT
// What line tools share: a text is taken apart at CR LF and put together again.
#pragma once

#include "base/strings.h"

#include <QString>
#include <QStringView>

namespace tolvo {

inline constexpr QStringView lineEnd = u"\r\n";

/// Calls `change(line, result)` for each line, which appends what becomes of it; line ends stay as they are.
template <class Change>
[[nodiscard]] QString changeLines(QStringView text, Change change) {
    QString result;
    result.reserve(text.size());
    forEachLine(text, [&](QStringView line, bool isLast) {
        change(line, result);
        if (!isLast)
            result += lineEnd;
    });
    return result;
}

} // namespace tolvo
