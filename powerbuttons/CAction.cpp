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

bool CAction::operator==(const CAction &other) const {
    return m_tool == other.m_tool && m_dlgOption == other.m_dlgOption && m_details == other.m_details &&
           m_switchedOff == other.m_switchedOff;
}

} // namespace tolvo
