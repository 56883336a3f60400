// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>

class QAbstractButton;

namespace tolvo {

/// Makes a button answer to both mouse buttons: the right one means "with the last settings" or "edit" all
/// over the main window. The menu key stands for the right button.
class AnyClick : public QObject {
  public:
    /// `clicked` is called with whether the right button was used.
    AnyClick(QAbstractButton *button, std::function<void(bool right)> clicked);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    QAbstractButton *m_button;
    std::function<void(bool)> m_clicked;
};

} // namespace tolvo
