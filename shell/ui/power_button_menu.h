// SPDX-License-Identifier: MIT
// What can be done with PowerButtons beside running and editing them.
#pragma once

#include "powerbuttons/button_file.h"

#include <QObject>
#include <functional>

class QAction;
class QMenu;

namespace tolvo {

class MainWindow;
class frmMain;

/// The menu of the button "More": it passes PowerButtons on and takes those of others.
class PowerButtonMenu : public QObject {
    Q_OBJECT
  public:
    /// `readyMade` is the folder of those that come with the program. Session and window must outlive the
    /// menu.
    PowerButtonMenu(frmMain &session, MainWindow &window, QString readyMade);

    /// Shows what a file holds, and takes it for the button of a number from 1, or of 0 for any.
    void loadFile(const QString &path, int number = 0);

  private:
    QAction *add(QMenu &menu, const QString &text, const std::function<void()> &run);
    void fill();
    void addReadyMade();
    void share();
    void chooseFile();
    void loadFromClipboard();
    void saveFile(const QString &text, const QString &name);
    /// `origin` is where it comes from, for messages.
    void load(const SharedButtons &shared, const QString &origin, int number);

    frmMain &m_session;
    MainWindow &m_window;
    QString m_readyMade;
    QMenu *m_menu;
};

} // namespace tolvo
