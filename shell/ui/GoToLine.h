// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QLabel;

namespace tolvo {

class NumberBox;

/// Asks for a line of the text. A line that the text doesn't have keeps the dialog open, which then says so.
class GoToLine : public QDialog {
    Q_OBJECT
  public:
    /// Lines count from 1.
    GoToLine(int lines, int present, QWidget *parent);

    /// The line that was chosen, from 1.
    [[nodiscard]] int line() const;
    void accept() override;

  private:
    int m_lines;
    NumberBox *m_number;
    QLabel *m_refusal;
};

} // namespace tolvo
