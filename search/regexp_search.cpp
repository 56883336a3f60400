// SPDX-License-Identifier: MIT
#include "search/CSearch.h"

#include "platform/line_ends.h"
#include "platform/report_error.h"
#include "search/joined.h"
#include "search/replacement_template.h"
#include "search/result_lines.h"

#include <QHash>
#include <optional>

namespace tolvo {

namespace {

[[noreturn]] void failLimit(const QString &reason) {
    throw Failure(failureNumber::patternLimit, reason);
}

/// Fails for a pattern that is too large; an invalid one is the caller's business.
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

void walk(const RegularExpression &expression, QStringView text, MatchBudget &budget,
          const RegularExpression::Visitor &visit) {
    if (expression.forEachMatch(text, budget, visit) == RegularExpression::Outcome::LimitReached)
        failLimit(budget.reason());
}

/// A search works on the text of the box with its CR LF, and widens the pattern. An escaped backslash before
/// the n is widened as well.
QString widened(QString pattern) {
    return pattern.replace(QStringLiteral("\\n"), QStringLiteral("\\r\\n"));
}

bool hasMatch(const RegularExpression &expression, QStringView text, MatchBudget &budget) {
    bool found = false;
    walk(expression, text, budget, [&](const RegularExpressionMatch &) {
        found = true;
        return false;
    });
    return found;
}

/// True if the text, as a whole, is the one match in it.
bool isOneMatch(const RegularExpression &expression, QStringView text, MatchBudget &budget) {
    int count = 0;
    bool whole = false;
    walk(expression, text, budget, [&](const RegularExpressionMatch &match) {
        whole = match.length() == text.size();
        return ++count < 2;
    });
    return count == 1 && whole;
}

QString replaced(const RegularExpression &expression, RegularExpression::MatchState &state, QStringView text,
                 const ReplacementTemplate &replacement, qsizetype longest, MatchBudget &budget) {
    std::optional<QString> result = replaceMatches(expression, state, text, replacement, longest, budget);
    if (!result)
        failLimit(budget.reason());
    return *std::move(result);
}

} // namespace

MatchBudget CSearch::newBudget() {
    return MatchBudget([this] { return m_host.interrupted(); }, m_timeLimit);
}

bool CSearch::reported(const char *operation, const std::function<void()> &action) {
    return reportFailures(m_boxes, QStringLiteral("CSearch"), QString::fromLatin1(operation), action);
}

void CSearch::RegExpSearch(const QString &text, QString pattern, bool up, bool fromStart, bool matchCase) {
    if (pattern.isEmpty())
        return;
    reported("RegExpSearch", [&] {
        MatchBudget budget = newBudget();
        selectMatch(compiled(widened(pattern), matchCase), text, up, fromStart, budget);
    });
}

void CSearch::selectMatch(const RegularExpression &expression, const QString &text, bool up, bool fromStart,
                          MatchBudget &budget) {
    TextBox &box = m_host.txtCurrent();
    const int caret = box.SelStart();
    const qsizetype from = fromStart ? 0 : caret + (box.SelLength() > 0 ? 1 : 0);
    std::optional<RegularExpression::Span> hit;
    bool any = false;
    if (!expression.isValid())
        inform(QStringLiteral("Error in regular expression"));
    walk(expression, text, budget, [&](const RegularExpressionMatch &match) {
        any = true;
        if (up && match.start() >= caret)
            return false;
        if (match.length() > 0 && (up || match.start() >= from))
            hit = RegularExpression::Span{match.start(), match.length()};
        return up || !hit;
    });
    if (!any)
        return inform(QStringLiteral("Text not found anywhere in the document"));
    if (!up && fromStart)
        m_host.directionChanged(SearchDirection::Down);
    if (hit) {
        tolvo::select(box, static_cast<int>(hit->start), static_cast<int>(hit->length));
    } else {
        inform(QStringLiteral("Text not found"));
        m_host.directionChanged(SearchDirection::FromStart);
    }
}

int CSearch::RegExpFindAll(QString &text, const QString &pattern, bool matchCase) {
    int count = 0;
    if (pattern.isEmpty())
        return count;
    reported("RegExpFindAll", [&] {
        text = crLfToLf(text);
        const RegularExpression expression = compiled(pattern, matchCase);
        requireValid(expression);
        count = listMatches(expression, text);
    });
    return count;
}

/// Without any match the list stays as it was; a match without length is none for the list.
int CSearch::listMatches(const RegularExpression &expression, const QString &text) {
    MatchBudget budget = newBudget();
    QList<RegularExpression::Span> matches;
    walk(expression, text, budget, [&](const RegularExpressionMatch &match) {
        matches += {match.start(), match.length()};
        return true;
    });
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
        results.add(joined({u"Line ", QString::number(line), u": ", hitContext(text, start, length)}),
                    packLocation(start + line - 1, length));
        ++count;
    }
    return count;
}

