// SPDX-License-Identifier: MIT
// "Preview in the text": what OK would make of the text, while the dialog of a tool is open.
#pragma once

#include "text/tool_settings.h"

#include <functional>

class QDialog;

namespace tolvo {

/// Where the preview is shown.
class ToolPreview {
  public:
    virtual ~ToolPreview() = default;
    /// What the user chose the last time.
    [[nodiscard]] virtual bool isWanted() const = 0;
    virtual void setWanted(bool wanted) = 0;
    /// Shows what the tool makes of the text with these settings.
    virtual void show(const ToolSettings &settings) = 0;
    /// The text shows as it is.
    virtual void end() = 0;
};

/// Puts the tick box above the buttons of a finished dialog (finishDialog()). While it is ticked the preview
/// follows every change of the dialog; it ends with the dialog. `settings` reads the dialog.
void addPreviewTick(QDialog &dialog, ToolPreview &preview, std::function<ToolSettings()> settings);

} // namespace tolvo
