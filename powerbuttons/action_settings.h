// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace tolvo {

/// Asks the user for the stored settings of one Action, by the dialog of its tool.
class ActionSettings {
  public:
    virtual ~ActionSettings() = default;

    /// Shows the window of the tool `token` that gives its settings, filled from the settings string
    /// `details`. Gives the new settings string, or nothing if the user cancelled or the tool has no such
    /// window. What the tool itself uses next stays as it was.
    virtual std::optional<QString> getSettings(const QString &token, const QString &details) = 0;
};

} // namespace tolvo
