// SPDX-License-Identifier: MIT
// What QClipboard doesn't tell about the clipboard of an X server.
#pragma once

#include <cstdint>

struct xcb_connection_t;

namespace tolvo {

/// Whether the program runs on an X server.
[[nodiscard]] bool isX11();

/// Whether this program is what the X server has as the clipboard's owner. Only on X11.
[[nodiscard]] bool ownsX11Clipboard();

/// Asks the clipboard's owner, over a connection of its own, what it has to offer.
class X11SelectionProbe {
  public:
    X11SelectionProbe();
    ~X11SelectionProbe();
    X11SelectionProbe(const X11SelectionProbe &) = delete;
    X11SelectionProbe &operator=(const X11SelectionProbe &) = delete;

    /// Whether the answer is there within the time; that of the server itself if there is no owner. Also true
    /// if the question can't be put at all.
    [[nodiscard]] bool waitForAnswer(int milliseconds);

  private:
    xcb_connection_t *m_connection = nullptr;
    uint32_t m_clipboard = 0;
    bool m_answered = false;
};

} // namespace tolvo
