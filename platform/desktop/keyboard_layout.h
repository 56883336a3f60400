// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace tolvo {

/// The character of the Latin keyboard on a key of a layout that has no Latin letters of its own: a letter in
/// lower case, or a sign. It comes from the user's other layouts in their order; if none of them has Latin
/// letters either, from the place of the key on the American keyboard. `scanCode` is QKeyEvent's, `modifiers`
/// QKeyEvent's native ones.
/// 0 if the layout in use has Latin letters, or if the platform doesn't report its layouts.
char16_t latinCharacterOfKey(quint32 scanCode, quint32 modifiers);

/// The digit of the upper row that stands at the place of a key on nearly every keyboard, 1 to 9; 0 for other
/// keys and where places aren't known. `scanCode` is QKeyEvent's.
int digitOfKey(quint32 scanCode);

} // namespace tolvo
