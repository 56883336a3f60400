// SPDX-License-Identifier: MIT
// What the list of the Actions does in the PowerButton editor.
#include "powerbuttons/editor_rules.h"

#include <algorithm>

namespace tolvo {

bool EditorRules::goTo(int position) {
    if (!hasPosition(position))
        return false;
    if (position == m_position)
        return true;
    if (!validate())
        return false;
    keep();
    moveTo(position);
    return true;
}

bool EditorRules::moveStep(int from, int to) {
    if (!hasPosition(from) || !hasPosition(to) || from == to || !goTo(from))
        return false;
    noteForUndo();
    keep();
    const std::shared_ptr<CAction> action = m_button->Item(from);
    m_button->Remove(from);
    m_button->Add(action, {}, to);
    moveTo(to);
    return true;
}

void EditorRules::removeStep() {
    noteForUndo();
    if (m_button->Count() == 1)
        m_button->Add(std::make_shared<CAction>(), 1);
    else
        m_button->Remove(m_position);
    moveTo(std::min(m_position, m_button->Count()));
}

void EditorRules::switchOff(int position, bool off) {
    if (!hasPosition(position) || m_button->Item(position)->switchedOff() == off)
        return;
    noteForUndo();
    m_button->Item(position)->setSwitchedOff(off);
}

bool EditorRules::copyStep() {
    if (!current().Tool())
        return false;
    m_copy = current();
    m_copy->setDlgOption(m_option);
    return true;
}

bool EditorRules::cutStep() {
    if (!copyStep())
        return false;
    removeStep();
    return true;
}

bool EditorRules::pasteStep() {
    if (!m_copy || (current().Tool() && !validate()))
        return false;
    putAfterCurrent(*m_copy);
    return true;
}

bool EditorRules::duplicateStep() {
    if (!current().Tool() || !validate())
        return false;
    keep();
    putAfterCurrent(current());
    return true;
}

/// A blank one makes room.
void EditorRules::putAfterCurrent(const CAction &action) {
    noteForUndo();
    const auto copy = std::make_shared<CAction>(action);
    if (!current().Tool()) {
        m_button->Add(copy, m_position);
        moveTo(m_position);
        return;
    }
    keep();
    m_button->Add(copy, {}, {}, m_position);
    moveTo(m_position + 1);
}

StepsState EditorRules::state() const {
    StepsState state{.actions = {}, .icon = iconOf(*m_button), .position = m_position};
    for (int position = 1; position <= m_button->Count(); ++position)
        state.actions.append(*m_button->Item(position));
    state.actions[m_position - 1].setDlgOption(m_option);
    return state;
}

bool EditorRules::walkUndo(bool (StepUndo::*walk)(StepsState &)) {
    StepsState shown = state();
    if (!(m_undo.*walk)(shown))
        return false;
    m_button->Clear();
    for (const CAction &action : shown.actions)
        m_button->Add(std::make_shared<CAction>(action));
    setIcon(*m_button, shown.icon);
    moveTo(shown.position);
    return true;
}

} // namespace tolvo
