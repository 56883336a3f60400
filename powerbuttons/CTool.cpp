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

QString CTool::plainName() const {
    return m_name.endsWith(QLatin1StringView("...")) ? m_name.chopped(3) : m_name;
}

ToolPtr makeTool(const QString &name, const QString &token, const QString &tooltip, bool gotDialog) {
    auto tool = std::make_shared<CTool>();
    tool->init(name, token, tooltip, gotDialog);
    return tool;
}

} // namespace tolvo
