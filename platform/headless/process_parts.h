// SPDX-License-Identifier: MIT
// What SystemProcesses does in the system's own way.
#pragma once

#include <QString>

#include <memory>

namespace tolvo {

/// Holds companions back: they read their standard input from it.
class ProcessGate {
  public:
    ProcessGate();
    /// Ends the input of those who are held back.
    ~ProcessGate();

    /// The name of a file for the standard input of one companion; the null device if no gate can be made.
    [[nodiscard]] QString input();
    /// Writes the line that companions wait for; where that fails, they leave instead.
    void open();

  private:
    struct Ends;
    std::unique_ptr<Ends> m_ends;
};

/// From here on no program that is started inherits an open file of this one.
void keepFilesFromChildren();

/// Blocks until the process has ended; returns at once if there is none with this number.
void waitForProcess(qint64 process);

} // namespace tolvo
