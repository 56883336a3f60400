// SPDX-License-Identifier: MIT
// What the session knows of the last tool that changed the text.
#include "shell/tool_change.h"

#include "shell/cToolbox.h"
#include "shell/frmMain.h"
#include "shell/tool_table.h"

#include <algorithm>

namespace tolvo {

QString frmMain::toolName(const QString &token) const {
    const ToolPtr tool = m_services.oTools.tool(token);
    return tool ? tool->plainName() : token;
}

QString frmMain::favouriteName(const QString &tag) const {
    const auto *const composite = std::find_if(favourites.begin(), favourites.end(),
                                               [&](const auto &one) { return QStringView(one.tag) == tag; });
    return composite == favourites.end() ? toolName(tag) : QString::fromUtf16(composite->tooltip);
}

bool frmMain::noteChange(const ToolChange &change) {
    if (txtCurrent().Text() == change.before.text)
        return false;
    m_lastChange = change;
    if (!bSessionOver)
        m_services.view.toolChangedText(*m_lastChange);
    return true;
}

/// A PowerButton that only copies, searches or counts is not expected to change anything.
bool frmMain::isToChangeText(const CPowerButton &button) const {
    for (int position = 1; position <= button.Count(); ++position) {
        const std::shared_ptr<CAction> action = button.Item(position);
        const ToolRow *row =
            action && action->Tool() && !action->switchedOff() ? toolRow(action->Tool()->Token()) : nullptr;
        if (row && row->operation.run)
            return true;
    }
    return false;
}

void frmMain::showTextBefore() {
    m_services.view.showTextBefore(lastChange() ? &*lastChange() : nullptr);
}

} // namespace tolvo
