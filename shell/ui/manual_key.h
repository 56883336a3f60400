// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace tolvo {

class MessageBoxes;
class Processes;

/// The page of the manual, without its ending, on the dialog that a control stands in. Of a window that has
/// none it is the page of what opened it; empty for the main window.
///   "search" for a control of frmSearch, and for a message box over it
[[nodiscard]] QString manualPageOf(const QWidget *control);

/// F1 in a dialog opens the manual at its page. In the main window that key is a row of the key table.
class ManualKey final : public QObject {
    Q_OBJECT

  public:
    /// `folder` holds the pages. Lives as long as `window`; the services outlive it.
    ManualKey(Processes &processes, MessageBoxes &boxes, QString folder, QWidget &window);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    Processes &m_processes;
    MessageBoxes &m_boxes;
    QString m_folder;
};

} // namespace tolvo
