// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clipboard.h"
#include "platform/headless/clipboard_line_ends.h"

#include <functional>
#include <memory>
#include <vector>

namespace tolvo {

class X11TextTransfer;

/// The clipboard of the window system. Its owner may hang: the window stays painted meanwhile, and the wait
/// ends after a while or when the user wants it to.
class DesktopClipboard final : public Clipboard {
  public:
    DesktopClipboard();
    ~DesktopClipboard() override;

    /// On Wayland a program without the focus sees an empty clipboard: show the window before the first take,
    /// which then waits up to half a second for what the clipboard offers.
    [[nodiscard]] std::optional<QString> takeText() override;
    [[nodiscard]] std::optional<QString> readText() override;
    [[nodiscard]] std::optional<QString> readSelection() override;
    void writeText(const QString &text) override;

    /// Begins the next take: whether it will return at once. False where the window has to be shown first,
    /// and after a moment without a sign of the owner.
    [[nodiscard]] bool comesAtOnce();

    /// How text goes out, for what is copied or dragged out of a text box.
    [[nodiscard]] const ClipboardLineEnds &lineEnds() const { return m_lineEnds; }

    /// Called with true when the clipboard's owner keeps us waiting, so that the window can say so, and with
    /// false when the wait is over.
    std::function<void(bool)> onWaiting;
    /// The user's input reaches nothing as long as the result lives.
    std::function<std::shared_ptr<void>()> guardInput;
    /// Whether the user wants the wait to end; asked only under the guard.
    std::function<bool()> cancelled;
    int ownerMilliseconds = 5000; ///< how long the owner may let us wait without a sign of life

  private:
    [[nodiscard]] std::optional<QString> fetch(std::unique_ptr<X11TextTransfer> transfer,
                                               int patience = shortPatience);
    [[nodiscard]] bool waitFor(X11TextTransfer &transfer) const;

    static constexpr int shortPatience = 150; // milliseconds

    ClipboardLineEnds m_lineEnds;
    std::unique_ptr<X11TextTransfer> m_begun; ///< by comesAtOnce(), for the next take
    /// Some owners die of an answer to a window that has gone: what asked in vain stays.
    std::vector<std::unique_ptr<X11TextTransfer>> m_unanswered;
};

} // namespace tolvo
