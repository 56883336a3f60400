// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>
#include <initializer_list>

namespace tolvo {

/// The pieces one behind the other.
[[nodiscard]] inline QString joined(std::initializer_list<QStringView> pieces) {
    QString result;
    for (const QStringView piece : pieces)
        result += piece;
    return result;
}

} // namespace tolvo
