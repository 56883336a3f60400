// SPDX-License-Identifier: MIT
// Where the stretches of a checked text stand while that text is being corrected. Offsets count UTF-16 units
// from 0.
#pragma once

#include <QList>
#include <optional>

namespace tolvo {

/// Where a stretch stands.
struct ShiftedPlace {
    qsizetype start = 0;
    qsizetype length = 0;
};

/// The changes of a text since it was checked, in any order. Earlier changes can be taken back.
///   note(4, 7, 2) for a word of three units that became one of five; placeOf(8, 11) is then {10, 3}, and
///   placeOf(0, 11) is {0, 13}
class ShiftedPlaces {
  public:
    /// What to restore when changes are undone.
    struct State {
        qsizetype first = 0;    ///< index of the first change that counts
        qsizetype count = 0;    ///< of all changes
        qsizetype sum = 0;      ///< of the units that they added
        qsizetype furthest = 0; ///< the greatest of their ends
    };

    /// Notes that a stretch of the checked text has grown by `added` units, or shrunk if that is negative.
    void note(qsizetype start, qsizetype end, qsizetype added);

    /// Where a stretch of the checked text stands; changes inside it have changed its length. Nothing if it
    /// stands nowhere, since a change has replaced all or an end of it.
    [[nodiscard]] std::optional<ShiftedPlace> placeOf(qsizetype start, qsizetype end) const;

    [[nodiscard]] const State &state() const { return m_state; }
    void restore(const State &state);
    /// The text has been checked as it is: the changes so far count no more, unless they are restored.
    void startAfresh() { m_state = {.first = m_changes.size(), .count = m_changes.size()}; }
    /// Forgets everything, earlier states included.
    void clear();

  private:
    struct Change {
        qsizetype start;
        qsizetype end;
        qsizetype added;
    };
    QList<Change> m_changes;
    State m_state;
};

} // namespace tolvo
