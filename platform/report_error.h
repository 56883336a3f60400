// SPDX-License-Identifier: MIT
// Gen_Procs: the one report of unexpected failures.
#pragma once

#include "base/failure.h"
#include "platform/message_box.h"

#include <QString>

namespace tolvo {

/// Shows one box with the exclamation icon: "Sorry, Tolvo has encountered an error.", an empty line,
/// "Details:", the description with its number, and the class and procedure where it arose.
void ReportError(MessageBoxes &boxes, const QString &className, const QString &procedure,
                 const QString &description, int number);
void ReportError(MessageBoxes &boxes, const QString &className, const QString &procedure,
                 const Failure &failure);

/// Runs `action` and reports a failure under the given names. True if there was none. Exceptions of the
/// standard library, such as lack of memory, are reported in the same way.
template <class Action>
bool reportFailures(MessageBoxes &boxes, const QString &className, const QString &procedure,
                    Action &&action) {
    try {
        action();
        return true;
    } catch (const Failure &failure) {
        ReportError(boxes, className, procedure, failure);
    } catch (const std::exception &failure) {
        ReportError(boxes, className, procedure, QString::fromUtf8(failure.what()),
                    failureNumber::invalidArgument);
    }
    return false;
}

} // namespace tolvo
