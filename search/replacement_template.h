// SPDX-License-Identifier: MIT
// Replacements with $1 to $9, $& (the whole match) and $$ (a dollar sign).
#pragma once

#include "search/regular_expression.h"

#include <QList>
#include <QString>
#include <QStringView>

namespace tolvo {

class ReplacementTemplate {
  public:
    /// `groups`: how many groups the pattern has. "$0", a number above the groups and any other "$" stand for
    /// themselves; "$10" is group 1 and a "0".
    ReplacementTemplate(QStringView text, int groups);

    /// Adds the replacement of one match.
    void expand(const RegularExpressionMatch &match, QString &out) const;

  private:
    struct Piece {
        QString literal;
        int group = -1; ///< -1: a literal
    };
    QList<Piece> m_pieces;
};

/// The text with every match replaced, no more than `longest` units of it: nobody has room for more.
/// Nothing if the budget is spent.
[[nodiscard]] std::optional<QString> replaceMatches(const RegularExpression &expression,
                                                    RegularExpression::MatchState &state, QStringView text,
                                                    const ReplacementTemplate &replacement, qsizetype longest,
                                                    MatchBudget &budget);

} // namespace tolvo
