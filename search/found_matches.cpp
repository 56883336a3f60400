// SPDX-License-Identifier: MIT
#include "search/found_matches.h"

#include "base/escaped_text.h"
#include "base/failure.h"
#include "platform/line_ends.h"
#include "search/expression_search.h"
#include "search/literal_pattern.h"
#include "text/cTextMethods.h"

namespace tolvo {

namespace {

using Span = FoundMatches::Span;

/// Places in a text with LF, where a text with CR LF has them. Asked for positions that only grow.
class WidenedPlaces {
  public:
    explicit WidenedPlaces(QStringView text) : m_text(text) {}

    [[nodiscard]] qsizetype of(qsizetype position) {
        for (; m_read < position; ++m_read)
            m_added += m_text[m_read] == u'\n' ? 1 : 0;
        return position + m_added;
    }

  private:
    QStringView m_text;
    qsizetype m_read = 0;
    qsizetype m_added = 0;
};

/// Runs a search; what it fails with becomes the answer's trouble.
template <class Search>
void noteTrouble(FoundMatches &found, const MatchBudget &budget, Search search) {
    try {
        search();
    } catch (const Failure &failure) {
        found.more = !budget.reason().isEmpty();
        if (found.places.isEmpty())
            found.trouble = failure.description();
    }
}

void findLiterals(FoundMatches &found, const QString &text, const SearchRequest &request,
                  const cTextMethods &engine, MatchBudget &budget, qsizetype most) {
    if (request.specialChars)
        found.troubleAt = badEscapeAt(request.find);
    const QString find = request.specialChars ? unescaped(request.find, true) : request.find;
    const LiteralPattern pattern(find, request.matchCase, request.wholeWords, engine);
    pattern.forEachMatch(text, 0, [&](qsizetype index) {
        found.more = found.places.size() == most || budget.spent();
        if (!found.more)
            found.places += {index, find.size()};
        return !found.more;
    });
}

/// The expression of a request that isn't a simple search; nothing with the trouble in `found`.
std::optional<RegularExpression> expressionFor(FoundMatches &found, const SearchRequest &request) {
    const WildcardTranslation pattern = expressionOf(request);
    if (pattern.bracketMissing) {
        found.trouble = QStringLiteral("a set is not closed: ] is missing");
        found.troubleAt = pattern.bracketAt;
        return {};
    }
    RegularExpression expression = compiled(pattern.compiled, request.matchCase);
    if (expression.isValid())
        return expression;
    found.trouble = expression.error();
    if (request.mode == SearchMode::RegularExpression)
        found.troubleAt = expression.errorAt();
    return {};
}

void findExpressions(FoundMatches &found, const QString &text, const SearchRequest &request,
                     MatchBudget &budget, qsizetype most) {
    const auto expression = expressionFor(found, request);
    if (!expression)
        return;
    const QString narrow = crLfToLf(text);
    WidenedPlaces places(narrow);
    walkMatches(*expression, narrow, budget, [&](const RegularExpressionMatch &match) {
        if (match.length() == 0) {
            if (found.empty++ < most)
                found.emptyAt += places.of(match.start());
            return true;
        }
        found.more = found.places.size() == most;
        if (found.more)
            return false;
        const qsizetype start = places.of(match.start());
        found.places += {start, places.of(match.start() + match.length()) - start};
        return true;
    });
}

} // namespace

FoundMatches findMatches(const QString &text, const SearchRequest &request, const cTextMethods &engine,
                         MatchBudget &budget, qsizetype most) {
    FoundMatches found;
    if (request.find.isEmpty())
        return found;
    noteTrouble(found, budget, [&] {
        if (request.mode == SearchMode::Simple)
            findLiterals(found, text, request, engine, budget, most);
        else
            findExpressions(found, text, request, budget, most);
    });
    if (found.isValid())
        found.troubleAt = -1;
    return found;
}

QList<PreviewedReplacement> previewReplacements(const QString &text, const QList<Span> &places,
                                                const SearchRequest &request, const cTextMethods &engine,
                                                MatchBudget &budget) {
    QList<PreviewedReplacement> previews;
    FoundMatches trouble;
    noteTrouble(trouble, budget, [&] {
        const bool simple = request.mode == SearchMode::Simple;
        const bool escapes = !simple || request.specialChars;
        const QString replace = escapes ? unescaped(request.replace, simple) : request.replace;
        const auto expression = simple ? std::nullopt : expressionFor(trouble, request);
        for (const Span &place : places) {
            const QStringView matched = QStringView(text).sliced(place.start, place.length);
            if (simple)
                previews += {place, request.smartReplace ? engine.smartMatch(matched, replace) : replace};
            else if (expression)
                previews += {place, lfToCrLf(replacedByItself(*expression, crLfToLf(matched),
                                                              {replace, request.smartReplace,
                                                               std::numeric_limits<qsizetype>::max(), engine},
                                                              budget))};
        }
    });
    return previews;
}

std::optional<ReplacementForecast> forecastReplaceAll(const QString &text, const SearchRequest &request,
                                                      const cTextMethods &engine, qsizetype capacity,
                                                      MatchBudget &budget) {
    if (request.find.isEmpty())
        return {};
    std::optional<ReplacementForecast> forecast;
    FoundMatches trouble;
    noteTrouble(trouble, budget, [&] {
        ReplacedText replaced;
        const bool simple = request.mode == SearchMode::Simple;
        const bool escapes = !simple || request.specialChars;
        const QString replace = escapes ? unescaped(request.replace, simple) : request.replace;
        if (simple) {
            const QString find = request.specialChars ? unescaped(request.find, true) : request.find;
            replaced = LiteralPattern(find, request.matchCase, request.wholeWords, engine)
                           .replaceAll(text, replace, request.smartReplace, capacity);
        } else {
            const auto expression = expressionFor(trouble, request);
            if (!expression)
                return;
            // One more than there is room for, so that a cut is seen.
            replaced = replaceMatchByMatch(*expression, crLfToLf(text),
                                           {replace, request.smartReplace, capacity + 1, engine}, budget);
            replaced.text = lfToCrLf(std::move(replaced.text));
        }
        forecast = {.count = replaced.count, .isTooLong = replaced.text.size() > capacity};
    });
    return forecast;
}

} // namespace tolvo
