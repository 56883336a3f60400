// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo {

/// Puts the text on the system's clipboard as it is; an empty text leaves the clipboard empty. Fails with
/// clipboardNotOpened if another program holds it open for longer than `patience` milliseconds.
void putSystemText(const QString &text, int patience);

} // namespace tolvo
