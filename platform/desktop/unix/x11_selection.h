// SPDX-License-Identifier: MIT
// What QClipboard doesn't report about the clipboard of an X server.
#pragma once

namespace tolvo {

/// Whether the program runs on an X server.
[[nodiscard]] bool isX11();

/// Whether this program is the clipboard's owner according to the X server. Only on X11.
[[nodiscard]] bool ownsX11Clipboard();

/// Whether any program owns the clipboard of the X server. Asks only the server, not the owner. Only on X11.
[[nodiscard]] bool x11ClipboardHasOwner();

} // namespace tolvo
