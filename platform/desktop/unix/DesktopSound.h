// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sound.h"

#include <QProcess>
#include <QStringList>
#include <memory>
#include <optional>

namespace tolvo {

/// Beeps, and plays wave files with the first player of PipeWire, PulseAudio or ALSA that is installed and
/// works. One wave plays at a time: a new one ends the one before.
class DesktopSound final : public SoundPlayer {
  public:
    DesktopSound();
    ~DesktopSound() override;

    void beep() override;
    bool playWave(const QString &file, bool loop) override;

  private:
    void startPlayer();
    void playerEnded(bool well);

    std::optional<QStringList> m_players; ///< paths; searched for at the first wave
    std::unique_ptr<QProcess> m_process;
    QString m_file;
    bool m_loop = false;
};

} // namespace tolvo
