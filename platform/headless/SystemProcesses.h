// SPDX-License-Identifier: MIT
#pragma once

#include "platform/processes.h"

namespace tolvo {

/// Real processes. They outlive the program that starts them; window modes are left to the window system.
class SystemProcesses : public Processes {
  public:
    qint64 start(const QString &program, const QStringList &arguments, WindowMode mode) override;
    void waitFor(qint64 process) override;
    /// Without a desktop nothing can be opened: false.
    bool open(const QString &address) override;
};

/// Starts nothing and keeps what was asked for.
class RecordingProcesses final : public Processes {
  public:
    qint64 start(const QString &program, const QStringList &arguments, WindowMode mode) override;
    void waitFor(qint64 process) override { waitedFor += process; }
    bool open(const QString &address) override {
        opened += address;
        return true;
    }

    struct Start {
        QString program;
        QStringList arguments;
        WindowMode mode;
    };
    QList<Start> started;
    QList<qint64> waitedFor;
    QStringList opened;
    bool missing = false; ///< every start fails, as for a program that is not there
};

} // namespace tolvo
