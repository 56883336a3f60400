// SPDX-License-Identifier: MIT
#include "shell/finding_tools.h"

#include "base/numbers.h"
#include "text/finding.h"
#include "text/lines.h"
#include "text/text_host.h"

namespace tolvo {

namespace {

/// `one` and `many` name what was looked for.
QString shown(const ToolInput &in, const QStringList &found, const QString &one, const QString &many) {
    if (found.isEmpty()) {
        in.context.host.setStatus(QStringLiteral("No ") + many);
        return in.text;
    }
    in.context.host.setStatus(groupedNumber(found.size()) + u' ' + (found.size() == 1 ? one : many));
    return found.join(lineEnd);
}

} // namespace

QString foundWebAddresses(const ToolInput &in) {
    return shown(in, webAddresses(in.text), QStringLiteral("web address"), QStringLiteral("web addresses"));
}

QString foundMailAddresses(const ToolInput &in) {
    return shown(in, mailAddresses(in.text), QStringLiteral("mail address"),
                 QStringLiteral("mail addresses"));
}

QString foundNumbers(const ToolInput &in) {
    return shown(in, numbersIn(in.text), QStringLiteral("number"), QStringLiteral("numbers"));
}

QString foundDates(const ToolInput &in) {
    return shown(in, datesIn(in.text), QStringLiteral("date"), QStringLiteral("dates"));
}

} // namespace tolvo
