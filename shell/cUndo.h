// SPDX-License-Identifier: MIT
// Undo and redo: whole snapshots of the text.
#pragma once

#include "shell/text_state.h"

#include <QList>
#include <QString>
#include <functional>

namespace tolvo {

/// The buffer of states. Callers hand a state in and write back what comes out. What cUndo says to the window
/// goes through its hooks.
class cUndo {
  public:
    struct Hooks {
        std::function<void(bool)> enableUndo;
        std::function<void(bool)> enableRedo;
        std::function<void(const QString &)> setStatus;
        std::function<void()> beep;             ///< already knows whether sounds are on
        std::function<bool()> mayDiscardTyping; ///< asks "Changes have been made to the text", Yes or No
    };

    explicit cUndo(Hooks hooks);

    /// True if a state was added. A text equal to the current state's adds nothing: the selection alone makes
    /// no new state.
    bool Push(const TextState &state);
    /// Replaces `state`, the text as it stands, by the state before it. Typing since the last state is saved
    /// first, so that Redo brings it back. False at the end of the buffer, which the status line then says.
    bool Pull(TextState &state);
    /// The same in the other direction. Asks first if the text has changed since its state; No gives false.
    bool Redo(TextState &state);

    // For TextHistory, which knows the steps between the states

    [[nodiscard]] bool isEmpty() const { return m_next == 0; }
    /// Index, from 0, of the state at which the text stands or from which it has been changed since. Not for
    /// an empty buffer.
    [[nodiscard]] int currentIndex() const { return m_next - 1; }
    [[nodiscard]] const TextState &current() const { return m_states.at(m_next - 1); }
    /// Puts a state that lies on the way to those of Redo before them, and makes it the current one.
    void insert(const TextState &state);
    /// Makes a state the current one to which, or past which, the text has been taken in single steps.
    void moveTo(int index);

  private:
    void store(const TextState &state);

    Hooks m_hooks;
    QList<TextState> m_states;
    int m_next = 0;  ///< index where the next state goes; the current state is the one before
    int m_last = -1; ///< index of the newest state that Redo may reach
};

} // namespace tolvo
