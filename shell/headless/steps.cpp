// SPDX-License-Identifier: MIT
#include "shell/headless/steps.h"

#include "powerbuttons/circular_check.h"
#include "shell/tool_table.h"

#include <QSet>
#include <algorithm>

namespace tolvo {

namespace {

class WindowCheck {
  public:
    explicit WindowCheck(const CPowerButtonCollection &buttons) : m_buttons(buttons) {}

    void check(const CAction &action) {
        const ToolPtr &tool = action.Tool();
        if (!tool || action.switchedOff())
            return;
        const QString &token = tool->Token();
        const ToolRow *row = toolRow(token);
        switch (row ? row->operation.window : SettingsWindow::None) {
        case SettingsWindow::Language:
            throw BadRequest(QStringLiteral("%1 (%2) needs a window").arg(token, tool->Name()));
        case SettingsWindow::Search:
        case SettingsWindow::Replace:
        case SettingsWindow::CopyMatches:
            if (action.DlgOption() != SettingsFrom::Custom)
                throw BadRequest(QStringLiteral("%1 (%2) needs a window, or settings: '%1:Mode=1, Find=...'")
                                     .arg(token, tool->Name()));
            break;
        case SettingsWindow::PowerButton:
            if (action.DlgOption() == SettingsFrom::Custom)
                checkButton(targetOf(action).value_or(0));
            break;
        default:
            break;
        }
    }

  private:
    void checkButton(int number) {
        const auto button = m_buttons.Item(number);
        if (!button || m_seen.contains(number))
            return;
        m_seen.insert(number);
        for (int position = 1; position <= button->Count(); ++position)
            check(*button->Item(position));
    }

    const CPowerButtonCollection &m_buttons;
    QSet<int> m_seen;
};

} // namespace

std::shared_ptr<CAction> actionOf(const Catalogue &catalogue, const QString &step) {
    const qsizetype colon = step.indexOf(u':');
    const QString token = colon < 0 ? step : step.first(colon);
    const ToolPtr tool = catalogue.tool(token);
    if (!tool || tool->isHeading() || token == unknownToolToken)
        throw BadRequest(QStringLiteral("there is no tool \"%1\"; --list-tools shows them all").arg(token));
    if (colon >= 0 && !tool->gotDialog())
        throw BadRequest(QStringLiteral("%1 (%2) has no settings").arg(token, tool->Name()));
    return std::make_shared<CAction>(tool, colon < 0 ? SettingsFrom::Current : SettingsFrom::Custom,
                                     colon < 0 ? QString() : step.sliced(colon + 1));
}

void refuseWindows(const CAction &action, const CPowerButtonCollection &buttons) {
    WindowCheck(buttons).check(action);
}

bool hasWarning(const std::vector<Box> &boxes) {
    return std::any_of(boxes.begin(), boxes.end(), [](const Box &box) {
        return box.icon == BoxIcon::Exclamation || box.icon == BoxIcon::Critical;
    });
}

} // namespace tolvo
