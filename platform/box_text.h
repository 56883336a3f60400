// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo {

/// The text of a message box as a window shows it, with LF as line end. A text that would make the window
/// larger than a screen loses its middle, which "[...]" stands for, and a long run without blanks gets places
/// to break at.
[[nodiscard]] QString boxText(const QString &text);

} // namespace tolvo
