// SPDX-License-Identifier: MIT
// Other programs: the companions, and what the desktop opens.
#pragma once

#include <QString>
#include <QStringList>

namespace tolvo {

enum class WindowMode { Normal, NormalWithoutFocus, Hidden, Minimised };

/// Environment variables that tell a companion of heldBack and askedFor below. A companion that is held back
/// shows its window at the end of its standard input.
inline constexpr const char *heldBackVariable = "TOLVO_HELD_BACK";
inline constexpr const char *askedForVariable = "TOLVO_ASKED_FOR";

/// An executable to start.
struct ProgramStart {
    QString program;
    QStringList arguments = {};
    WindowMode mode = WindowMode::Normal;
    bool heldBack = false; ///< a companion that shows its window only after letGo()
    bool askedFor = false; ///< a companion that a user wants an answer from, whatever its switches
};

class Processes {
  public:
    virtual ~Processes() = default;

    /// Starts an executable without waiting and returns its process identifier. It inherits neither the
    /// standard streams nor any other descriptor. Throws a Failure (53) that names the program if it can't be
    /// started.
    virtual qint64 start(const ProgramStart &start) = 0;
    qint64 start(const QString &program, const QStringList &arguments, WindowMode mode) {
        return start({.program = program, .arguments = arguments, .mode = mode});
    }

    /// What was started held back shows its windows from here on; at the latest when this program ends.
    virtual void letGo() {}

    /// modWaitforProcess: blocks until the process has ended; returns at once if there is no such process.
    virtual void waitFor(qint64 process) = 0;

    /// Opens an address or a file with what the desktop provides; false if it can't.
    virtual bool open(const QString &address) = 0;
};

} // namespace tolvo
