// SPDX-License-Identifier: MIT
#include "platform/report_error.h"

#include "base/application.h"

namespace tolvo {

void ReportError(MessageBoxes &boxes, const QString &className, const QString &procedure,
                 const QString &description, int number) {
    const QString text =
        QStringLiteral("Sorry, %1 has encountered an error.\r\n\r\nDetails:\r\n").arg(applicationTitle()) +
        description + QStringLiteral(" (error %1)\r\n in ").arg(number) + className + QStringLiteral("::") +
        procedure;
    const QString title = QStringLiteral("Error from %1 vs %2").arg(applicationTitle(), applicationVersion());
    boxes.show({.text = text, .icon = BoxIcon::Exclamation, .title = title});
}

void ReportError(MessageBoxes &boxes, const QString &className, const QString &procedure,
                 const Failure &failure) {
    ReportError(boxes, className, procedure, failure.description(), failure.number());
}

} // namespace tolvo
