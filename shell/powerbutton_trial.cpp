// SPDX-License-Identifier: MIT
// What a trial of a PowerButton takes along of the session.
#include "powerbuttons/circular_check.h"
#include "preferences/settings_keys.h"
#include "shell/frmMain.h"
#include "shell/powerbutton_preview.h"
#include "shell/tool_table.h"

#include <algorithm>

namespace tolvo {

namespace {

/// A copy with Actions of its own.
CPowerButton copyOf(const CPowerButton &button) {
    CPowerButton copy = button;
    copy.Clear();
    for (int position = 1; position <= button.Count(); ++position)
        copy.Add(std::make_shared<CAction>(*button.Item(position)));
    return copy;
}

QList<CAction> stepsOf(const CPowerButton &button, int count) {
    QList<CAction> steps;
    for (int position = 1; position <= std::min(count, button.Count()); ++position)
        steps += *button.Item(position);
    return steps;
}

/// Every step that may run, those of other buttons included.
QList<CAction> allSteps(const PowerButtonTrial &trial) {
    QList<CAction> all = trial.steps;
    for (const CPowerButton &button : trial.buttons)
        all += stepsOf(button, button.Count());
    all.removeIf([](const CAction &step) { return !step.Tool() || step.switchedOff(); });
    return all;
}

bool isSearch(SettingsWindow window) {
    return window == SettingsWindow::Search || window == SettingsWindow::Replace ||
           window == SettingsWindow::CopyMatches;
}

/// What steps without settings of their own run with.
void takeLastSettings(PowerButtonTrial &trial, frmMain &session, const QList<CAction> &steps) {
    ToolSettingsMemory settings = session.toolSettings(); // a copy: reading doesn't count as a use
    bool searches = false;
    for (const CAction &step : steps) {
        const ToolRow *row = toolRow(step.Tool()->Token());
        if (!row || !row->gotDialog() || step.DlgOption() == SettingsFrom::Custom)
            continue;
        if (row->operation.settings)
            trial.lastSettings += settings.get(row->operation.settings());
        searches = searches || isSearch(row->operation.window);
    }
    if (!searches)
        return;
    const SessionServices &services = session.services();
    trial.lastSearch = services.dialogs.searchWindow().request();
    trial.lastCopy.form = get(services.store, settingKeys.matchCopy.form);
    trial.lastCopy.inPlace = get(services.store, settingKeys.matchCopy.inPlace);
}

} // namespace

PowerButtonTrial powerButtonTrial(frmMain &session, const CPowerButton &button, int count) {
    const SessionServices &services = session.services();
    PowerButtonTrial trial{.steps = stepsOf(button, count),
                           .text = textState(session.txtCurrent()),
                           .capacity = session.txtCurrent().capacity(),
                           .topLevelDomains = session.oTextMethods.topLevelDomains(),
                           .extensions = services.extensions,
                           .catalogue = &services.oTools};
    if (std::ranges::any_of(trial.steps, [](const CAction &step) {
            return step.Tool() && step.Tool()->Token() == powerButtonToken;
        })) {
        for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number)
            trial.buttons += copyOf(*services.oPowerButtons.Item(number));
    }
    const QList<CAction> steps = allSteps(trial);
    const bool usesLast = std::ranges::any_of(
        steps, [](const CAction &step) { return step.DlgOption() == SettingsFrom::Current; });
    if (usesLast)
        takeLastSettings(trial, session, steps);
    trial.pastes = std::ranges::any_of(
        steps, [](const CAction &step) { return step.Tool()->Token() == QLatin1StringView("pbPST"); });
    return trial;
}

} // namespace tolvo
