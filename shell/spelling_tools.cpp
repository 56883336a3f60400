// SPDX-License-Identifier: MIT
#include "shell/spelling_tools.h"

#include "base/conversions.h"
#include "base/strings.h"
#include "platform/message_box.h"
#include "platform/report_error.h"
#include "platform/text_box.h"
#include "powerbuttons/CAction.h"
#include "shell/session_windows.h"
#include "shell/tool_call.h"
#include "spelling/languages.h"

namespace tolvo {

namespace {

/// Nothing if the user cancelled.
std::optional<int> languageOfCheck(const ToolCall &call) {
    if (call.action)
        return toInteger(call.action->Param(QStringLiteral("LangID")));
    if (call.withLastSettings)
        return LanguageList(call.services.store).storedLangID();
    const int chosen = call.services.dialogs.GetLangID(languageCancelled, true);
    return chosen == languageCancelled ? std::nullopt : std::optional(chosen);
}

void runCheck(const ToolCall &call, bool grammar) {
    const bool dirty = call.bDirty;
    const std::optional<int> language = languageOfCheck(call);
    if (!language)
        return;

    TextBox &box = call.context.box;
    const QString before = box.Text();
    QString after = before;
    Proofing proofing(call.services.spelling, call.proofing, call.services.dialogs);
    const bool complete =
        grammar ? proofing.CheckGrammar(after, *language) : proofing.CheckSpelling(after, *language);
    bool unchanged = false;
    if (complete) {
        unchanged = StripTrailingEOL(before) == StripTrailingEOL(after);
        box.setText(after);
        if (unchanged)
            call.bDirty = dirty;
    }
    call.services.view.bringToFront();
    if (unchanged)
        call.services.boxes.show({.text = grammar ? QStringLiteral("Spelling and grammar check complete")
                                                  : QStringLiteral("Spelling check complete"),
                                  .icon = BoxIcon::Information});
    call.services.view.bringToFront();
}

} // namespace

void checkSpelling(const ToolCall &call, bool grammar) {
    if (call.action)
        return runCheck(call, grammar);
    reportFailures(call.services.boxes, QStringLiteral("frmMain"),
                   grammar ? QStringLiteral("CheckGrammar") : QStringLiteral("CheckSpelling"),
                   [&] { runCheck(call, grammar); });
}

} // namespace tolvo
