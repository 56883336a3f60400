// SPDX-License-Identifier: MIT
#include "shell/text_history.h"

#include <algorithm>

namespace tolvo {

namespace {

/// What is typed after a pause of this length is a step of its own, in milliseconds.
constexpr qint64 pause = 2000;

bool isSameText(const QString &left, const QString &right) {
    return (left.constData() == right.constData() && left.size() == right.size()) || left == right;
}

} // namespace

// Recording

void TextHistory::push(const TextState &present) {
    note(present);
    if (liesBetweenStates(present))
        return insertState(present);
    if (!m_undo->Push(present))
        return;
    m_places.resize(m_undo->currentIndex());
    m_places.append(m_done);
}

/// A text in the middle of what can be brought back is no new change: as a state it ends nothing.
void TextHistory::insertState(const TextState &present) {
    m_undo->insert(present);
    m_places.insert(m_undo->currentIndex(), m_done);
}

bool TextHistory::liesBetweenStates(const TextState &present) const {
    return !m_ahead.isEmpty() && !isSameText(present.text, m_undo->current().text);
}

void TextHistory::note(const TextState &present) {
    if (!m_undo->isEmpty() && !isSameText(present.text, m_present.text))
        record(changeBetween(m_present.text, present.text), present);
    m_present = present;
}

void TextHistory::record(const TextEdit &edit, const TextState &present) {
    m_steps.resize(m_done);
    m_ahead.clear();
    std::fill(m_places.begin() + m_undo->currentIndex() + 1, m_places.end(), offTheWay);
    m_steps.append(
        {edit, {m_present.selStart, m_present.selLength}, {present.selStart, present.selLength}, m_running});
    while (!m_copies.isEmpty() && m_copies.last() > m_done)
        m_copies.removeLast();
    ++m_done;
    m_open = false;
}

void TextHistory::noteUserEdit(const UserEdit &edit, const TextState &present) {
    note({edit.before, edit.selStart, edit.selLength});
    if (!m_undo->isEmpty() && !isSameText(edit.before, present.text)) {
        const TextEdit change =
            changeBetween(edit.before, present.text, std::min(edit.selStart, present.selStart));
        const QDateTime now = m_clock->now();
        if (continuesTyping(edit, now) && joinWord(m_steps.last().edit, change))
            m_steps.last().after = {present.selStart, present.selLength};
        else
            record(change, present);
        m_open = !edit.atOnce && isSingleCharacter(change);
        m_typed = now;
    }
    m_present = present;
}

bool TextHistory::continuesTyping(const UserEdit &edit, const QDateTime &now) const {
    const bool stateHere = m_places.at(m_undo->currentIndex()) == m_done;
    const qint64 waited = m_typed.msecsTo(now);
    return m_open && !edit.atOnce && !stateHere && waited >= 0 && waited < pause;
}

// Walking

void TextHistory::show(TextState &state) {
    m_present = state;
    m_open = false;
}

bool TextHistory::undoState(TextState &state) {
    note(state);
    if (liesBetweenStates(state))
        insertState(state);
    const int from = m_undo->currentIndex();
    if (!m_undo->Pull(state))
        return false;
    const bool addedState = m_undo->currentIndex() == from; // of what had changed since the last one
    if (addedState) {
        m_places.resize(from + 1);
        m_places.append(m_done);
    }
    m_ahead.append(m_done);
    m_done = m_places.at(m_undo->currentIndex());
    show(state);
    return true;
}

bool TextHistory::undoStep(TextState &state) {
    note(state);
    if (m_done == 0)
        return m_undo->Pull(state); // which says that this is the end
    return goBack(m_done - 1, state);
}

bool TextHistory::redo(TextState &state) {
    note(state);
    if (m_ahead.isEmpty() ? !redoLostState(state) : !goAhead(state))
        return false;
    show(state);
    return true;
}

/// To where the last undo began.
bool TextHistory::goAhead(TextState &state) {
    walkAhead(m_ahead.takeLast(), state);
    return true;
}

/// To a state that the buffer still holds, although a change after an undo has led away from it.
bool TextHistory::redoLostState(TextState &state) {
    if (!m_undo->Redo(state))
        return false;
    if (!isSameText(state.text, m_present.text))
        record(changeBetween(m_present.text, state.text), state);
    m_places[m_undo->currentIndex()] = m_done;
    return true;
}

} // namespace tolvo
