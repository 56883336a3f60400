// SPDX-License-Identifier: MIT
#include "spelling/reply_reports.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "platform/report_error.h"

#include <utility>

namespace tolvo {

void ReplyReports::show(MessageBoxes &boxes) {
    const auto report = [&boxes](const QString &procedure, const QString &text, const QString &more,
                                 qsizetype count, int number) {
        if (count > 0)
            ReportError(boxes, QStringLiteral("CSpelling"), procedure,
                        count == 1 ? text : text + more.arg(groupedNumber(count - 1)), number);
    };
    const Kind unexpected = std::exchange(m_unexpected, {});
    // The message has no closing quote, on purpose.
    report(QStringLiteral("Spell"), QStringLiteral("Unexpected node result '") + unexpected.first,
           QStringLiteral(", and %1 more"), unexpected.count, failureNumber::unexpectedElement);
    const Kind lost = std::exchange(m_lost, {});
    report(QStringLiteral("findThePlace"),
           QStringLiteral("Text '") + lost.first + QStringLiteral("' cannot be found"),
           QStringLiteral(", nor %1 more"), lost.count, failureNumber::noAnswer);
}

} // namespace tolvo
