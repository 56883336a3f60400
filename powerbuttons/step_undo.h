// SPDX-License-Identifier: MIT
// Taking back what has been done to the steps of a PowerButton in its editor.
#pragma once

#include "powerbuttons/icon_geometry.h"

#include <QList>

namespace tolvo {

/// What an editing has made of a button at one moment. A snapshot: later changes of the button don't reach
/// it.
struct StepsState {
    QList<CAction> actions;
    ButtonIcon icon;
    int position = 1; ///< of the current Action, from 1

    /// Equal steps and icon, wherever the user is among them.
    [[nodiscard]] bool sameSteps(const StepsState &other) const {
        return actions == other.actions && icon == other.icon;
    }
};

/// The states that undo and redo walk through.
class StepUndo {
  public:
    void clear() { m_behind.clear(), m_ahead.clear(); }
    /// Called before a change with the state that it will leave. A change that comes to nothing costs
    /// nothing.
    void note(const StepsState &before);
    /// Replaces `present` by the nearest earlier state with other steps; false if there is none.
    bool back(StepsState &present) { return walk(m_behind, m_ahead, present); }
    /// The way back; false after a new change.
    bool forward(StepsState &present) { return walk(m_ahead, m_behind, present); }

  private:
    static bool walk(QList<StepsState> &from, QList<StepsState> &to, StepsState &present);

    QList<StepsState> m_behind; ///< the latest last
    QList<StepsState> m_ahead;  ///< the next last
};

} // namespace tolvo
