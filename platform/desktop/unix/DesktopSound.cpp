// SPDX-License-Identifier: MIT
#include "platform/desktop/unix/DesktopSound.h"

#include "platform/desktop/desktop_sound.h"

#include <QApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace tolvo {

namespace {

QStringList installedPlayers() {
    QStringList found;
    for (const char *name : {"pw-play", "paplay", "aplay"}) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (!path.isEmpty())
            found += path;
    }
    return found;
}

} // namespace

DesktopSound::DesktopSound() = default;

DesktopSound::~DesktopSound() {
    if (m_process)
        m_process->disconnect();
}

void DesktopSound::beep() {
    QApplication::beep();
}

bool DesktopSound::playWave(const QString &file, bool loop) {
    if (!m_players)
        m_players = installedPlayers();
    if (m_players->isEmpty() || !QFileInfo::exists(file))
        return false;
    m_file = file;
    m_loop = loop;
    startPlayer();
    return true;
}

void DesktopSound::startPlayer() {
    if (m_process) {
        m_process->disconnect();
        m_process->kill();
        m_process.release()->deleteLater();
    }
    m_process = std::make_unique<QProcess>();
    m_process->setStandardOutputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(m_process.get(), &QProcess::finished, m_process.get(),
                     [this](int code, QProcess::ExitStatus status) {
                         playerEnded(status == QProcess::NormalExit && code == 0);
                     });
    m_process->start(m_players->first(), {m_file}, QIODevice::NotOpen);
}

/// If a player fails, it has no sound server: the next player is used for the rest of the run.
void DesktopSound::playerEnded(bool well) {
    if (!well)
        m_players->removeFirst();
    if (!m_players->isEmpty() && (m_loop || !well))
        startPlayer();
}

std::unique_ptr<SoundPlayer> desktopSound() {
    return std::make_unique<DesktopSound>();
}

} // namespace tolvo
