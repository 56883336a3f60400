// SPDX-License-Identifier: MIT
// What the clipboards of the systems differ in.
#pragma once

#include "platform/desktop/TextTransfer.h"

namespace tolvo {

/// The failure of a clipboard that can't be opened.
inline constexpr int clipboardNotOpened = 521;

/// Whether there is a window system, and so a clipboard.
[[nodiscard]] bool hasClipboard();
/// Whether only the program with the focus can read the clipboard.
[[nodiscard]] bool clipboardFollowsFocus();
/// Whether the window system takes a text only from a window that has had a key or a click.
[[nodiscard]] bool clipboardNeedsInput();
/// Whether there is anything on the clipboard. Its owner is not asked.
[[nodiscard]] bool clipboardOffers();
/// Where the clipboard follows the focus: waits up to half a second for its first offer.
void waitForFirstOffer();
/// A transfer from another program's selection; none where the toolkit does the reading.
[[nodiscard]] std::unique_ptr<TextTransfer> transferOf(TextTransfer::Selection selection);
/// Puts the text on the clipboard as it is; an empty text leaves the clipboard empty. Fails with
/// clipboardNotOpened if another program holds it open for a second.
void putOnClipboard(const QString &text);

} // namespace tolvo
