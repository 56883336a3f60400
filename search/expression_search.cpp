// SPDX-License-Identifier: MIT
#include "search/expression_search.h"

#include "base/failure.h"
#include "search/replacement_template.h"
#include "text/cTextMethods.h"

#include <QHash>

namespace tolvo {

namespace {

[[noreturn]] void failLimit(const QString &reason) {
    throw Failure(failureNumber::patternLimit, reason);
}

/// Replaces one text after another.
class Replacer {
  public:
    Replacer(const RegularExpression &expression, const Replacement &replacement, MatchBudget &budget)
        : m_expression(expression), m_state(expression), m_replacement(replacement),
          m_template(replacement.text, expression.groups()), m_budget(budget) {}

    QString operator()(QStringView text) {
        std::optional<QString> result =
            replaceMatches(m_expression, m_state, text, m_template, m_replacement.longest, m_budget);
        if (!result)
            failLimit(m_budget.reason());
        return m_replacement.smart ? m_replacement.engine.smartMatch(text, *result) : *std::move(result);
    }

  private:
    const RegularExpression &m_expression;
    RegularExpression::MatchState m_state;
    const Replacement &m_replacement;
    ReplacementTemplate m_template;
    MatchBudget &m_budget;
};

} // namespace

WildcardTranslation expressionOf(const SearchRequest &request) {
    if (request.mode == SearchMode::Wildcard)
        return translateWildcards(request.find, request.specialChars, request.wildcardOptions());
    return {.shown = request.find, .compiled = request.find};
}

QString widened(QString pattern) {
    return pattern.replace(QStringLiteral("\\n"), QStringLiteral("\\r\\n"));
}

RegularExpression compiled(const QString &pattern, bool matchCase) {
    RegularExpression expression(pattern, matchCase);
    if (expression.state() == PatternState::TooLarge)
        failLimit(QStringLiteral("The regular expression is too large: ") + expression.error());
    return expression;
}

void requireValid(const RegularExpression &expression) {
    if (!expression.isValid())
        throw Failure(failureNumber::invalidPattern,
                      QStringLiteral("Syntax error in regular expression: ") + expression.error());
}

void walkMatches(const RegularExpression &expression, QStringView text, MatchBudget &budget,
                 const RegularExpression::Visitor &visit) {
    if (expression.forEachMatch(text, budget, visit) == RegularExpression::Outcome::LimitReached)
        failLimit(budget.reason());
}

QList<RegularExpression::Span> matchesOf(const RegularExpression &expression, QStringView text,
                                         MatchBudget &budget) {
    QList<RegularExpression::Span> matches;
    walkMatches(expression, text, budget, [&](const RegularExpressionMatch &match) {
        matches += {match.start(), match.length()};
        return true;
    });
    return matches;
}

bool hasMatch(const RegularExpression &expression, QStringView text, MatchBudget &budget) {
    bool found = false;
    walkMatches(expression, text, budget, [&](const RegularExpressionMatch &) {
        found = true;
        return false;
    });
    return found;
}

bool isOneMatch(const RegularExpression &expression, QStringView text, MatchBudget &budget) {
    int count = 0;
    bool whole = false;
    walkMatches(expression, text, budget, [&](const RegularExpressionMatch &match) {
        whole = match.length() == text.size();
        return ++count < 2;
    });
    return count == 1 && whole;
}

QString replacedByItself(const RegularExpression &expression, QStringView text,
                         const Replacement &replacement, MatchBudget &budget) {
    return Replacer(expression, replacement, budget)(text);
}

ReplacedText replaceMatchByMatch(const RegularExpression &expression, QStringView text,
                                 const Replacement &replacement, MatchBudget &budget) {
    const QList<RegularExpression::Span> matches = matchesOf(expression, text, budget);
    Replacer replaced(expression, replacement, budget);
    QHash<QStringView, QString> known;
    QString result;
    qsizetype done = 0;
    for (const auto &[start, length] : matches) {
        result += text.sliced(done, start - done);
        done = start + length;
        if (result.size() >= replacement.longest)
            break;
        const QStringView matched = text.sliced(start, length);
        auto entry = known.constFind(matched);
        if (entry == known.constEnd())
            entry = known.insert(matched, replaced(matched));
        result += *entry;
    }
    result += text.sliced(done);
    result.truncate(replacement.longest);
    return {.text = result, .count = static_cast<int>(matches.size())};
}

} // namespace tolvo
