// SPDX-License-Identifier: MIT
// Other programs: the companions, and what the desktop opens.
#pragma once

#include <QString>
#include <QStringList>

namespace tolvo {

enum class WindowMode { Normal, NormalWithoutFocus, Hidden, Minimised };

/// Environment variables that pass heldBack (as the number of this process) and askedFor below on to a
/// companion. A companion that is held back shows its window once a line comes on its standard input, and
/// ends with that input.
inline constexpr const char *heldBackVariable = "TOLVO_HELD_BACK";
inline constexpr const char *askedForVariable = "TOLVO_ASKED_FOR";

/// An executable to start.
struct ProgramStart {
    QString program;
    QStringList arguments = {};
    WindowMode mode = WindowMode::Normal;
    bool heldBack = false; ///< a companion that shows its window only after letGo()
    bool askedFor = false; ///< a companion that must show its answer, whatever its switches
};

/// Starts programs.
class Processes {
  public:
    virtual ~Processes() = default;

    /// Starts an executable without waiting for it and returns its process identifier. The process inherits
    /// neither the standard streams nor any other descriptor. Fails with 53, naming the program, if it can't
    /// be started.
    virtual qint64 start(const ProgramStart &start) = 0;
    qint64 start(const QString &program, const QStringList &arguments, WindowMode mode) {
        return start({.program = program, .arguments = arguments, .mode = mode});
    }

    /// Lets the companion that is held back show its window, which leaves with this program.
    virtual void letGo() {}

    /// modWaitforProcess: blocks until a process has ended; returns at once if there is none with this
    /// number.
    virtual void waitFor(qint64 process) = 0;

    /// Opens an address or a file with the desktop's program for it; false if there is none.
    virtual bool open(const QString &address) = 0;
};

} // namespace tolvo
