// SPDX-License-Identifier: MIT
#pragma once

#include "shell/session_windows.h"

#include <QDialog>

class QLabel;

namespace tolvo {

/// "Confirm close": discard the changes, copy and close, or go on.
class dlgConfirmClose : public QDialog {
    Q_OBJECT
  public:
    explicit dlgConfirmClose(QWidget *parent = nullptr);

    /// Shows the prompt modally. The flags are part of the call as everybody makes it and have no effect.
    [[nodiscard]] CloseAnswer MsgBox(const QString &prompt, int flags = 36);

  private:
    QLabel *m_prompt;
};

} // namespace tolvo
