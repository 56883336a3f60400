// SPDX-License-Identifier: MIT
// Chooses the PowerButton that an Action runs.
#pragma once

#include "powerbuttons/CPowerButton.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace tolvo {

class dlgChoosePB : public QDialog {
    Q_OBJECT
  public:
    explicit dlgChoosePB(const CPowerButtonCollection &buttons, QWidget *parent = nullptr);

    /// Shows the number in the settings string and lets choose another, never `own`. True if the user did;
    /// `settings` is then "PowerButton=" and the number.
    bool showDialog(QString &settings, int own);

  private:
    void follow();

    const CPowerButtonCollection &m_buttons;
    int m_own = 0;
    QSpinBox *m_number; ///< VScroll1; the text in it is txtButtonNumber
    QLineEdit *m_name;
    QLabel *m_refusal;
    QPushButton *m_ok;
};

} // namespace tolvo
