// SPDX-License-Identifier: MIT
#pragma once

#include "preferences/options.h"

#include <QGroupBox>
#include <array>

class QCheckBox;

namespace tolvo {

/// "Check as typed text": which words a spelling check leaves alone.
class TypedTextBox : public QGroupBox {
  public:
    explicit TypedTextBox(QWidget *parent = nullptr);

    void showOptions(const TypedTextOptions &options);
    /// What the check boxes say.
    [[nodiscard]] TypedTextOptions options() const;

  private:
    std::array<QCheckBox *, 5> m_boxes{};
};

} // namespace tolvo
