// SPDX-License-Identifier: MIT
#include "shell/selection_tools.h"

#include "base/numbers.h"
#include "platform/clipboard.h"
#include "platform/text_box.h"
#include "shell/session_windows.h"
#include "shell/tool_call.h"
#include "text/cTextMethods.h"

namespace tolvo {

int startOfLine(QStringView text, int position) {
    if (position < 2)
        return 0;
    const qsizetype lineEndBefore = text.lastIndexOf(u"\r\n", position - 2);
    return lineEndBefore < 0 ? 0 : static_cast<int>(lineEndBefore) + 2;
}

int endOfLine(QStringView text, int position) {
    const qsizetype end = text.indexOf(u"\r\n", position);
    return static_cast<int>(end < 0 ? text.size() : end);
}

void extendSelectionToLines(TextBox &box) {
    const int length = box.SelLength();
    if (length == 0)
        return;
    const QString text = box.Text();
    const int start = startOfLine(text, box.SelStart());
    select(box, start, endOfLine(text, box.SelStart() + length) - start);
}

void clearSelection(const ToolContext &context) {
    context.box.setSelLength(0);
    context.box.setFocus();
}

void selectAll(const ToolContext &context) {
    select(context.box, 0, context.box.length());
}

void selectBetweenTags(const ToolContext &context) {
    const QString text = context.box.Text();
    const qsizetype opening = text.indexOf(QLatin1StringView("\\["));
    const qsizetype closing = opening < 0 ? -1 : text.indexOf(QLatin1StringView("\\]"), opening);
    if (closing < 0) {
        context.host.setStatus(QStringLiteral("The tags \\[ and \\] are missing"));
        return;
    }
    const auto length = static_cast<int>(closing - opening - 2);
    select(context.box, static_cast<int>(opening) + 2, length);
    context.host.setStatus(groupedNumber(length) + QStringLiteral(" characters selected"));
}

void showStatistics(const ToolCall &call) {
    const TextBox &box = call.context.box;
    call.services.dialogs.showStatistics(call.context.engine.statistics(box.Text(), box.SelText()));
}

void copySelection(const ToolCall &call) {
    TextBox &box = call.context.box;
    call.services.clipboard.writeText(box.SelText());
    box.setFocus();
}

void cutSelection(const ToolCall &call) {
    copySelection(call);
    deleteSelection(call);
}

void deleteSelection(const ToolCall &call) {
    TextBox &box = call.context.box;
    box.setSelText({});
    box.setFocus();
}

void pasteAndSelect(const ToolCall &call) {
    TextBox &box = call.context.box;
    if (const auto text = answered(call.services.clipboard.readText(), call.context.host))
        replaceAndSelect(box, *text);
    box.setFocus();
}

std::optional<QString> answered(std::optional<QString> text, TextHost &host) {
    if (!text)
        host.setStatus(QStringLiteral("The clipboard did not answer"));
    return text;
}

} // namespace tolvo
