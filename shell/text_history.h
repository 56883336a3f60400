// SPDX-License-Identifier: MIT
// One history: typing, quick edits and tools in the order in which they happened, one step each, and among
// them the places of the states of the undo buffer.
#pragma once

#include "platform/clock.h"
#include "platform/text_box.h"
#include "shell/cUndo.h"
#include "shell/history_run.h"
#include "shell/text_edit.h"

#include <QList>

namespace tolvo {

/// Ctrl-Z walks back step by step; the button Undo goes from state to state. Each Redo retraces the latest
/// undo that has not been retraced, whichever it was. A change made after an undo ends that; the buffer's
/// states stay in reach of Redo, which then asks, until a tool changes the text.
///
/// The history follows the text: every caller hands in how the text stands, and whatever has changed it
/// since the last call becomes a step. Callers write back what comes out. `undo` and `clock` outlive it; a
/// copy shares them.
class TextHistory {
  public:
    TextHistory(cUndo &undo, const Clock &clock) : m_undo(&undo), m_clock(&clock) {}

    /// cUndo::Push.
    void push(const TextState &present);
    /// A change without a state becomes a step. Called before a change by code as well, it keeps the
    /// selection that undo gives back.
    void note(const TextState &present);
    /// Call it after each edit of the user: `present` is what has become of `edit.before`.
    void noteUserEdit(const UserEdit &edit, const TextState &present);

    // Each replaces `state`, the text as it stands, by what to show. False if there is nothing to show.

    /// Back to the state before, as the button does (cUndo::Pull).
    bool undoState(TextState &state);
    /// One step back, as Ctrl-Z does.
    bool undoStep(TextState &state);
    /// Where the latest undo began that has not been retraced (cUndo::Redo).
    bool redo(TextState &state);

    // Runs (history_walks.cpp)

    /// From here to endRun() every change is the doing of `run`.
    void beginRun(const TextState &present, const HistoryRun &run);
    void endRun(const TextState &present);
    [[nodiscard]] bool isRunning() const { return m_running != byHand; }
    /// Adds a tool to the run; nothing outside of one.
    void noteAction(std::shared_ptr<CAction> action);
    /// The user has copied from the text.
    void noteCopy(const TextState &present);

    /// One line of a menu: a run, or what was typed at a time.
    struct Entry {
        QString name;
        int place; ///< for goTo()
    };
    /// What can be taken back, the latest first, and what can be brought back, the next first.
    [[nodiscard]] QList<Entry> behind() const;
    [[nodiscard]] QList<Entry> ahead() const;
    /// To before an entry of behind(), or to after one of ahead(), as one step.
    bool goTo(int place, TextState &state);
    /// Whether a run of a PowerButton can be taken back.
    [[nodiscard]] bool hasPowerButton() const { return lastPowerButton() >= 0; }
    /// To before the latest run of a PowerButton whose changes are in the text.
    bool undoPowerButton(TextState &state);
    /// The tools that made the text what it is since the user copied from it, or since the beginning. If none
    /// has run since then, those before the copy, from the copy before that.
    [[nodiscard]] QList<std::shared_ptr<CAction>> latestActions() const;

  private:
    struct Selection {
        int start = 0;
        int length = 0;
    };
    struct Step {
        TextEdit edit;
        Selection before;
        Selection after;
        int run = byHand; ///< which of the runs has made it
    };
    static constexpr int byHand = -1;
    static constexpr int offTheWay = -1; ///< place of a state that no step leads to

    void record(const TextEdit &edit, const TextState &present);
    [[nodiscard]] bool continuesTyping(const UserEdit &edit, const QDateTime &now) const;
    [[nodiscard]] bool liesBetweenStates(const TextState &present) const;
    void insertState(const TextState &present);
    void show(TextState &state);
    bool goBack(int place, TextState &state);
    bool goAhead(TextState &state);
    void walkAhead(int place, TextState &state);
    [[nodiscard]] int firstOfRun(int step) const;
    [[nodiscard]] int lastPowerButton() const;
    bool redoLostState(TextState &state);

    cUndo *m_undo;
    const Clock *m_clock;
    QList<Step> m_steps;
    int m_done = 0;      ///< how many of the steps are in the text
    QList<int> m_ahead;  ///< how many there were before each undo that Redo can retrace, the latest one last
    QList<int> m_places; ///< of each state of the buffer: after how many steps it stands
    TextState m_present; ///< text and selection as last seen
    QList<HistoryRun> m_runs;
    int m_running = byHand; ///< of the runs, the present one
    QList<int> m_copies;    ///< after how many steps the user has copied, in rising order
    bool m_open = false;    ///< the last step is typing that may go on
    QDateTime m_typed;      ///< when the user edited last
};

} // namespace tolvo
