// SPDX-License-Identifier: MIT
#pragma once

#include "platform/headless/SystemProcesses.h"

namespace tolvo {

/// Real processes, and addresses and files opened with what the desktop has for them.
class DesktopProcesses final : public SystemProcesses {
  public:
    bool open(const QString &address) override;
};

} // namespace tolvo
