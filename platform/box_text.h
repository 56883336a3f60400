// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo {

/// The text of a message box as a window shows it, with LF as line end. In a text that would make the window
/// larger than a screen, "[...]" replaces the middle; a long run without blanks gets places to break.
[[nodiscard]] QString boxText(const QString &text);

} // namespace tolvo
