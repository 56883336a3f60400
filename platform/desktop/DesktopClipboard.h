// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clipboard.h"
#include "platform/headless/clipboard_line_ends.h"

#include <functional>
#include <memory>
#include <vector>

namespace tolvo {

class TextTransfer;

/// The clipboard of the window system. Its owner may hang: the window stays painted meanwhile, and the wait
/// ends after a time limit or when the user cancels.
class DesktopClipboard final : public Clipboard {
  public:
    DesktopClipboard();
    ~DesktopClipboard() override;

    /// On Wayland a program without the focus sees an empty clipboard: show the window before the first take,
    /// which then waits up to half a second for the clipboard's offer.
    [[nodiscard]] std::optional<QString> takeText() override;
    [[nodiscard]] std::optional<QString> readText() override;
    [[nodiscard]] std::optional<QString> readSelection() override;
    /// Fails with clipboardNotOpened if another program holds the clipboard open.
    void writeText(const QString &text) override;

    /// Begins the next take and reports whether it will return at once. False where the window must be shown
    /// first, and after a moment without an answer from the owner.
    [[nodiscard]] bool comesAtOnce();

    /// Whether the window system takes a text only from a window that has had a key or a click.
    [[nodiscard]] static bool needsInputToWrite();
    /// Puts another text in the place of the one that this program has put on the clipboard and still owns.
    /// That needs no input anywhere, but where a write would, no other program learns of it before it pastes.
    void replaceOwnText(const QString &text);

    /// The line ends of outgoing text, for what is copied or dragged out of a text box.
    [[nodiscard]] const ClipboardLineEnds &lineEnds() const { return m_lineEnds; }

    /// Called with true when the wait for the clipboard's owner begins, so that the window can say so, and
    /// with false when it is over.
    std::function<void(bool)> onWaiting;
    /// Called after each take with what the clipboard held: Text if a text came.
    std::function<void(ClipboardContent)> onTaken;
    /// Keeps the user's input away for as long as the result lives.
    std::function<std::shared_ptr<void>()> guardInput;
    /// Whether the user has cancelled the wait; asked only under the guard.
    std::function<bool()> cancelled;
    int ownerMilliseconds = 5000; ///< the longest wait without a sign of life from the owner

  private:
    [[nodiscard]] std::optional<QString> fetch(std::unique_ptr<TextTransfer> transfer,
                                               int patience = shortPatience);
    [[nodiscard]] bool waitFor(TextTransfer &transfer) const;

    static constexpr int shortPatience = 150; // milliseconds

    ClipboardLineEnds m_lineEnds;
    std::unique_ptr<TextTransfer> m_begun; ///< by comesAtOnce(), for the next take
    /// Some owners crash when they answer a window that is gone, so transfers without an answer are kept.
    std::vector<std::unique_ptr<TextTransfer>> m_unanswered;
};

} // namespace tolvo
