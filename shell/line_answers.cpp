// SPDX-License-Identifier: MIT
#include "shell/line_answers.h"

#include "base/numbers.h"
#include "text/line_list.h"
#include "text/text_host.h"

namespace tolvo {

namespace {

qsizetype lineCount(const QString &text) {
    return text.isEmpty() ? 0 : LineList(text).lines.size();
}

QString linesInWords(qsizetype count) {
    return count == 1 ? QStringLiteral("1 line") : groupedNumber(count) + QStringLiteral(" lines");
}

} // namespace

QString withoutLines(const ToolInput &in, const QString &result) {
    in.context.host.setStatus(linesInWords(lineCount(in.text) - lineCount(result)) +
                              QStringLiteral(" removed"));
    return result;
}

QString unchanged(const ToolInput &in, const QString &trouble) {
    in.context.host.warn(trouble, {});
    in.context.host.setStatus(QStringLiteral("The text stays as it is"));
    return in.text;
}

} // namespace tolvo
