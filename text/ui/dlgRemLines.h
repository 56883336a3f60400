// SPDX-License-Identifier: MIT
#pragma once

#include "text/ui/dialog_parts.h"

class QCheckBox;

namespace tolvo {

/// "Remove Lines": which blank lines go.
class dlgRemLines : public QDialog {
    Q_OBJECT

  public:
    explicit dlgRemLines(const RemoveLinesSettings &settings, QWidget *parent = nullptr);

    [[nodiscard]] RemoveLinesSettings settings() const;
    void setSettings(const RemoveLinesSettings &settings);
    [[nodiscard]] bool Cancelled() const { return result() != QDialog::Accepted; }

  private:
    QCheckBox *m_single;
    QCheckBox *m_multiple;
};

} // namespace tolvo
