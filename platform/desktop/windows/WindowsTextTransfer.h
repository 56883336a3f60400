// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop/TextTransfer.h"

namespace tolvo {

/// Reads the system's clipboard as soon as no other program holds it open. The text comes as it stands, with
/// the line ends that it has there.
class WindowsTextTransfer final : public TextTransfer {
  public:
    bool advance(int milliseconds) override;
    /// Never: whoever holds the clipboard open shows no sign of what it does.
    [[nodiscard]] bool ownerHasMoved() override { return false; }
    [[nodiscard]] QString text() const override { return m_text; }

  private:
    bool m_over = false;
    QString m_text;
};

} // namespace tolvo
