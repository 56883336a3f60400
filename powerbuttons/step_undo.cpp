// SPDX-License-Identifier: MIT
#include "powerbuttons/step_undo.h"

namespace tolvo {

void StepUndo::note(const StepsState &before) {
    m_behind.append(before);
    m_ahead.clear();
}

bool StepUndo::walk(QList<StepsState> &from, QList<StepsState> &to, StepsState &present) {
    while (!from.isEmpty() && from.last().sameSteps(present))
        from.removeLast();
    if (from.isEmpty())
        return false;
    to.append(present);
    present = from.takeLast();
    return true;
}

} // namespace tolvo
