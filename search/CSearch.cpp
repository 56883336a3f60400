// SPDX-License-Identifier: MIT
#include "search/CSearch.h"

#include "base/numbers.h"
#include "base/strings.h"
#include "platform/report_error.h"

namespace tolvo {

CSearch::CSearch(SearchHost &host, MessageBoxes &boxes, const cTextMethods &textMethods)
    : m_host(host), m_boxes(boxes), m_text(textMethods) {
}

bool CSearch::guarded(const char *operation, const std::function<void()> &action) {
    return reportFailures(m_boxes, QStringLiteral("CSearch"), QString::fromLatin1(operation), [&] {
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

void CSearch::inform(const QString &text) {
    m_boxes.show({.text = text, .icon = BoxIcon::Information});
}

void CSearch::tellReplacements(int count) {
    inform(count == 1 ? QStringLiteral("1 string replaced")
                      : FillTemplate(QStringLiteral("%0 strings replaced"), {groupedNumber(count)}));
}

} // namespace tolvo
