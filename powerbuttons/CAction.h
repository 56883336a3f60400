// SPDX-License-Identifier: MIT
// One step of a PowerButton.
#pragma once

#include "base/CParams.h"
#include "powerbuttons/CTool.h"

#include <QString>

namespace tolvo {

/// Where a step of a tool with a dialog gets its settings from: the user, its Details, or the last use. The
/// numbers are those in the store, which may hold any other one too; such a step runs nothing.
enum class SettingsFrom { Prompt, Custom, Current };

/// A tool, the way its settings are obtained, and a stored settings string. A blank Action (fresh in the
/// editor) has no tool.
class CAction {
  public:
    CAction() = default;
    CAction(ToolPtr tool, SettingsFrom dlgOption, const QString &details) {
        init(std::move(tool), dlgOption, details);
    }

    /// The value of a key of Details, "" if it isn't there.
    [[nodiscard]] QString Param(const QString &key) const { return m_params.arg(key); }
    /// All pairs of Details.
    [[nodiscard]] const CParams &params() const { return m_params; }
    /// Sets all three and parses `details`; whether the step is switched off stays.
    void init(ToolPtr tool, SettingsFrom dlgOption, const QString &details);

    /// Setting Details parses them.
    void setDetails(const QString &details);
    [[nodiscard]] const QString &Details() const { return m_details; }
    void setTool(ToolPtr tool) { m_tool = std::move(tool); }
    /// Null for a blank Action.
    [[nodiscard]] const ToolPtr &Tool() const { return m_tool; }
    void setDlgOption(SettingsFrom option) { m_dlgOption = option; }
    [[nodiscard]] SettingsFrom DlgOption() const { return m_dlgOption; }
    /// A step that is switched off stays in its PowerButton, and a run passes it by as if it were not there.
    void setSwitchedOff(bool off) { m_switchedOff = off; }
    [[nodiscard]] bool switchedOff() const { return m_switchedOff; }

    /// Equal in all that the store keeps.
    bool operator==(const CAction &other) const;

  private:
    ToolPtr m_tool;
    QString m_details;
    SettingsFrom m_dlgOption = SettingsFrom::Prompt;
    bool m_switchedOff = false;
    CParams m_params;
};

} // namespace tolvo
