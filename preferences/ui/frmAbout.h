// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QDialog>

class QLabel;
class QVBoxLayout;

namespace tolvo {

class MessageBoxes;
class Processes;

/// "About Tolvo": version, date, two addresses, third parties, system information.
class frmAbout : public QDialog {
    Q_OBJECT
  public:
    /// `built` is the date of the executable.
    frmAbout(Processes &processes, MessageBoxes &boxes, const QDate &built, QWidget *parent = nullptr);

    /// Adds a link that opens the manual, a file on this machine.
    void offerManual(const QString &path);

  private:
    QLabel *link(const char *name, const QString &text, const QString &address);
    void follow(const QString &address);
    void cmdSysInfo_Click();

    QVBoxLayout *m_text = nullptr; ///< version and links
    Processes &m_processes;
    MessageBoxes &m_boxes;
};

} // namespace tolvo
