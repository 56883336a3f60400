// SPDX-License-Identifier: MIT
#include "shell/line_operations.h"

#include "base/escaped_text.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "search/expression_search.h"
#include "search/live_search.h"
#include "text/column_choice.h"
#include "text/line_list.h"
#include "text/text_host.h"

#include <functional>

namespace tolvo {

namespace {

SearchRequest requestOf(const PatternLinesSettings &settings) {
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

using Holds = std::function<bool(QStringView)>;

Holds holdsLiteral(const SearchRequest &request, const cTextMethods &engine) {
    const QString find = request.specialChars ? unescaped(request.find, true) : request.find;
    return [pattern = LiteralPattern(find, request.matchCase, request.wholeWords, engine)](QStringView line) {
        bool found = false;
        pattern.forEachMatch(line, 0, [&](qsizetype) {
            found = true;
            return false;
        });
        return found;
    };
}

Holds holdsExpression(const SearchRequest &request, MatchBudget &budget) {
    const RegularExpression expression = compiled(expressionOf(request).compiled, request.matchCase);
    auto state = std::make_shared<RegularExpression::MatchState>(expression);
    return [expression, state, &budget](QStringView line) {
        bool found = false;
        const auto end = expression.forEachMatch(line, *state, budget, [&](const RegularExpressionMatch &) {
            found = true;
            return false;
        });
        if (end == RegularExpression::Outcome::LimitReached)
            throw Failure(failureNumber::patternLimit, budget.reason());
        return found;
    };
}

qsizetype lineCount(const QString &text) {
    return text.isEmpty() ? 0 : LineList(text).lines.size();
}

QString countedLines(qsizetype count) {
    return count == 1 ? QStringLiteral("1 line") : groupedNumber(count) + QStringLiteral(" lines");
}

/// Says how many lines went, and gives the result.
QString withoutLines(const ToolInput &in, const QString &result) {
    in.context.host.setStatus(countedLines(lineCount(in.text) - lineCount(result)) +
                              QStringLiteral(" removed"));
    return result;
}

/// Says why the text stays.
QString unchanged(const ToolInput &in, const QString &trouble) {
    in.context.host.warn(trouble, {});
    in.context.host.setStatus(QStringLiteral("The text stays as it is"));
    return in.text;
}

} // namespace

QString removeDuplicates(const ToolInput &in, const DuplicateSettings &settings) {
    return withoutLines(in, withoutDuplicates(in.text, settings));
}

QString chooseEveryLine(const ToolInput &in, const EveryLineSettings &settings) {
    return withoutLines(in, everyLine(in.text, settings));
}

QString choosePatternLines(const ToolInput &in, const PatternLinesSettings &settings) {
    if (settings.pattern.isEmpty()) {
        in.context.host.setStatus(QStringLiteral("No pattern: the text stays as it is"));
        return in.text;
    }
    const ChosenLines chosen =
        patternLines(in.text, settings, in.context.engine, MatchBudget({}, in.context.patience));
    return chosen.trouble.isEmpty() ? withoutLines(in, chosen.text) : unchanged(in, chosen.trouble);
}

QString chooseColumns(const ToolInput &in, const ColumnSettings &settings) {
    const ChosenLines chosen = chosenColumns(in.text, settings);
    if (!chosen.trouble.isEmpty())
        return unchanged(in, chosen.trouble);
    in.context.host.setStatus(settings.drop ? QStringLiteral("Columns dropped")
                                            : QStringLiteral("Columns chosen"));
    return chosen.text;
}

ChosenLines patternLines(const QString &text, const PatternLinesSettings &settings,
                         const cTextMethods &engine, MatchBudget budget) {
    const SearchRequest request = requestOf(settings);
    const QString trouble = troubleOf(request, engine, budget);
    if (request.find.isEmpty() || !trouble.isEmpty())
        return {text, trouble};
    try {
        const bool simple = request.mode == SearchMode::Simple;
        const Holds holds = simple ? holdsLiteral(request, engine) : holdsExpression(request, budget);
        const LineList list(text);
        QList<QStringView> chosen;
        for (const QStringView line : list.lines) {
            if (holds(line) != settings.drop)
                chosen += line;
        }
        return {list.joined(chosen), {}};
    } catch (const Failure &failure) {
        return {text, failure.description()};
    }
}

} // namespace tolvo
