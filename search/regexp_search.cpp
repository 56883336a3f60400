// SPDX-License-Identifier: MIT
#include "search/CSearch.h"

#include "platform/line_ends.h"
#include "search/expression_search.h"
#include "search/joined.h"
#include "search/result_lines.h"

#include <optional>

namespace tolvo {

MatchBudget CSearch::newBudget() {
    return MatchBudget([this] { return m_host.interrupted(); }, m_timeLimit);
}

WildcardTranslation CSearch::translated(const SearchRequest &request) {
    WildcardTranslation translation;
    reported("translateWildcardsToRegExp", [&] { translation = expressionOf(request); });
    if (translation.bracketMissing) {
        m_boxes.show(
            {.text = QStringLiteral("Closing square bracket ] missing.\r\n\r\nIf you want to match a "
                                    "literal [\r\nprecede it with a backslash - \\["),
             .icon = BoxIcon::Exclamation});
    }
    return translation;
}

void CSearch::withExpression(const SearchRequest &request, const char *wildcardOperation,
                             const std::function<void(const QString &)> &action) {
    const auto run = [&](const QString &pattern) {
        if (!pattern.isEmpty())
            action(pattern);
    };
    if (request.mode == SearchMode::RegularExpression)
        return run(request.find);
    if (!request.find.isEmpty())
        guarded(wildcardOperation, [&] { run(translated(request).compiled); });
}

void CSearch::findExpression(const QString &text, const SearchRequest &request) {
    withExpression(request, "WildcardSearch", [&](const QString &pattern) {
        reported("RegExpSearch", [&] {
            MatchBudget budget = newBudget();
            selectMatch(compiled(widened(pattern), request.matchCase), text, request, budget);
        });
    });
}

void CSearch::selectMatch(const RegularExpression &expression, const QString &text,
                          const SearchRequest &request, MatchBudget &budget) {
    const bool up = request.direction == SearchDirection::Up;
    const bool fromStart = request.direction == SearchDirection::FromStart;
    TextBox &box = m_host.txtCurrent();
    const int caret = box.SelStart();
    const qsizetype from = fromStart ? 0 : caret + (box.SelLength() > 0 ? 1 : 0);
    std::optional<RegularExpression::Span> hit;
    bool any = false;
    if (!expression.isValid())
        inform(QStringLiteral("Error in regular expression"));
    walkMatches(expression, text, budget, [&](const RegularExpressionMatch &match) {
        any = true;
        if (up && match.start() >= caret)
            return false;
        if (match.length() > 0 && (up || match.start() >= from))
            hit = RegularExpression::Span{match.start(), match.length()};
        return up || !hit;
    });
    if (!any)
        return inform(QStringLiteral("Text not found anywhere in the document"));
    if (fromStart)
        m_host.directionChanged(SearchDirection::Down);
    if (hit) {
        tolvo::select(box, static_cast<int>(hit->start), static_cast<int>(hit->length));
    } else {
        inform(QStringLiteral("Text not found"));
        m_host.directionChanged(SearchDirection::FromStart);
    }
}

int CSearch::listExpressions(QString &text, const SearchRequest &request) {
    int count = 0;
    withExpression(request, "WildcardFindAll", [&](const QString &pattern) {
        reported("RegExpFindAll", [&] {
            text = crLfToLf(text);
            const RegularExpression expression = compiled(pattern, request.matchCase);
            requireValid(expression);
            count = listMatches(expression, text);
        });
    });
    return count;
}

/// Without any match the list stays as it was; a match without length is not listed.
int CSearch::listMatches(const RegularExpression &expression, const QString &text) {
    MatchBudget budget = newBudget();
    const QList<RegularExpression::Span> matches = matchesOf(expression, text, budget);
    if (matches.isEmpty())
        return 0;
    SearchResults &results = m_host.results();
    results.clear();
    LineCounter lines(text, u"\n");
    int count = 0;
    for (const auto &[start, length] : matches) {
        if (length == 0)
            continue;
        const int line = lines.lineOf(start);
        // Each line passed is one character longer in the text box. The context begins one character early.
        results.add(hitLine(line, text, start, start, length), packLocation(start + line - 1, length));
        ++count;
    }
    return count;
}

std::optional<CopiedMatches> CSearch::copyMatches(const MatchCopy &copy) {
    std::optional<CopiedMatches> copied;
    const QString text = m_host.txtCurrent().Text();
    MatchBudget budget = newBudget();
    if (copy.search.mode == SearchMode::Simple) {
        guarded("SimpleCopyMatches", [&] {
            if (!copy.search.find.isEmpty())
                copied = copyOfMatches(text, copy, nullptr, m_text, budget);
        });
        return copied;
    }
    withExpression(copy.search, "WildcardCopyMatches", [&](const QString &pattern) {
        guarded("RegExpCopyMatches", [&] {
            const RegularExpression expression = compiled(pattern, copy.search.matchCase);
            requireValid(expression);
            copied = copyOfMatches(text, copy, &expression, m_text, budget);
        });
    });
    return copied;
}

void CSearch::replaceExpression(const SearchRequest &request, bool replaceAfterFind) {
    const auto replaceOrSelect = [&](const QString &pattern) {
        TextBox &box = m_host.txtCurrent();
        int selStart = box.SelStart();
        QString replace = request.replace;
        translateSpecialChars(replace, false);
        const RegularExpression expression = compiled(pattern, request.matchCase);
        if (!expression.isValid())
            return inform(QStringLiteral("Error in regular expression"));
        MatchBudget budget = newBudget();
        QString selected = crLfToLf(box.SelText());
        if (!isOneMatch(expression, selected, budget)) {
            const QString wide = widened(pattern);
            selectMatch(wide == pattern ? expression : compiled(wide, request.matchCase), box.Text(), request,
                        budget);
            if (!replaceAfterFind)
                return;
            // A search that found nothing leaves the old selection, which is then replaced if it has a match.
            selected = crLfToLf(box.SelText());
            if (!hasMatch(expression, selected, budget))
                return;
            selStart = box.SelStart();
        }
        const QString result = lfToCrLf(replacedByItself(
            expression, selected, {replace, request.smartReplace, box.capacity(), m_text}, budget));
        box.setSelText(result);
        tolvo::select(box, selStart, static_cast<int>(result.size()));
    };
    withExpression(request, "WildcardReplace", [&](const QString &pattern) {
        reported("RegExpReplace", [&] { replaceOrSelect(pattern); });
    });
}

void CSearch::replaceExpressions(const SearchRequest &request, bool silent) {
    const auto replaceMatches = [&](const QString &pattern) {
        TextBox &box = m_host.txtCurrent();
        QString replace = request.replace;
        translateSpecialChars(replace, false);
        const RegularExpression expression = compiled(pattern, request.matchCase);
        requireValid(expression);
        MatchBudget budget = newBudget();
        ReplacedText replaced =
            replaceMatchByMatch(expression, crLfToLf(box.Text()),
                                {replace, request.smartReplace, box.capacity(), m_text}, budget);
        // The box is written even if nothing was replaced: a lone LF becomes CR LF.
        box.setText(lfToCrLf(std::move(replaced.text)));
        if (!silent)
            tellReplacements(replaced.count);
    };
    withExpression(request, "WildcardReplaceAll", [&](const QString &pattern) {
        reported("RegExpReplaceAll", [&] { replaceMatches(pattern); });
    });
}

} // namespace tolvo
