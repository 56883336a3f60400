// SPDX-License-Identifier: MIT
#pragma once

#include <qnamespace.h>

class QKeyEvent;

namespace tolvo {

/// A key press in the terms of KeyboardCommands.
struct KeyStroke {
    int code = 0;       ///< virtual key code, 0 for a key without a meaning here
    int shiftState = 0; ///< ShiftState bits; AltGr has none
    int character = -1; ///< character code, -1 if the key types none
};

/// ShiftState bits of modifiers.
int shiftState(Qt::KeyboardModifiers modifiers);

/// What a key press means under the user's layout. A digit of the upper row is known by its place too, unless
/// the layout gives a sign there that is a command. A key that types something with Ctrl and Alt held has no
/// code: that is AltGr, as Windows has it.
KeyStroke keyStroke(const QKeyEvent &event);

} // namespace tolvo
