// SPDX-License-Identifier: MIT
#include "powerbuttons/CAction.h"

namespace tolvo {

void CAction::init(ToolPtr tool, SettingsFrom dlgOption, const QString &details) {
    setDetails(details);
    m_tool = std::move(tool);
    m_dlgOption = dlgOption;
}

void CAction::setDetails(const QString &details) {
    m_details = details;
    m_params.init(details);
}

} // namespace tolvo
