// SPDX-License-Identifier: MIT
// Shows what a PowerButton that somebody has passed on will do, before it is taken.
#pragma once

#include "powerbuttons/button_sharing.h"

#include <QDialog>

class QComboBox;
class QLabel;

namespace tolvo {

class dlgTakeButton : public QDialog {
    Q_OBJECT
  public:
    dlgTakeButton(const SharedButtons &shared, const CPowerButtonCollection &buttons,
                  QWidget *parent = nullptr);

    /// Asks for the place. Begins with `number`, from 1, or with the first empty one for 0. Gives the chosen
    /// one; 0 if the user doesn't want the button.
    [[nodiscard]] int choosePlace(int number);

  private:
    void sayWhatHappens();

    const SharedButtons &m_shared;
    const CPowerButtonCollection &m_buttons;
    QComboBox *m_place;
    QLabel *m_consequence;
};

} // namespace tolvo
