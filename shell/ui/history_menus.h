// SPDX-License-Identifier: MIT
// The menus of Undo and Redo: how far to go, by the names of what was done.
#pragma once

#include "shell/text_history.h"

#include <QObject>
#include <QToolButton>

class QMenu;
class QPushButton;

namespace tolvo {

class frmMain;

/// The narrow button beside Undo or Redo that opens the menu; it can be used as long as its neighbour can.
class HistoryArrow final : public QToolButton {
    Q_OBJECT
  public:
    HistoryArrow(QPushButton &neighbour, const char *name, const QString &tip);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

/// Both menus open at their arrows, and by a right click or the menu key on the buttons themselves.
class HistoryMenus : public QObject {
    Q_OBJECT
  public:
    /// The session must outlive the menus.
    HistoryMenus(frmMain &session, HistoryArrow &undo, HistoryArrow &redo, QObject *parent);

  private:
    QMenu *makeMenu(HistoryArrow &arrow, void (HistoryMenus::*fill)(QMenu &));
    void fillUndo(QMenu &menu);
    void fillRedo(QMenu &menu);
    void addEntries(QMenu &menu, const QList<TextHistory::Entry> &entries);

    frmMain &m_session;
};

} // namespace tolvo
