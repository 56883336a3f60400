// SPDX-License-Identifier: MIT
// The regular-expression engine: ECMAScript's syntax without its u flag, on UTF-16 code units, always global
// and multi-line. Nobody else knows what engine lies beneath.
#pragma once

#include "search/match_budget.h"

#include <QString>
#include <QStringView>
#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace tolvo {

enum class PatternState {
    Valid,
    Invalid,  ///< not a regular expression
    TooLarge, ///< one, but beyond what the engine takes
};

/// One match. Valid only while it is being looked at.
class RegularExpressionMatch {
  public:
    RegularExpressionMatch(QStringView text, std::span<const std::size_t> bounds)
        : m_text(text), m_bounds(bounds) {}

    /// Position from 0 and length of the whole match.
    [[nodiscard]] qsizetype start() const { return static_cast<qsizetype>(m_bounds[0]); }
    [[nodiscard]] qsizetype length() const { return static_cast<qsizetype>(m_bounds[1] - m_bounds[0]); }
    /// Group 0 is the whole match. Empty for a group that took no part or doesn't exist.
    [[nodiscard]] QStringView group(int number) const;

  private:
    QStringView m_text;
    std::span<const std::size_t> m_bounds;
};

/// A compiled pattern. Copies share it.
class RegularExpression {
  public:
    /// What looks at the matches: false ends the walk.
    using Visitor = std::function<bool(const RegularExpressionMatch &)>;

    /// How a walk ended. LimitReached: the budget is spent, and its reason() tells why.
    enum class Outcome { Completed, LimitReached };

    RegularExpression(QStringView pattern, bool matchCase);

    [[nodiscard]] PatternState state() const { return m_state; }
    [[nodiscard]] bool isValid() const { return m_state == PatternState::Valid; }
    /// What is wrong with a pattern that isn't valid, for the user.
    [[nodiscard]] const QString &error() const { return m_error; }
    /// Number of capturing groups.
    [[nodiscard]] int groups() const { return m_groups; }

    /// Visits all matches from the start of the text, none overlapping another. After an empty match the walk
    /// goes on one unit further. A pattern that isn't valid has no matches. The visitor must not match with
    /// this expression again before it has done with its match.
    Outcome forEachMatch(QStringView text, MatchBudget &budget, const Visitor &visit) const;

    struct Span {
        qsizetype start;
        qsizetype length;
    };
    /// The first match, with a budget of its own. None also when a limit is reached.
    [[nodiscard]] std::optional<Span> firstMatch(QStringView text) const;

  private:
    struct Compiled;
    enum class Step { Found, NoMatch, LimitReached };

    void compile(const QString &pattern, std::uint32_t options, bool matchCase);
    /// How many start positions are tried between two looks at the budget, and where the next look is due.
    struct Pace;

    /// The next match.
    Step step(QStringView text, qsizetype from, Pace &pace, MatchBudget &budget) const;
    [[nodiscard]] qsizetype nextCandidate(QStringView text, qsizetype from) const;

    PatternState m_state = PatternState::Valid;
    QString m_error;
    int m_groups = 0;
    std::shared_ptr<Compiled> m_compiled;
};

} // namespace tolvo
