// SPDX-License-Identifier: MIT
#pragma once

#include "platform/headless/SystemProcesses.h"

namespace tolvo {

/// Real processes; opens addresses and files with the desktop's programs.
class DesktopProcesses final : public SystemProcesses {
  public:
    bool open(const QString &address) override;
};

} // namespace tolvo
