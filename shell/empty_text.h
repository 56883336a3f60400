// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clipboard.h"

#include <QString>

namespace tolvo {

/// The hint in an empty text box: what the clipboard held if that was no text, and what to do next.
///   emptyTextHint(ClipboardContent::Picture) begins with "The clipboard held a picture."
[[nodiscard]] QString emptyTextHint(ClipboardContent held);

} // namespace tolvo
