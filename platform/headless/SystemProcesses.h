// SPDX-License-Identifier: MIT
#pragma once

#include "platform/processes.h"

namespace tolvo {

/// Real processes. They outlive the program that starts them; window modes are left to the window system.
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
    /// Without a desktop nothing can be opened: false.
    bool open(const QString &address) override;

  private:
    /// The standard input of what is held back; made when first needed.
    [[nodiscard]] QString gate();

    int m_gateOut = -1; ///< the end of the gate that the others read
    int m_gateIn = -1;  ///< ours; they wait until it is closed
};

} // namespace tolvo
