// SPDX-License-Identifier: MIT
#include "platform/desktop/desktop_sound.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

#include <mmsystem.h>

namespace tolvo {

namespace {

class SystemSound final : public SoundPlayer {
  public:
    SystemSound() = default;
    ~SystemSound() override { PlaySoundW(nullptr, nullptr, 0); }
    SystemSound(const SystemSound &) = delete;
    SystemSound &operator=(const SystemSound &) = delete;

    void beep() override { MessageBeep(MB_OK); }

    bool playWave(const QString &file, bool loop) override {
        if (!QFileInfo::exists(file))
            return false;
        const DWORD how = SND_FILENAME | SND_ASYNC | SND_NODEFAULT | (loop ? SND_LOOP : 0U);
        return PlaySoundW(QDir::toNativeSeparators(file).toStdWString().c_str(), nullptr, how) != 0;
    }
};

} // namespace

std::unique_ptr<SoundPlayer> desktopSound() {
    return std::make_unique<SystemSound>();
}

} // namespace tolvo
