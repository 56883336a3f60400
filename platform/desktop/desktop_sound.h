// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sound.h"

#include <memory>

namespace tolvo {

/// The desktop's sound: its beep, and wave files, one at a time; a new one ends the one before. Needs the
/// QApplication when it is used.
[[nodiscard]] std::unique_ptr<SoundPlayer> desktopSound();

} // namespace tolvo
