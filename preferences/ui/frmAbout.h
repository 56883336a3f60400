// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QDialog>

class QLabel;

namespace tolvo {

class MessageBoxes;
class Processes;

/// "About Tolvo": version, date, two addresses, system information.
class frmAbout : public QDialog {
    Q_OBJECT
  public:
    /// `built` is the date of the executable.
    frmAbout(Processes &processes, MessageBoxes &boxes, const QDate &built, QWidget *parent = nullptr);

  private:
    QLabel *link(const char *name, const QString &text, const QString &address);
    void cmdSysInfo_Click();

    Processes &m_processes;
    MessageBoxes &m_boxes;
};

} // namespace tolvo
