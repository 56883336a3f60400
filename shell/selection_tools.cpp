// SPDX-License-Identifier: MIT
#include "shell/selection_tools.h"

#include "base/numbers.h"
#include "shell/frmMain.h"
#include "shell/tool_table.h"

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

void frmMain::ExtendSelectionToLines() {
    TextBox &box = txtCurrent();
    const int length = box.SelLength();
    if (length == 0)
        return;
    const QString text = box.Text();
    const int start = startOfLine(text, box.SelStart());
    // A selection that ends exactly at the beginning of a line takes that line in.
    select(box, start, endOfLine(text, box.SelStart() + length) - start);
}

void showStatistics(frmMain &session) {
    TextBox &box = session.txtCurrent();
    session.services().dialogs.showStatistics(session.oTextMethods.statistics(box.Text(), box.SelText()));
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

namespace {

void takeSelection(frmMain &session, bool copy, bool remove) {
    TextBox &box = session.txtCurrent();
    if (copy)
        session.services().clipboard.writeText(box.SelText());
    if (remove)
        box.setSelText({});
    box.setFocus();
}

} // namespace

void copySelection(frmMain &session) {
    takeSelection(session, true, false);
}

void cutSelection(frmMain &session) {
    takeSelection(session, true, true);
}

void deleteSelection(frmMain &session) {
    takeSelection(session, false, true);
}

void pasteAndSelect(frmMain &session) {
    TextBox &box = session.txtCurrent();
    if (const std::optional<QString> text = session.clipboardText())
        replaceAndSelect(box, *text);
    box.setFocus();
}

} // namespace tolvo
