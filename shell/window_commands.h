// SPDX-License-Identifier: MIT
// The commands of the main window that are not tools, as a table.
#pragma once

#include <QStringView>
#include <span>

namespace tolvo {

class frmMain;

struct WindowCommand {
    QStringView id; ///< of the control that runs it
    QStringView name;
    QStringView does;
    QStringView key;
    QStringView rightClick; ///< what a right click does instead
    void (frmMain::*run)();
};

/// In the order in which the window shows them.
[[nodiscard]] std::span<const WindowCommand> windowCommands();

} // namespace tolvo
