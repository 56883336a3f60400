// SPDX-License-Identifier: MIT
// Where a caret may be in a text with CR LF line ends, and how much of a text fits in. Shared by all text
// boxes. Positions count from 0.
#pragma once

#include <QStringView>

#include <algorithm>

namespace tolvo {

/// Whether a position lies between the CR and the LF of a line end.
[[nodiscard]] inline bool splitsLineEnd(QStringView text, qint64 position) {
    return position > 0 && position < text.size() && text[position - 1] == u'\r' && text[position] == u'\n';
}

/// The position cut to the text; one inside a line end moves before its CR.
[[nodiscard]] inline qint64 snapBefore(QStringView text, qint64 position) {
    const qint64 inside = std::clamp<qint64>(position, 0, text.size());
    return splitsLineEnd(text, inside) ? inside - 1 : inside;
}

/// The position cut to the text; one inside a line end moves after its LF.
[[nodiscard]] inline qint64 snapAfter(QStringView text, qint64 position) {
    const qint64 inside = std::clamp<qint64>(position, 0, text.size());
    return splitsLineEnd(text, inside) ? inside + 1 : inside;
}

/// The front of `inserted` that fits into a box that keeps `kept` other units. The cut splits neither a line
/// end nor a surrogate pair.
[[nodiscard]] inline QStringView cutToRoom(QStringView inserted, qint64 capacity, qint64 kept) {
    const qint64 room = std::clamp<qint64>(capacity - kept, 0, inserted.size());
    const bool splitsPair = room > 0 && room < inserted.size() && inserted[room - 1].isHighSurrogate() &&
                            inserted[room].isLowSurrogate();
    return inserted.first(splitsPair || splitsLineEnd(inserted, room) ? room - 1 : room);
}

} // namespace tolvo
