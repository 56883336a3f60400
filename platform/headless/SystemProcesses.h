// SPDX-License-Identifier: MIT
#pragma once

#include "platform/processes.h"

namespace tolvo {

/// Real processes, which outlive the program that starts them. Window modes have no effect.
class SystemProcesses : public Processes {
  public:
    SystemProcesses() = default;
    ~SystemProcesses() override;
    SystemProcesses(const SystemProcesses &) = delete;
    SystemProcesses &operator=(const SystemProcesses &) = delete;

    using Processes::start;
    qint64 start(const ProgramStart &start) override;
    void letGo() override;
    void waitFor(qint64 process) override;
    /// Always false: without a desktop nothing can be opened.
    bool open(const QString &address) override;

  private:
    /// The standard input of companions that are held back; created when first needed.
    [[nodiscard]] QString gate();

    int m_gateOut = -1; ///< the end of the gate that companions read
    int m_gateIn = -1;  ///< our end; they leave when it is closed
};

} // namespace tolvo
