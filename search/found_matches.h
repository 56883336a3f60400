// SPDX-License-Identifier: MIT
// What a search would find and put in, without doing it: for marks while a pattern is typed, and for a look
// at a replacement. Pure, and may run in any thread.
#pragma once

#include "search/match_budget.h"
#include "search/regular_expression.h"
#include "search/search_request.h"

#include <QList>
#include <limits>

namespace tolvo {

class cTextMethods;

/// The matches that a Find All of a request lists.
struct FoundMatches {
    using Span = RegularExpression::Span;

    QList<Span> places;       ///< in the text as it was given, in order; simple search may let them overlap
    int empty = 0;            ///< matches without length, which are replaced but not listed
    QList<qsizetype> emptyAt; ///< where they are, in order; `most` at most
    bool more = false;        ///< `most` are found, or the budget is spent
    QString trouble;          ///< why the request can't be carried out, in words; empty if it can
    qsizetype troubleAt = -1; ///< where in its find text, from 0; -1 if no place is to blame

    [[nodiscard]] bool isValid() const { return trouble.isEmpty(); }
};

/// Looks for a request in a text with CR LF as its line end. An empty find text finds nothing. Never shows
/// anything and doesn't fail: what is wrong is said in the answer.
///   "(a" as a regular expression has the trouble "a group is not closed" at 0
[[nodiscard]] FoundMatches findMatches(const QString &text, const SearchRequest &request,
                                       const cTextMethods &engine, MatchBudget &budget,
                                       qsizetype most = std::numeric_limits<qsizetype>::max());

/// One match as Replace All would leave it.
struct PreviewedReplacement {
    RegularExpression::Span place;
    QString replacement;
};

/// What would stand in the place of these matches. Fewer if the budget is spent; none for a request or a
/// replacement that can't be carried out.
[[nodiscard]] QList<PreviewedReplacement>
previewReplacements(const QString &text, const QList<RegularExpression::Span> &places,
                    const SearchRequest &request, const cTextMethods &engine, MatchBudget &budget);

/// What Replace All would do to a text.
struct ReplacementForecast {
    int count = 0;
    bool isTooLong = false; ///< the result is longer than the capacity, and would be cut
};

/// Nothing if the budget is spent or the request can't be carried out.
[[nodiscard]] std::optional<ReplacementForecast> forecastReplaceAll(const QString &text,
                                                                    const SearchRequest &request,
                                                                    const cTextMethods &engine,
                                                                    qsizetype capacity, MatchBudget &budget);

} // namespace tolvo
