// SPDX-License-Identifier: MIT
#pragma once

#include "platform/message_box.h"

namespace tolvo {

/// Message boxes as windows, modal to the active window.
class DesktopMessageBoxes final : public MessageBoxes {
  public:
    BoxAnswer show(const Box &box) override;
};

} // namespace tolvo
