// SPDX-License-Identifier: MIT
// A beep and wave files.
#pragma once

#include <QString>

namespace tolvo {

/// Makes sounds.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    /// The system's alert sound.
    virtual void beep() = 0;
    /// Starts to play a wave file, over and over if `loop` is set, and returns at once. False if the file or
    /// a player is missing.
    virtual bool playWave(const QString &file, bool loop) = 0;
};

} // namespace tolvo
