// SPDX-License-Identifier: MIT
#pragma once

#include "base/failure.h"
#include "platform/processes.h"

#include <QList>
#include <QStringList>

namespace tolvo::test {

/// Starts nothing and keeps what was asked for.
class RecordingProcesses final : public Processes {
  public:
    using Processes::start;
    qint64 start(const ProgramStart &start) override {
        if (missing)
            throw Failure(failureNumber::fileNotFound, start.program);
        started += start;
        heldBack = heldBack || start.heldBack;
        return started.size();
    }
    void letGo() override { heldBack = false; }
    void waitFor(qint64 process) override { waitedFor += process; }
    bool open(const QString &address) override {
        opened += address;
        return true;
    }

    QList<ProgramStart> started;
    bool heldBack = false; ///< something was started held back and not let go yet
    QList<qint64> waitedFor;
    QStringList opened;
    bool missing = false; ///< every start fails, as for a program that is not there
};

} // namespace tolvo::test
