// SPDX-License-Identifier: MIT
// What the searches by regular expression and by wildcards do with texts: the pattern of a request, its
// matches, the text with another in their place. Each function fails with patternLimit when the pattern is
// too large or the budget is spent.
#pragma once

#include "search/literal_pattern.h"
#include "search/regular_expression.h"
#include "search/search_request.h"

#include <QList>

namespace tolvo {

/// The regular expression of a request that isn't a simple search.
///   Wildcard "a?" has the expression "a(.)".
[[nodiscard]] WildcardTranslation expressionOf(const SearchRequest &request);

/// The pattern for a text with CR LF as its line end, where other texts have LF: each "\n" (backslash, n)
/// becomes "\r\n". An escaped backslash before the n is widened as well.
///   widened(u"a\\nb") == u"a\\r\\nb"
[[nodiscard]] QString widened(QString pattern);

/// The pattern as an expression, which may be invalid: see requireValid().
[[nodiscard]] RegularExpression compiled(const QString &pattern, bool matchCase);
/// Fails with invalidPattern.
void requireValid(const RegularExpression &expression);

/// forEachMatch() that fails when the budget is spent.
void walkMatches(const RegularExpression &expression, QStringView text, MatchBudget &budget,
                 const RegularExpression::Visitor &visit);
/// All matches, in order.
[[nodiscard]] QList<RegularExpression::Span> matchesOf(const RegularExpression &expression, QStringView text,
                                                       MatchBudget &budget);
/// Whether there is a match anywhere in the text.
[[nodiscard]] bool hasMatch(const RegularExpression &expression, QStringView text, MatchBudget &budget);
/// True if the text, as a whole, is the one match in it.
[[nodiscard]] bool isOneMatch(const RegularExpression &expression, QStringView text, MatchBudget &budget);

/// What takes the place of matches: a template with $1 to $9, and whether each takes the capitals of what it
/// replaces.
struct Replacement {
    QString text;
    bool smart;
    qsizetype longest; ///< no result is longer: nobody has room for more
    const cTextMethods &engine;
};

/// A text with its matches replaced: out of its context, so that anchors see its edges as those of a text.
///   "ab" by "$2$1", with the expression "(a)(b)", gives "ba".
[[nodiscard]] QString replacedByItself(const RegularExpression &expression, QStringView text,
                                       const Replacement &replacement, MatchBudget &budget);
/// Each match in the text replaced by itself, in the same way; matches without length count too.
[[nodiscard]] ReplacedText replaceMatchByMatch(const RegularExpression &expression, QStringView text,
                                               const Replacement &replacement, MatchBudget &budget);

} // namespace tolvo
