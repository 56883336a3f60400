// SPDX-License-Identifier: MIT
// What the line tools share: they split a text at CR LF and join it again.
#pragma once

#include "base/strings.h"

#include <QString>
#include <QStringView>

namespace tolvo {

inline constexpr QStringView lineEnd = u"\r\n";

/// Calls `change(line, result)` for each line, which appends the new line to the result; the line ends stay.
/// `change` is not called for an empty text. TrimWhiteSpace, for instance, is
///   changeLines(text, [](QStringView line, QString &result) { result += trimWhiteSpace(line); })
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
