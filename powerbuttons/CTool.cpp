// SPDX-License-Identifier: MIT
#include "powerbuttons/CTool.h"

namespace tolvo {

void CTool::init(const QString &name, const QString &token, const QString &tooltip, bool gotDialog) {
    m_name = name;
    m_name.replace(QLatin1StringView("&&"), QLatin1StringView("&"));
    m_token = token;
    m_tooltip = tooltip;
    m_gotDialog = gotDialog;
}

ToolPtr makeTool(const QString &name, const QString &token, const QString &tooltip, bool gotDialog) {
    auto tool = std::make_shared<CTool>();
    tool->init(name, token, tooltip, gotDialog);
    return tool;
}

} // namespace tolvo
