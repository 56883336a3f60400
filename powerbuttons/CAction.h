// SPDX-License-Identifier: MIT
// One step of a PowerButton.
#pragma once

#include "base/CParams.h"
#include "powerbuttons/CTool.h"

#include <QString>

namespace tolvo {

/// How a step of a tool with a dialog gets its settings.
enum DlgOption { Prompt = 0, Custom = 1, Current = 2 };

/// A tool, the way its settings are obtained, and a stored settings string. A blank Action (fresh in the
/// editor) has no tool.
class CAction {
  public:
    CAction() = default;
    CAction(ToolPtr tool, int dlgOption, const QString &details) {
        init(std::move(tool), dlgOption, details);
    }

    /// The value of a key of Details, "" if it isn't there.
    [[nodiscard]] QString Param(const QString &key) const { return m_params.arg(key); }
    [[nodiscard]] const CParams &params() const { return m_params; }
    void init(ToolPtr tool, int dlgOption, const QString &details);

    /// Setting Details parses them.
    void setDetails(const QString &details);
    [[nodiscard]] const QString &Details() const { return m_details; }
    void setTool(ToolPtr tool) { m_tool = std::move(tool); }
    [[nodiscard]] const ToolPtr &Tool() const { return m_tool; }
    /// 0 prompt, 1 custom, 2 current; a value from the store may be any number, and one above 2 runs nothing.
    void setDlgOption(int option) { m_dlgOption = option; }
    [[nodiscard]] int DlgOption() const { return m_dlgOption; }

  private:
    ToolPtr m_tool;
    QString m_details;
    int m_dlgOption = 0;
    CParams m_params;
};

} // namespace tolvo
