// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <chrono>
#include <functional>

namespace tolvo {

/// What one command may spend on matching: a time, and the patience of the user. Shared by all the steps of
/// the command.
class MatchBudget {
  public:
    using Clock = std::chrono::steady_clock;
    using Interrupted = std::function<bool()>;

    /// What a command may take if nobody says otherwise.
    static constexpr std::chrono::seconds usualTime{5};

    /// `interrupted` gives whether the user wants an end; it is asked some twenty times a second.
    explicit MatchBudget(Interrupted interrupted = {}, Clock::duration time = usualTime);

    /// True from the moment on at which the command has to end.
    [[nodiscard]] bool spent();
    /// Between the last two calls of spent().
    [[nodiscard]] Clock::duration lastStretch() const { return m_lastStretch; }
    /// Counts as spent from now on: the engine's own limits end a command too.
    void end(const QString &reason) { m_reason = reason; }
    /// Why it is spent, a sentence for the user.
    [[nodiscard]] const QString &reason() const { return m_reason; }

  private:
    Interrupted m_interrupted;
    Clock::duration m_time;
    Clock::time_point m_start;
    Clock::time_point m_asked;
    Clock::time_point m_looked;
    Clock::duration m_lastStretch{};
    QString m_reason;
};

} // namespace tolvo
