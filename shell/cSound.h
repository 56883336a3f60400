// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sound.h"

namespace tolvo {

/// Plays the panel's sound.
class cSound {
  public:
    static constexpr int playOnce = 1;
    static constexpr int playInLoop = 8;

    explicit cSound(SoundPlayer &player) : m_player(player) {}

    /// Returns at once. `flags` is playOnce or playInLoop; any other value does nothing and gives false.
    bool PlayWav(const QString &file, int flags) const;

  private:
    SoundPlayer &m_player;
};

} // namespace tolvo
