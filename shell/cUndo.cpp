// SPDX-License-Identifier: MIT
#include "shell/cUndo.h"

namespace tolvo {

cUndo::cUndo(Hooks hooks) : m_hooks(std::move(hooks)) {
}

void cUndo::store(const TextState &state) {
    m_states.resize(m_next); // what Redo could reach is lost
    m_states.append(state);
    m_last = m_next;
    ++m_next;
}

bool cUndo::Push(const TextState &state) {
    if (m_next > 0 && state.text == m_states.at(m_next - 1).text)
        return false;
    store(state);
    m_hooks.enableRedo(false);
    m_hooks.enableUndo(true);
    return true;
}

bool cUndo::Pull(TextState &state) {
    // What has changed since the last state is a state too, above the bottom one as well: the text that a
    // Refresh replaced, or the first word that was typed, could not be brought back otherwise.
    const bool changed = m_next > 0 && state.text != m_states.at(m_next - 1).text;
    if (m_next <= 1 && !changed) {
        m_hooks.setStatus(QStringLiteral("Reached end of Undo buffer"));
        m_hooks.beep();
        return false;
    }
    if (changed)
        store(state);
    --m_next;
    state = m_states.at(m_next - 1);
    m_hooks.enableRedo(true);
    return true;
}

bool cUndo::Redo(TextState &state) {
    if (m_next > m_last) {
        m_hooks.beep();
        m_hooks.setStatus(QStringLiteral("Reached end of Redo buffer"));
        return false;
    }
    if (state.text != m_states.at(m_next - 1).text && !m_hooks.mayDiscardTyping())
        return false;
    state = m_states.at(m_next);
    ++m_next;
    return true;
}

void cUndo::insert(const TextState &state) {
    m_states.insert(m_next, state);
    ++m_next;
    ++m_last;
    m_hooks.enableUndo(true);
}

void cUndo::moveTo(int index) {
    m_next = index + 1;
    m_hooks.enableRedo(true);
}

} // namespace tolvo
