// SPDX-License-Identifier: MIT
#include "shell/cSound.h"

namespace tolvo {

bool cSound::PlayWav(const QString &file, int flags) const {
    if (flags != playOnce && flags != playInLoop)
        return false;
    return m_player.playWave(file, flags == playInLoop);
}

} // namespace tolvo
