// SPDX-License-Identifier: MIT
// The runs in the history: whose doing each step was, and walks of many steps at once.
#include "shell/frmMain.h"
#include "shell/text_history.h"

#include <algorithm>

namespace tolvo {

namespace {

QString typingName() {
    return QStringLiteral("typing");
}

} // namespace

RunScope::RunScope(frmMain &session, const HistoryRun &run)
    : m_session(session), m_outer(!session.history().isRunning()) {
    if (m_outer)
        m_session.history().beginRun(textState(m_session.txtCurrent()), run);
}

RunScope::~RunScope() {
    if (m_outer)
        m_session.history().endRun(textState(m_session.txtCurrent()));
}

void TextHistory::beginRun(const TextState &present, const HistoryRun &run) {
    note(present);
    m_running = static_cast<int>(m_runs.size());
    m_runs.append(run);
}

void TextHistory::endRun(const TextState &present) {
    note(present);
    m_running = byHand;
    while (!m_runs.isEmpty() && std::none_of(m_steps.begin(), m_steps.end(), [this](const Step &step) {
        return step.run == static_cast<int>(m_runs.size()) - 1;
    }))
        m_runs.removeLast();
}

void TextHistory::noteAction(std::shared_ptr<CAction> action) {
    if (isRunning())
        m_runs[m_running].actions.append(std::move(action));
}

void TextHistory::noteCopy(const TextState &present) {
    note(present);
    while (!m_copies.isEmpty() && m_copies.last() >= m_done)
        m_copies.removeLast();
    m_copies.append(m_done);
}

// Lists

/// The first step of the run, or of the typing, that a step belongs to.
int TextHistory::firstOfRun(int step) const {
    const int run = m_steps.at(step).run;
    while (step > 0 && m_steps.at(step - 1).run == run)
        --step;
    return step;
}

QList<TextHistory::Entry> TextHistory::behind() const {
    QList<Entry> entries;
    for (int place = m_done; place > 0;) {
        const int run = m_steps.at(place - 1).run;
        place = firstOfRun(place - 1);
        entries.append({run == byHand ? typingName() : m_runs.at(run).name, place});
    }
    return entries;
}

QList<TextHistory::Entry> TextHistory::ahead() const {
    QList<Entry> entries;
    const int last = m_ahead.isEmpty() ? m_done : m_ahead.first();
    for (int step = m_done; step < last; ++step) {
        const int run = m_steps.at(step).run;
        if (step > m_done && m_steps.at(step - 1).run == run)
            entries.last().place = step + 1;
        else
            entries.append({run == byHand ? typingName() : m_runs.at(run).name, step + 1});
    }
    return entries;
}

QList<std::shared_ptr<CAction>> TextHistory::latestActions() const {
    QList<std::shared_ptr<CAction>> actions;
    for (int place = m_done; place > 0;) {
        const int run = m_steps.at(place - 1).run;
        const int first = firstOfRun(place - 1);
        if (run != byHand)
            actions = m_runs.at(run).actions + actions;
        const bool copied = std::any_of(m_copies.begin(), m_copies.end(),
                                        [&](int copy) { return copy >= first && copy < place; });
        if (copied && !actions.isEmpty())
            break;
        place = first;
    }
    return actions;
}

// Walks

bool TextHistory::goTo(int place, TextState &state) {
    note(state);
    if (place < m_done)
        return goBack(place, state);
    if (m_ahead.isEmpty() || place > m_ahead.first())
        return false;
    while (!m_ahead.isEmpty() && m_ahead.last() <= place)
        m_ahead.removeLast();
    walkAhead(place, state);
    show(state);
    return true;
}

/// The place before its run; -1 if there is none.
int TextHistory::lastPowerButton() const {
    for (int place = m_done; place > 0;) {
        const int run = m_steps.at(place - 1).run;
        place = firstOfRun(place - 1);
        if (run != byHand && m_runs.at(run).powerButton)
            return place;
    }
    return -1;
}

bool TextHistory::undoPowerButton(TextState &state) {
    note(state);
    const int place = lastPowerButton();
    return place >= 0 && goBack(place, state);
}

/// `place` lies before the present one.
bool TextHistory::goBack(int place, TextState &state) {
    m_ahead.append(m_done);
    while (m_done > place) {
        const Step &step = m_steps.at(--m_done);
        state = {withoutEdit(state.text, step.edit), step.before.start, step.before.length};
    }
    int index = m_undo->currentIndex();
    while (m_places.at(index) > m_done)
        --index;
    m_undo->moveTo(index);
    show(state);
    return true;
}

void TextHistory::walkAhead(int place, TextState &state) {
    for (; m_done < place; ++m_done) {
        const Step &step = m_steps.at(m_done);
        state = {withEdit(state.text, step.edit), step.after.start, step.after.length};
    }
    int index = m_undo->currentIndex();
    while (index + 1 < m_places.size() && m_places.at(index + 1) != offTheWay &&
           m_places.at(index + 1) <= m_done)
        ++index;
    m_undo->moveTo(index);
    if (m_places.at(index) == m_done)
        state = m_undo->current();
}

} // namespace tolvo
