// SPDX-License-Identifier: MIT
#include "search/CSearch.h"

#include "base/escaped_text.h"
#include "base/numbers.h"
#include "base/strings.h"
#include "platform/report_error.h"
#include "search/result_lines.h"

#include <QScopeGuard>

namespace tolvo {

CSearch::CSearch(SearchHost &host, MessageBoxes &boxes, const cTextMethods &textMethods)
    : m_host(host), m_boxes(boxes), m_text(textMethods) {
}

namespace {

/// A step of a PowerButton is bracketed by whoever runs it.
template <class Replace>
void asUndoStep(SearchHost &host, SearchedBy by, SearchRequest request, bool all, Replace replace) {
    request.replaceAll = all;
    if (by == SearchedBy::PowerButton)
        return replace();
    host.beginReplacing(request);
    const auto end = qScopeGuard([&host] { host.endReplacing(); });
    replace();
}

} // namespace

void CSearch::run(SearchVerb verb, const SearchRequest &request, SearchedBy by) {
    const bool inOneStep = by == SearchedBy::PowerButton;
    switch (verb) {
    case SearchVerb::Search:
        if (request.mode == SearchMode::Simple)
            findLiteral(request);
        else
            findExpression(m_host.txtCurrent().Text(), request);
        break;
    case SearchVerb::FindAll:
        findAll(request);
        break;
    case SearchVerb::Replace:
        asUndoStep(m_host, by, request, false, [&] { replaceOne(request, inOneStep); });
        break;
    case SearchVerb::ReplaceAll:
        asUndoStep(m_host, by, request, true, [&] { replaceAll(request, inOneStep); });
        break;
    }
}

void CSearch::findAll(const SearchRequest &request) {
    if (request.mode == SearchMode::Simple)
        return listLiterals(request);
    if (request.find.isEmpty())
        return;
    QString text = m_host.txtCurrent().Text();
    const int count = listExpressions(text, request);
    m_host.results().setCaption(resultsCaption(count, request.find));
    m_host.results().show();
}

void CSearch::replaceOne(const SearchRequest &request, bool replaceAfterFind) {
    if (request.mode == SearchMode::Simple)
        replaceLiteral(request, replaceAfterFind);
    else
        replaceExpression(request, replaceAfterFind);
}

void CSearch::replaceAll(const SearchRequest &request, bool silent) {
    if (request.mode == SearchMode::Simple)
        replaceLiterals(request, silent);
    else
        replaceExpressions(request, silent);
}

QString CSearch::translateSpecialChars(QString &text, bool crlf) {
    QString result;
    reported("replaceHex", [&] { result = unescaped(text, crlf); });
    return text = result;
}

bool CSearch::guarded(const char *operation, const std::function<void()> &action) {
    return reported(operation, [&] {
        try {
            action();
        } catch (const Failure &failure) {
            if (failure.number() != failureNumber::badHexadecimalEscape)
                throw;
            m_boxes.show(
                {.text = failure.description() + QStringLiteral("\r\n\r\nValid characters are 0...9 and A...F"
                                                                "\r\n\r\nPlease correct and try again"),
                 .icon = BoxIcon::Exclamation});
        }
    });
}

bool CSearch::reported(const char *operation, const std::function<void()> &action) {
    return reportFailures(m_boxes, QStringLiteral("CSearch"), QString::fromLatin1(operation), action);
}

void CSearch::inform(const QString &text) {
    m_boxes.show({.text = text, .icon = BoxIcon::Information});
}

void CSearch::tellReplacements(int count) {
    inform(count == 1 ? QStringLiteral("1 string replaced")
                      : FillTemplate(QStringLiteral("%0 strings replaced"), {groupedNumber(count)}));
}

} // namespace tolvo
