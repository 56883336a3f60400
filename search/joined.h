// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>
#include <algorithm>
#include <initializer_list>

namespace tolvo {

/// The pieces in a row.
///   joined({u"a", u"b"}) == u"ab"
[[nodiscard]] inline QString joined(std::initializer_list<QStringView> pieces) {
    qsizetype length = 0;
    for (const QStringView piece : pieces)
        length += piece.size();
    QString result(length, Qt::Uninitialized);
    QChar *end = result.data();
    for (const QStringView piece : pieces)
        end = std::copy(piece.begin(), piece.end(), end);
    return result;
}

} // namespace tolvo
