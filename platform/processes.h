// SPDX-License-Identifier: MIT
// Other programs: the companions, and what the desktop opens.
#pragma once

#include <QString>
#include <QStringList>

namespace tolvo {

enum class WindowMode { Normal, NormalWithoutFocus, Hidden, Minimised };

class Processes {
  public:
    virtual ~Processes() = default;

    /// Starts an executable without waiting and returns its process identifier. Throws a Failure (53) that
    /// names the program if it can't be started.
    virtual qint64 start(const QString &program, const QStringList &arguments, WindowMode mode) = 0;

    /// modWaitforProcess: blocks until the process has ended; returns at once if there is no such process.
    virtual void waitFor(qint64 process) = 0;

    /// Opens an address or a file with what the desktop provides; false if it can't.
    virtual bool open(const QString &address) = 0;
};

} // namespace tolvo
