// SPDX-License-Identifier: MIT
// The operations by their fixed names, with a flag for each choice. All but translateWildcardsToRegExp live
// for their names alone: the program itself makes requests.
#include "search/CSearch.h"

#include "base/escaped_text.h"

namespace tolvo {

namespace {

std::optional<SearchDirection> literalDirection(bool up, bool down, bool fromStart) {
    if (fromStart)
        return SearchDirection::FromStart;
    if (down)
        return SearchDirection::Down;
    return up ? std::optional(SearchDirection::Up) : std::nullopt;
}

SearchDirection expressionDirection(bool up, bool fromStart) {
    if (up)
        return SearchDirection::Up;
    return fromStart ? SearchDirection::FromStart : SearchDirection::Down;
}

SearchRequest wildcardRequest(const QString &find, bool specialChars, bool matchCase,
                              const WildcardOptions &options) {
    return {.mode = SearchMode::Wildcard,
            .find = find,
            .matchCase = matchCase,
            .wholeWords = options.wholeWords,
            .specialChars = specialChars,
            .anchor = options.anchor,
            .decimalSep = options.decimalSep,
            .groupingSep = options.groupingSep};
}

SearchRequest expressionRequest(QString pattern, bool matchCase) {
    return {.mode = SearchMode::RegularExpression, .find = std::move(pattern), .matchCase = matchCase};
}

} // namespace

bool CSearch::SimpleSearch(QString find, bool specialChars, bool up, bool down, bool &fromStart,
                           bool matchCase, bool wholeWords) {
    const Found found = findLiteral({.find = std::move(find),
                                     .direction = literalDirection(up, down, fromStart),
                                     .matchCase = matchCase,
                                     .wholeWords = wholeWords,
                                     .specialChars = specialChars});
    fromStart = fromStart || found == Found::No;
    return found == Found::Yes;
}

void CSearch::SimpleFindAll(QString find, bool specialChars, bool matchCase, bool wholeWords) {
    listLiterals({.find = std::move(find),
                  .matchCase = matchCase,
                  .wholeWords = wholeWords,
                  .specialChars = specialChars});
}

void CSearch::SimpleReplace(QString find, QString replace, bool specialChars, bool up, bool down,
                            bool fromStart, bool matchCase, bool wholeWords, bool smartReplace,
                            bool replaceAfterFind) {
    replaceLiteral({.find = std::move(find),
                    .replace = std::move(replace),
                    .direction = literalDirection(up, down, fromStart),
                    .matchCase = matchCase,
                    .wholeWords = wholeWords,
                    .smartReplace = smartReplace,
                    .specialChars = specialChars},
                   replaceAfterFind);
}

void CSearch::SimpleReplaceAll(QString find, QString replace, bool specialChars, bool matchCase,
                               bool wholeWords, bool smartReplace, bool silent) {
    replaceLiterals({.find = std::move(find),
                     .replace = std::move(replace),
                     .matchCase = matchCase,
                     .wholeWords = wholeWords,
                     .smartReplace = smartReplace,
                     .specialChars = specialChars},
                    silent);
}

void CSearch::WildcardSearch(const QString &find, bool specialChars, bool up, bool fromStart, bool matchCase,
                             const WildcardOptions &options) {
    SearchRequest request = wildcardRequest(find, specialChars, matchCase, options);
    request.direction = expressionDirection(up, fromStart);
    findExpression(m_host.txtCurrent().Text(), request);
}

int CSearch::WildcardFindAll(const QString &find, bool specialChars, bool matchCase,
                             const WildcardOptions &options) {
    QString text = m_host.txtCurrent().Text();
    return listExpressions(text, wildcardRequest(find, specialChars, matchCase, options));
}

void CSearch::WildcardReplace(const QString &find, const QString &replace, bool specialChars, bool up,
                              bool fromStart, bool matchCase, bool smartReplace,
                              const WildcardOptions &options, bool replaceAfterFind) {
    SearchRequest request = wildcardRequest(find, specialChars, matchCase, options);
    request.direction = expressionDirection(up, fromStart);
    request.replace = replace;
    request.smartReplace = smartReplace;
    replaceExpression(request, replaceAfterFind);
}

void CSearch::WildcardReplaceAll(const QString &find, const QString &replace, bool specialChars,
                                 bool matchCase, bool smartReplace, const WildcardOptions &options,
                                 bool silent) {
    SearchRequest request = wildcardRequest(find, specialChars, matchCase, options);
    request.replace = replace;
    request.smartReplace = smartReplace;
    replaceExpressions(request, silent);
}

void CSearch::RegExpSearch(const QString &text, QString pattern, bool up, bool fromStart, bool matchCase) {
    SearchRequest request = expressionRequest(std::move(pattern), matchCase);
    request.direction = expressionDirection(up, fromStart);
    findExpression(text, request);
}

int CSearch::RegExpFindAll(QString &text, const QString &pattern, bool matchCase) {
    return listExpressions(text, expressionRequest(pattern, matchCase));
}

void CSearch::RegExpReplace(const QString &pattern, QString replace, bool up, bool fromStart, bool matchCase,
                            bool smartReplace, bool replaceAfterFind) {
    SearchRequest request = expressionRequest(pattern, matchCase);
    request.direction = expressionDirection(up, fromStart);
    request.replace = std::move(replace);
    request.smartReplace = smartReplace;
    replaceExpression(request, replaceAfterFind);
}

void CSearch::RegExpReplaceAll(const QString &pattern, QString replace, bool matchCase, bool smartReplace,
                               bool silent) {
    SearchRequest request = expressionRequest(pattern, matchCase);
    request.replace = std::move(replace);
    request.smartReplace = smartReplace;
    replaceExpressions(request, silent);
}

QString CSearch::translateWildcardsToRegExp(const QString &pattern, bool specialChars,
                                            const WildcardOptions &options) {
    return translated(wildcardRequest(pattern, specialChars, false, options)).shown;
}

QString CSearch::replaceHex(QString &text, QStringView prefix, int digits) {
    QString result;
    reported("replaceHex", [&] { result = withHexEscapes(text, prefix, digits); });
    return text = result;
}

} // namespace tolvo
