// SPDX-License-Identifier: MIT
#include "search/match_budget.h"

#include <utility>

namespace tolvo {

MatchBudget::MatchBudget(Interrupted interrupted, Clock::duration time)
    : m_interrupted(std::move(interrupted)), m_time(time), m_start(Clock::now()), m_asked(m_start),
      m_looked(m_start) {
}

bool MatchBudget::spent() {
    if (!m_reason.isEmpty())
        return true;
    const Clock::time_point now = Clock::now();
    m_lastStretch = now - std::exchange(m_looked, now);
    if (now - m_start >= m_time) {
        end(QStringLiteral("The search took too long and was given up"));
    } else if (m_interrupted && now - m_asked >= std::chrono::milliseconds(50)) {
        m_asked = now;
        if (m_interrupted())
            end(QStringLiteral("The search was interrupted"));
    }
    return !m_reason.isEmpty();
}

} // namespace tolvo
