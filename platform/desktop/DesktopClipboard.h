// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clipboard.h"
#include "platform/headless/clipboard_line_ends.h"

#include <functional>

namespace tolvo {

/// The clipboard of the window system.
///
/// On Wayland a program without the focus sees an empty clipboard: show the window before the first take,
/// which then waits up to half a second for what the clipboard offers.
class DesktopClipboard final : public Clipboard {
  public:
    [[nodiscard]] QString takeText() override;
    [[nodiscard]] QString readText() override;
    void writeText(const QString &text) override;

    /// How text goes out, for what is copied or dragged out of a text box.
    [[nodiscard]] const ClipboardLineEnds &lineEnds() const { return m_lineEnds; }

    /// Called with true when the clipboard's owner keeps us waiting, so that the window can say so, and with
    /// false when the wait is over. An owner that never answers counts as an empty clipboard.
    std::function<void(bool)> onWaiting;
    int ownerMilliseconds = 5000; ///< how long the owner may take

  private:
    [[nodiscard]] QString fetch();

    ClipboardLineEnds m_lineEnds;
};

} // namespace tolvo
