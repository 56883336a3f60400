// SPDX-License-Identifier: MIT
#include "spelling/shifted_places.h"

namespace tolvo {

void ShiftedPlaces::note(qsizetype start, qsizetype end, qsizetype added) {
    m_changes.append(Change{start, end, added});
    ++m_state.count;
    m_state.sum += added;
    m_state.furthest = qMax(m_state.furthest, end);
}

std::optional<ShiftedPlace> ShiftedPlaces::placeOf(qsizetype start, qsizetype end) const {
    ShiftedPlace place{start, end - start};
    if (start >= m_state.furthest) { // so it is with stretches in the order of the text
        place.start += m_state.sum;
        return place;
    }
    for (qsizetype i = m_state.first; i < m_state.count; ++i) {
        const Change &change = m_changes[i];
        if (change.end <= start)
            place.start += change.added;
        else if (change.start >= start && change.end <= end && change.end - change.start < end - start)
            place.length += change.added;
        else if (change.start < end)
            return std::nullopt;
    }
    return place;
}

void ShiftedPlaces::restore(const State &state) {
    m_state = state;
    m_changes.resize(m_state.count);
}

void ShiftedPlaces::clear() {
    m_changes.clear();
    m_state = {};
}

} // namespace tolvo
