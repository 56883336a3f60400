// SPDX-License-Identifier: MIT
// A beep and wave files.
#pragma once

#include <QString>

namespace tolvo {

class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    virtual void beep() = 0;
    /// Plays a wave file and returns at once, again and again if `loop` is set. False if it can't: a missing
    /// file or player is no failure.
    virtual bool playWave(const QString &file, bool loop) = 0;
};

} // namespace tolvo
