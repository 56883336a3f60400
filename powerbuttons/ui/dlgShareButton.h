// SPDX-License-Identifier: MIT
// Shows what is passed on of a PowerButton.
#pragma once

#include "powerbuttons/button_sharing.h"

#include <QDialog>
#include <functional>

class QComboBox;
class QPlainTextEdit;
class QPushButton;

namespace tolvo {

class dlgShareButton : public QDialog {
    Q_OBJECT
  public:
    /// Begins with the button of a number from 1; those that are defined can be chosen.
    dlgShareButton(const CPowerButtonCollection &buttons, int number, QWidget *parent = nullptr);

    /// The text is to go to the clipboard.
    std::function<void(const QString &text)> onCopy;
    /// The text is to go into a file; `name` is that of the button.
    std::function<void(const QString &text, const QString &name)> onSave;

  private:
    void showButton(int number);

    const CPowerButtonCollection &m_buttons;
    QComboBox *m_choice;
    QPlainTextEdit *m_text;
    QPushButton *m_save;
    QPushButton *m_copy;
    QString m_name;
};

} // namespace tolvo
