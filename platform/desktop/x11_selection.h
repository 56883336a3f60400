// SPDX-License-Identifier: MIT
// What QClipboard doesn't tell about the clipboard of an X server.
#pragma once

namespace tolvo {

/// Whether the program runs on an X server.
[[nodiscard]] bool isX11();

/// Whether this program is what the X server has as the clipboard's owner. Only on X11.
[[nodiscard]] bool ownsX11Clipboard();

/// Whether any program owns the clipboard of the X server. Asks the server alone. Only on X11.
[[nodiscard]] bool x11ClipboardHasOwner();

} // namespace tolvo
