// SPDX-License-Identifier: MIT
#pragma once

#include "shell/tool_table.h"
#include "text/ui/preview_tick.h"

namespace tolvo {

class ChangeView;
class frmMain;

/// The preview of a tool over the text of the main window, with the places tinted that it would change.
class WindowPreview : public ToolPreview {
  public:
    /// All must outlive it.
    WindowPreview(frmMain &session, ChangeView &changes, const ToolRow &row)
        : m_session(session), m_changes(changes), m_row(row) {}

    [[nodiscard]] bool isWanted() const override;
    void setWanted(bool wanted) override;
    void show(const ToolSettings &settings) override;
    void end() override;

  private:
    frmMain &m_session;
    ChangeView &m_changes;
    const ToolRow &m_row;
};

} // namespace tolvo