void CSearch::RegExpReplace(const QString &pattern, QString replace, bool up, bool fromStart, bool matchCase,
                            bool smartReplace, bool replaceAfterFind) {
    if (pattern.isEmpty())
        return;
    reported("RegExpReplace", [&] {
        TextBox &box = m_host.txtCurrent();
        int selStart = box.SelStart();
        translateSpecialChars(replace, false);
        const RegularExpression expression = compiled(pattern, matchCase);
        if (!expression.isValid())
            return inform(QStringLiteral("Error in regular expression"));
        MatchBudget budget = newBudget();
        QString selected = crLfToLf(box.SelText());
        if (!isOneMatch(expression, selected, budget)) {
            const QString wide = widened(pattern);
            selectMatch(wide == pattern ? expression : compiled(wide, matchCase), box.Text(), up, fromStart,
                        budget);
            if (!replaceAfterFind)
                return;
            // A search that found nothing leaves the old selection, which is then replaced if it has a match.
            selected = crLfToLf(box.SelText());
            if (!hasMatch(expression, selected, budget))
                return;
            selStart = box.SelStart();
        }
        // Out of its context: anchors see the edges of the selection as the edges of the text.
        RegularExpression::MatchState state(expression);
        QString result = replaced(expression, state, selected,
                                  ReplacementTemplate(replace, expression.groups()), box.capacity(), budget);
        if (smartReplace)
            result = m_text.smartMatch(selected, result);
        result = lfToCrLf(std::move(result));
        box.setSelText(result);
        tolvo::select(box, selStart, static_cast<int>(result.size()));
    });
}

void CSearch::RegExpReplaceAll(const QString &pattern, QString replace, bool matchCase, bool smartReplace,
                               bool silent) {
    if (pattern.isEmpty())
        return;
    reported("RegExpReplaceAll", [&] {
        translateSpecialChars(replace, false);
        const RegularExpression expression = compiled(pattern, matchCase);
        requireValid(expression);
        QString text = crLfToLf(m_host.txtCurrent().Text());
        const int count = replaceMatchByMatch(expression, text, replace, smartReplace);
        // The box is written even if nothing was replaced: a lone LF becomes CR LF.
        m_host.txtCurrent().setText(lfToCrLf(std::move(text)));
        if (!silent)
            tellReplacements(count);
    });
}

int CSearch::replaceMatchByMatch(const RegularExpression &expression, QString &text, const QString &replace,
                                 bool smartReplace) {
    MatchBudget budget = newBudget();
    QList<RegularExpression::Span> matches;
    walk(expression, text, budget, [&](const RegularExpressionMatch &match) {
        matches += {match.start(), match.length()};
        return true;
    });
    const ReplacementTemplate replacement(replace, expression.groups());
    RegularExpression::MatchState state(expression);
    const qsizetype capacity = m_host.txtCurrent().capacity();
    QHash<QStringView, QString> known;
    QString result;
    qsizetype done = 0;
    for (const auto &[start, length] : matches) {
        result += QStringView(text).sliced(done, start - done);
        done = start + length;
        if (result.size() >= capacity)
            break;
        const QStringView matched = QStringView(text).sliced(start, length);
        auto entry = known.constFind(matched);
        if (entry == known.constEnd()) {
            QString made = replaced(expression, state, matched, replacement, capacity, budget);
            entry = known.insert(matched, smartReplace ? m_text.smartMatch(matched, made) : made);
        }
        result += *entry;
    }
    result += QStringView(text).sliced(done);
    result.truncate(capacity);
    text = result;
    return static_cast<int>(matches.size());
}

} // namespace tolvo
