// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QObject>
#include <QSize>

class QDialog;

namespace tolvo {

class frmMain;

/// Gives each dialog of a window the size that the user gave it last, and remembers that size when it goes.
/// Dialogs are told apart by their object names; those that can't be resized, and those of the toolkit, are
/// left alone.
class DialogSizes : public QObject {
  public:
    /// Watches the dialogs that `window` gets from now on, and theirs. Lives as long as `window`.
    DialogSizes(frmMain &session, QWidget &window);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void comes(QDialog &dialog);
    void goes(QDialog &dialog);

    frmMain &m_session;
    QMap<QString, QSize> m_shown; ///< the sizes that dialogs came up with
};

} // namespace tolvo
