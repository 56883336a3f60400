// SPDX-License-Identifier: MIT
#pragma once

#include "platform/headless/process_parts.h"
#include "platform/processes.h"

namespace tolvo {

/// Real processes, which outlive the program that starts them. Window modes have no effect.
class SystemProcesses : public Processes {
  public:
    using Processes::start;
    qint64 start(const ProgramStart &start) override;
    void letGo() override;
    void waitFor(qint64 process) override;
    /// Always false: without a desktop nothing can be opened.
    bool open(const QString &address) override;

  private:
    ProcessGate m_gate;
};

} // namespace tolvo
