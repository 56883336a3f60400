// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sound.h"

#include <QStringList>

namespace tolvo {

/// Makes no sound and records what was asked for.
class SilentSound final : public SoundPlayer {
  public:
    void beep() override { ++beeps; }
    bool playWave(const QString &file, bool) override {
        waves += file;
        return true;
    }

    int beeps = 0;
    QStringList waves; ///< the files, in order
};

} // namespace tolvo
