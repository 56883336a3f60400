// SPDX-License-Identifier: MIT
#include "shell/pattern_operations.h"

#include "base/escaped_text.h"
#include "base/failure.h"
#include "search/expression_search.h"
#include "search/live_search.h"
#include "shell/line_answers.h"
#include "text/line_list.h"
#include "text/line_order.h"
#include "text/line_sets.h"
#include "text/text_host.h"

#include <functional>

namespace tolvo {

namespace {

template <class Settings>
SearchRequest requestOf(const Settings &settings) {
    SearchRequest request;
    request.mode = static_cast<SearchMode>(settings.mode);
    request.find = settings.pattern;
    request.matchCase = settings.matchCase;
    request.wholeWords = settings.wholeWords;
    request.specialChars = settings.specialChars;
    return request;
}

/// Why a request can't be carried out, in words; empty if it can.
QString troubleOf(const SearchRequest &request, const cTextMethods &engine, MatchBudget &budget) {
    const FoundMatches none = findMatches({}, request, engine, budget);
    return none.isValid() ? QString() : answerInWords({none, {}}, request, {});
}

/// The first match in a line, if there is one.
using FirstMatch = std::function<std::optional<QStringView>(QStringView)>;

FirstMatch firstLiteral(const SearchRequest &request, const cTextMethods &engine) {
    const QString find = request.specialChars ? unescaped(request.find, true) : request.find;
    return [pattern = LiteralPattern(find, request.matchCase, request.wholeWords, engine)](QStringView line) {
        std::optional<QStringView> found;
        pattern.forEachMatch(line, 0, [&](qsizetype start) {
            found = line.sliced(start, pattern.length());
            return false;
        });
        return found;
    };
}

FirstMatch firstOfExpression(const SearchRequest &request, MatchBudget &budget) {
    const RegularExpression expression = compiled(expressionOf(request).compiled, request.matchCase);
    auto state = std::make_shared<RegularExpression::MatchState>(expression);
    return [expression, state, &budget](QStringView line) {
        std::optional<QStringView> found;
        const auto end =
            expression.forEachMatch(line, *state, budget, [&](const RegularExpressionMatch &match) {
                found = line.sliced(match.start(), match.length());
                return false;
            });
        if (end == RegularExpression::Outcome::LimitReached)
            throw Failure(failureNumber::patternLimit, budget.reason());
        return found;
    };
}

/// The text that make(list of lines, first match in a line) gives.
template <class Make>
ChosenLines lineByLine(const QString &text, const SearchRequest &request, const cTextMethods &engine,
                       MatchBudget &budget, Make make) {
    const QString trouble = troubleOf(request, engine, budget);
    if (request.find.isEmpty() || !trouble.isEmpty())
        return {text, trouble};
    try {
        const bool simple = request.mode == SearchMode::Simple;
        return {
            make(LineList(text), simple ? firstLiteral(request, engine) : firstOfExpression(request, budget)),
            {}};
    } catch (const Failure &failure) {
        return {text, failure.description()};
    }
}

/// Runs a tool: answer(result) says what became of the text, and gives it.
template <class Settings, class Make, class Answer>
QString run(const ToolInput &in, const Settings &settings, Make make, Answer answer) {
    if (settings.pattern.isEmpty()) {
        in.context.host.setStatus(QStringLiteral("No pattern: the text stays as it is"));
        return in.text;
    }
    const ChosenLines made = make(in.text, settings, in.context.engine, MatchBudget({}, in.context.patience));
    return made.trouble.isEmpty() ? answer(made.text) : unchanged(in, made.trouble);
}

} // namespace

QString choosePatternLines(const ToolInput &in, const PatternLinesSettings &settings) {
    return run(in, settings, patternLines, [&](const QString &result) { return withoutLines(in, result); });
}

QString sortByPattern(const ToolInput &in, const PatternSortSettings &settings) {
    return run(in, settings, sortedByPattern, [&](const QString &result) {
        in.context.host.setStatus(QStringLiteral("Lines sorted"));
        return result;
    });
}

QString countMatches(const ToolInput &in, const MatchCountSettings &settings) {
    return run(in, settings, countedMatches, [&](const QString &result) {
        in.context.host.setStatus(result.isEmpty() ? QStringLiteral("No match: the text stays as it is")
                                                   : QStringLiteral("Matches counted"));
        return result.isEmpty() ? in.text : result;
    });
}

ChosenLines patternLines(const QString &text, const PatternLinesSettings &settings,
                         const cTextMethods &engine, MatchBudget budget) {
    const auto choose = [&](const LineList &list, const FirstMatch &first) {
        QList<QStringView> chosen;
        for (const QStringView line : list.lines) {
            if (first(line).has_value() != settings.drop)
                chosen += line;
        }
        return list.joined(chosen);
    };
    return lineByLine(text, requestOf(settings), engine, budget, choose);
}

ChosenLines sortedByPattern(const QString &text, const PatternSortSettings &settings,
                            const cTextMethods &engine, MatchBudget budget) {
    const auto sort = [&](const LineList &list, const FirstMatch &first) {
        QList<QStringView> lines;
        QList<QStringView> matches;
        QList<QStringView> others;
        for (const QStringView line : list.lines) {
            if (const auto match = first(line)) {
                lines += line;
                matches += *match;
            } else {
                others += line;
            }
        }
        SortLinesSettings order;
        order.order = settings.order;
        order.descending = settings.descending;
        order.ignoreCase = !settings.matchCase;
        QList<QStringView> sorted;
        for (const qsizetype place : placesInOrder(matches, order))
            sorted += lines.at(place);
        return list.joined(sorted + others);
    };
    return lineByLine(text, requestOf(settings), engine, budget, sort);
}

ChosenLines countedMatches(const QString &text, const MatchCountSettings &settings,
                           const cTextMethods &engine, MatchBudget budget) {
    const SearchRequest request = requestOf(settings);
    if (request.find.isEmpty())
        return {text, {}};
    const FoundMatches found = findMatches(text, request, engine, budget);
    if (!found.isValid())
        return {text, answerInWords({found, {}}, request, {})};
    if (found.more)
        return {text, budget.reason()};
    QStringList matches;
    for (const RegularExpression::Span place : found.places)
        matches += text.sliced(place.start, place.length).replace(lineEnd.toString(), QStringLiteral(" "));
    return {countedTexts(matches, !request.matchCase), {}};
}

ChosenLines withPattern(const QString &text, const ToolSettings &settings, const cTextMethods &engine) {
    if (const auto *lines = std::get_if<PatternLinesSettings>(&settings))
        return patternLines(text, *lines, engine);
    if (const auto *sort = std::get_if<PatternSortSettings>(&settings))
        return sortedByPattern(text, *sort, engine);
    if (const auto *count = std::get_if<MatchCountSettings>(&settings))
        return countedMatches(text, *count, engine);
    return {text, {}};
}

} // namespace tolvo
