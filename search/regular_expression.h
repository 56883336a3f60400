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

/// A compiled pattern. It never changes: copies share it, and any number of walks, in any thread, may go on
/// with it at the same time.
class RegularExpression {
  public:
    /// The working memory of a walk. Who makes many walks one after another keeps one for all of them; a walk
    /// within a walk has its own.
    class MatchState {
      public:
        explicit MatchState(const RegularExpression &expression);
        MatchState(const MatchState &) = delete;
        MatchState &operator=(const MatchState &) = delete;
        ~MatchState();

      private:
        friend class RegularExpression;
        struct Memory;
        std::unique_ptr<Memory> m_memory;
    };

    /// What looks at the matches: false ends the walk.
    using Visitor = std::function<bool(const RegularExpressionMatch &)>;

    /// How a walk ended. LimitReached: the budget is spent, and its reason() says why.
    enum class Outcome { Completed, LimitReached };

    RegularExpression(QStringView pattern, bool matchCase);

    /// Whether the pattern can be looked for, and if not, why.
    [[nodiscard]] PatternState state() const { return m_state; }
    [[nodiscard]] bool isValid() const { return m_state == PatternState::Valid; }
    /// What is wrong with a pattern that isn't valid, for the user.
    [[nodiscard]] const QString &error() const { return m_error; }
    /// Where in the pattern, from 0; -1 if no place is to blame.
    [[nodiscard]] qsizetype errorAt() const { return m_errorAt; }
    /// Number of capturing groups.
    [[nodiscard]] int groups() const { return m_groups; }

    /// Visits all matches from the start of the text, none overlapping another. After an empty match the walk
    /// goes on one unit further. A pattern that isn't valid has no matches. The visitor may match with this
    /// expression.
    ///   RegularExpression(u"b*", true) in "abb" visits "" at 0, "bb" at 1 and "" at 3.
    Outcome forEachMatch(QStringView text, MatchBudget &budget, const Visitor &visit) const;
    /// The same with a working memory, made for this expression, that no other walk is using.
    Outcome forEachMatch(QStringView text, MatchState &state, MatchBudget &budget,
                         const Visitor &visit) const;

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

    /// The next match; where it lies is left in the state.
    Step step(QStringView text, qsizetype from, MatchState::Memory &memory, Pace &pace,
              MatchBudget &budget) const;
    [[nodiscard]] qsizetype nextCandidate(QStringView text, qsizetype from) const;

    PatternState m_state = PatternState::Valid;
    QString m_error;
    qsizetype m_errorAt = -1;
    int m_groups = 0;
    std::shared_ptr<const Compiled> m_compiled;
};

} // namespace tolvo
