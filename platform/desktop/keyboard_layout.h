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

} // namespace tolvo
