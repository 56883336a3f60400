// SPDX-License-Identifier: MIT
#pragma once

#include "shell/modMain.h"
#include "shell/ui/desktop_dialogs.h"

#include <QEventLoop>
#include <QFileSystemWatcher>
#include <QTimer>
#include <memory>

namespace tolvo {

class DesktopClipboard;
class EscapeWatch;
class MainWindow;
class PowerButtonHint;
class PowerButtonMenu;
class TroubleWatch;

/// The window side of one run: the main window, and the dialogs that it opens.
class DesktopSession : public SessionWindow {
  public:
    /// `escape` notes the key Esc during long searches and web requests.
    DesktopSession(const RunServices &services, DesktopClipboard &clipboard, EscapeWatch &escape);
    ~DesktopSession() override;

    /// Once the window is shown it offers to load the PowerButton of a file; no file if `path` is empty.
    void beginWithButtonFile(const QString &path) { m_buttonFile = path; }

    // SessionWindow

    [[nodiscard]] TextBox &txtText1() override;
    [[nodiscard]] TextBox &txtTextWW() override;
    [[nodiscard]] SessionView &view() override;
    [[nodiscard]] SessionDialogs &dialogs() override { return m_dialogs; }
    void attach(frmMain &session, cToolbox &toolbox) override;
    [[nodiscard]] bool takesClipboardLater() override;
    void showModal(const std::function<void()> &onceShown) override;
    void whenPlaced(const std::function<void(const QList<QRect> &)> &tell) override;
    void unloadForms() override;

  private:
    void watchStore();
    void takeOverPowerButtons();
    void runToolOfTip();
    void bringBackWindow();
    void keepWindow();

    RunServices m_services;
    DesktopClipboard &m_clipboard;
    std::unique_ptr<MainWindow> m_window;
    DesktopDialogs m_dialogs;
    std::unique_ptr<PowerButtonMenu> m_powerButtonMenu;
    std::unique_ptr<PowerButtonHint> m_powerButtonHint;
    std::unique_ptr<TroubleWatch> m_troubles; ///< once the window is shown
    frmMain *m_session = nullptr;
    QEventLoop m_loop;
    QString m_buttonFile; ///< to be offered once the window is shown
    QString m_lastPlace;  ///< of the main window when the session ended
    int m_panelWidth = 0; ///< as the window came up
    QFileSystemWatcher m_storeWatch;
    QTimer m_storeChanged;
    qint64 m_seenChanges = 0; ///< of the store by others, as of the last look at the PowerButtons
};

} // namespace tolvo
