// SPDX-License-Identifier: MIT
// The session's history: what its runs have done, and walks of many steps at once.
#include "base/CParams.h"
#include "powerbuttons/CAction.h"
#include "shell/frmMain.h"
#include "shell/tool_table.h"

namespace tolvo {

namespace {

/// The step that does again what a tool has done; settings that no step can hold are those last used.
std::shared_ptr<CAction> stepWith(const ToolPtr &tool, const QString &details, bool isWhole) {
    return isWhole ? std::make_shared<CAction>(tool, SettingsFrom::Custom, details)
                   : std::make_shared<CAction>(tool, SettingsFrom::Current, QString());
}

std::shared_ptr<CAction> stepWith(const ToolPtr &tool, const ToolSettings &settings) {
    const QString details = settingsString(settings);
    ToolSettings again = settings;
    bool isWhole = true;
    try {
        again = settingsFromAction(settings, CParams(details));
    } catch (const Failure &) {
        isWhole = false;
    }
    return stepWith(tool, details, isWhole && settingsString(again) == details);
}

std::shared_ptr<CAction> stepWith(const ToolPtr &tool, const SearchRequest &request, bool replacing) {
    return stepWith(tool, settingsString(request, replacing),
                    CParams::canHold(request.find) && CParams::canHold(request.replace));
}

} // namespace

/// After a tool has run without settings of a step.
void frmMain::noteActionOf(const ToolRow &row, const ToolPtr &tool) {
    if (!m_history.isRunning() || !tool)
        return;
    switch (row.operation.window) {
    case SettingsWindow::Search:
    case SettingsWindow::Replace:
    case SettingsWindow::CopyMatches:
        // A direct command has only opened the window, which says by itself what it does.
        if (!m_runningButtons.isEmpty() && bRightButton)
            m_history.noteAction(stepWith(tool, m_services.dialogs.searchWindow().request(),
                                          row.operation.window == SettingsWindow::Replace));
        return;
    default:
        break;
    }
    if (row.operation.settings)
        m_history.noteAction(stepWith(tool, m_toolSettings.get(row.operation.settings())));
    else
        m_history.noteAction(std::make_shared<CAction>(
            tool, tool->gotDialog() ? SettingsFrom::Current : SettingsFrom::Prompt, QString()));
}

void frmMain::beginReplacing(const SearchRequest &request) {
    pushUndo();
    const ToolPtr tool = m_services.oTools.tool(QStringLiteral("edREP"));
    m_replacing.emplace(*this, HistoryRun{.name = tool ? tool->plainName() : QString()});
    m_history.noteAction(stepWith(tool, request, true));
}

void frmMain::endReplacing() {
    m_replacing.reset();
    pushUndo();
}

void frmMain::undoPowerButton() {
    guarded(u"undoPowerButton", [this] {
        bool found = false;
        showOtherState([&](TextState &state) { return found = m_history.undoPowerButton(state); });
        if (found)
            return;
        setStatus(QStringLiteral("No PowerButton to take back"));
        beep();
    });
}

void frmMain::goInHistory(int place) {
    guarded(u"goInHistory",
            [&] { showOtherState([&](TextState &state) { return m_history.goTo(place, state); }); });
}

QList<TextHistory::Entry> frmMain::historyBehind() {
    noteText();
    return m_history.behind();
}

QList<TextHistory::Entry> frmMain::historyAhead() {
    noteText();
    return m_history.ahead();
}

} // namespace tolvo
